// SPDX-License-Identifier: MIT
#include "app/InterfaceLanguage.h"

#include <QCoreApplication>
#include <QLocale>

namespace fadeloom {

InterfaceLanguage::InterfaceLanguage(const std::string& code)
{
    const QString folder = QStringLiteral(":/i18n");
    const QString prefix = QStringLiteral("fadeloom");
    if (code != "system")
        QLocale::setDefault(QLocale(QString::fromStdString(code)));
    // English has texts of its own, too: those that Linux words otherwise.
    const bool isLoaded = translator_.load(QLocale(), prefix, QStringLiteral("_"), folder)
        || translator_.load(QLocale(QLocale::English), prefix, QStringLiteral("_"), folder);
    if (isLoaded)
        QCoreApplication::installTranslator(&translator_);
}

}  // namespace fadeloom
