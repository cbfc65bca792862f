// SPDX-License-Identifier: MIT
#include "Window/Translations.h"

#include <QLibraryInfo>
#include <QTranslator>

namespace dabcanvas::dabpainter {

void installTranslations(QCoreApplication& application, const QLocale& locale) {
    const struct {
        const char* name;
        QString folder;
    } catalogues[] = {{"qtbase", QLibraryInfo::path(QLibraryInfo::TranslationsPath)},
                      {"dabpainter", QStringLiteral(":/translations")}};
    for (const auto& [name, folder] : catalogues) {
        auto* translator = new QTranslator(&application);
        if (translator->load(locale, QLatin1String(name), QStringLiteral("_"), folder))
            application.installTranslator(translator);
        else
            delete translator;
    }
}

}  // namespace dabcanvas::dabpainter
