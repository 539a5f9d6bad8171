// SPDX-License-Identifier: MIT
#include "app/InterfaceLanguage.h"

#include <QCoreApplication>
#include <QLocale>

#include <optional>

namespace fadeloom {

InterfaceLanguage::InterfaceLanguage(const std::vector<std::string>& preferred, Wording wording)
    : wording_(wording)
{
    std::optional<QLocale> chosen;
    bool isLoaded = false;
    for (const auto& code : preferred) {
        const QLocale locale(QString::fromStdString(code));
        if (isLoaded || locale.language() == QLocale::C)
            continue;  // Found, or not a language.
        isLoaded = load(locale);
        if (isLoaded || !chosen)
            chosen = locale;
    }
    if (chosen)
        QLocale::setDefault(*chosen);
    // English has a table too: for the Linux wording.
    if (isLoaded || (!chosen && load(QLocale())) || load(QLocale(QLocale::English))) {
        QCoreApplication::installTranslator(&texts_);
        QCoreApplication::installTranslator(&macOSTexts_);  // The last one installed is searched first.
    }
}

bool InterfaceLanguage::load(const QLocale& locale)
{
    const auto folder = QStringLiteral(":/i18n");
    const auto separator = QStringLiteral("_");
    return texts_.load(locale, QStringLiteral("fadeloom"), separator, folder)
        && (wording_ == Wording::ofLinux
            || macOSTexts_.load(locale, QStringLiteral("macos"), separator, folder));
}

Translate InterfaceLanguage::texts()
{
    return [](const char* context, const char* text) {
        return QCoreApplication::translate(context, text).toStdString();
    };
}

}  // namespace fadeloom
