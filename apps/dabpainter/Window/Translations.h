// SPDX-License-Identifier: MIT
// What the user reads, in the user's language. The catalogues lie in translations/, tools/update_translations.sh keeps them.
#pragma once

#include <QCoreApplication>
#include <QLocale>

namespace dabcanvas::dabpainter {

// Of what belongs to no class.
inline QString tr(const char* text) {
    return QCoreApplication::translate("dabcanvas::dabpainter", text);
}

// Of words that stand in the library's tables, and in the brushes that are shipped.
inline QString trOfTable(const QString& text) {
    return text.isEmpty() ? text : QCoreApplication::translate("Tables", text.toUtf8().constData());
}

// Has the application speak it, Qt's own dialogs included; English where there is no catalogue.
void installTranslations(QCoreApplication& application, const QLocale& locale);

}  // namespace dabcanvas::dabpainter
