// SPDX-License-Identifier: MIT
// Prints what the painter shows out of tables and brushes rather than out of its sources, as lupdate reads it:
// table_texts BRUSH.xbf...
#include <QCoreApplication>
#include <QTextStream>
#include <set>

#include "Brush/BrushPresentation.h"
#include "Preset/PresetInfo.h"
#include "Preset/QDBrushManager.h"

namespace {

using namespace dabcanvas;

std::set<QString> ofProperties() {
    std::set<QString> texts;
    for (const BrushProperty& property : brushProperties()) {
        texts.insert(dabpainter::brushPresentation(property).label);
        texts.insert(QString::fromUtf8(property.about));
        texts.insert(dabpainter::brushGroupTitle(property.group));
        for (const BrushChoice& choice : brushChoices(property))
            texts.insert(dabpainter::choiceLabel(choice));
    }
    return texts;
}

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    std::set<QString> texts = ofProperties();
    for (const QString& path : QCoreApplication::arguments().mid(1)) {
        QString problem;
        const auto brushes = QDBrushManager::brushesWithXBFPath(path, nullptr, &problem);
        if (!brushes || brushes->isEmpty()) {
            QTextStream(stderr) << path << ": " << problem << '\n';
            return 1;
        }
        const PresetInfo info = infoOfParams(BrushRecords::brushParams(brushes->last()));
        texts.insert(BrushRecords::brushName(brushes->last()));
        texts.insert(info.about);
        texts.insert(info.tags.begin(), info.tags.end());
    }
    QTextStream out(stdout);
    for (const QString& text : texts) {
        QString quoted = text;
        quoted.replace(QLatin1Char('\\'), QStringLiteral("\\\\"))
            .replace(QLatin1Char('"'), QStringLiteral("\\\""));
        out << "QT_TRANSLATE_NOOP(\"Tables\", \"" << quoted << "\")\n";
    }
}
