// SPDX-License-Identifier: MIT
#include "translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace tarnwick {

namespace {

bool install(const QString& name, const QString& folder)
{
    auto* const translator = new QTranslator(QCoreApplication::instance());
    return translator->load(name, folder) && QCoreApplication::installTranslator(translator);
}

} // namespace

void installTranslations()
{
    for (QString language : QLocale().uiLanguages()) {
        if (language.startsWith(QStringLiteral("en")))
            return; // the texts as they stand in the sources
        language.replace(u'-', u'_');
        if (install(QStringLiteral("tarnwick_") + language, QStringLiteral(":/i18n"))) {
            install(QStringLiteral("qtbase_") + language,
                    QLibraryInfo::path(QLibraryInfo::TranslationsPath));
            return;
        }
    }
}

} // namespace tarnwick
