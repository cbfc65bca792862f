// SPDX-License-Identifier: MIT
// What is painted, recorded, and exported as it is or as a time-lapse.
#include <QAction>
#include <QDir>
#include <QMenuBar>
#include <QProgressDialog>
#include <QStatusBar>

#include "QDEAGLView/QDDrawView.h"
#include "Recording/RecordingSign.h"
#include "Recording/TimelapseExport.h"
#include "Window/MainWindow.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr int kMessageTime = 5000;  // milliseconds

}  // namespace

void MainWindow::makeRecordingMenu() {
    QMenu* menu = menuBar()->addMenu(tr("&Recording"));
    _record = addTo(menu, "recording.record", tr("&Record"), {}, [] {});
    _record->setCheckable(true);
    _record->setChecked(_settings.records());
    _record->setToolTip(tr("What is painted from here on is kept, to be exported"));
    connect(_record, &QAction::toggled, this, [this](bool on) {
        _settings.setRecords(on);
        recordCanvas();
    });
    _recordingSign = new RecordingSign(*menu);
    statusBar()->addPermanentWidget(_recordingSign);
    addTo(menu, "recording.export", tr("&Export Recording…"), {}, [this] { exportRecording(); });
    addTo(menu, "recording.timelapse", tr("Export &Time-Lapse…"), {}, [this] { exportTimelapse(); });
}

// The present one, from now on; or no more.
void MainWindow::recordCanvas() {
    finishEdits();
    const QString fault = _record->isChecked() && view() ? _session.start(*view()) : QString();
    if (!_record->isChecked())
        _session.stop();
    _recordingSign->setVisible(_session.isRecording());
    if (!fault.isEmpty())
        statusBar()->showMessage(fault, kMessageTime);
}

void MainWindow::exportRecording() {
    finishEdits();
    if (const QString fault = _session.fault(); !fault.isEmpty())
        return void(tellFault(fault));
    const QString path = _prompts.pickRecordingName(this);
    if (path.isEmpty())
        return;
    if (const QString fault = _session.exportTo(path); !fault.isEmpty())
        tellFault(fault);
    else
        statusBar()->showMessage(tr("Exported %1").arg(QDir::toNativeSeparators(path)), kMessageTime);
}

// Painting goes on meanwhile.
void MainWindow::exportTimelapse() {
    finishEdits();
    const auto recorded = _session.recorded();
    if (!recorded.file)
        return void(tellFault(_session.fault()));
    const QString path = _prompts.pickTimelapseName(this, TimelapseExport::suggestedPath(_document.path()));
    if (path.isEmpty())
        return;
    auto* dialog = new QProgressDialog(tr("Painting the time-lapse…"), tr("Cancel"), 0, 0, this);
    auto* painting = new TimelapseExport(recorded, path, dialog);
    dialog->setAutoReset(false);
    connect(dialog, &QProgressDialog::canceled, painting, &TimelapseExport::cancel);
    connect(painting, &TimelapseExport::progressed, dialog, [dialog](int strokes, int all) {
        if (dialog->wasCanceled())
            return;  // it would come up again
        dialog->setMaximum(all);
        dialog->setValue(strokes);
    });
    connect(painting, &TimelapseExport::finished, this, [this, dialog, path](const QString& fault) {
        if (!fault.isEmpty())
            tellFault(fault);
        else if (!dialog->wasCanceled())
            statusBar()->showMessage(tr("Exported %1").arg(QDir::toNativeSeparators(path)), kMessageTime);
        dialog->deleteLater();
    });
    dialog->show();
    painting->start();
}

}  // namespace dabcanvas::dabpainter
