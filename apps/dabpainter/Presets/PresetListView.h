// SPDX-License-Identifier: MIT
#pragma once

#include <QListView>

namespace dabcanvas::dabpainter {

// The presets of a PresetListModel as pictures. A press on a star is one on nothing else; some keys mean the preset rather
// than the canvas.
class PresetListView : public QListView {
    Q_OBJECT

public:
    explicit PresetListView(QWidget* parent = nullptr);

signals:
    void starPressed(const QModelIndex& at);
    void chosenByKey(const QModelIndex& at);
    void removedByKey(const QModelIndex& at);

protected:
    bool event(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;

private:
    bool isForPreset(QKeyEvent& event);
    bool isForStar(const QEvent& event);

    bool _starPressed = false;
};

}  // namespace dabcanvas::dabpainter
