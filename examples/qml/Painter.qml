// SPDX-License-Identifier: MIT
// A small painter. With the name of a file it paints a stroke, leaves its picture there and ends.
import QtQuick
import Dabcanvas

Window {
    id: window
    width: 800
    height: 560
    visible: true
    title: canvas.modified ? qsTr("Painting *") : qsTr("Painting")

    component Choice: Rectangle {
        signal chosen
        property alias text: label.text
        width: Math.max(36, label.width + 16)
        height: 36
        radius: 6
        color: "#e8e8e8"
        Text { id: label; anchors.centerIn: parent }
        TapHandler { onTapped: parent.chosen() }
    }

    Canvas {
        id: canvas
        anchors.fill: parent
        radius: 36
        hardness: 0.6
        radiusControl: [0.7, 0, 0]  // thinner, the lighter the pen presses
        navigable: true
        fit: Canvas.Whole

        function take(color: color) {
            renderColor = color
            blendType = Brush.Normal
        }
    }
    Row {
        x: 12
        y: 12
        spacing: 8
        Choice { color: "#20364f"; onChosen: canvas.take(color) }
        Choice { color: "#b03a2e"; onChosen: canvas.take(color) }
        Choice { color: "#1e8449"; onChosen: canvas.take(color) }
        Choice { text: qsTr("Rubber"); onChosen: canvas.blendType = Brush.Erase }
        Choice { text: qsTr("Undo"); opacity: canvas.canUndo ? 1 : 0.5; onChosen: canvas.undo() }
        Choice { text: qsTr("Redo"); opacity: canvas.canRedo ? 1 : 0.5; onChosen: canvas.redo() }
        Choice { text: qsTr("Clear"); onChosen: canvas.clear("white") }
    }

    readonly property string picture: Qt.application.arguments[1] ?? ""
    Timer {
        running: window.picture !== ""
        interval: 300
        onTriggered: {
            canvas.clear("white")
            canvas.renderColor = "#b03a2e"
            const place = t => Qt.point(120 + 560 * t, 300 - 120 * Math.sin(9 * t))
            canvas.beginStroke(place(0), 0.2)
            for (let t = 0.02; t < 1; t += 0.02)
                canvas.moveStroke(place(t), 0.2 + 0.7 * Math.sin(3 * t))
            canvas.endStroke(place(1), 0.1)
            const leave = result => Qt.exit(result.saveToFile(window.picture) && canvas.canUndo ? 0 : 1)
            window.contentItem.grabToImage(leave)
        }
    }
}
