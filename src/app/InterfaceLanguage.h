// SPDX-License-Identifier: MIT
// The language of the interface.
#pragma once

#include "shell/Translate.h"

#include <QTranslator>

#include <string>
#include <vector>

namespace fadeloom {

/// The platform whose wording the texts use.
enum class Wording { ofLinux, ofMacOS };
#ifdef __APPLE__
constexpr auto homeWording = Wording::ofMacOS;
#else
constexpr auto homeWording = Wording::ofLinux;
#endif

/// Active while it exists; create it before showing any text. Needs a QCoreApplication.
class InterfaceLanguage {
public:
    /// `preferred`: codes such as "pl" or "pl-PL", in order of preference; empty for the user's language. The first one
    /// with a translation is used, otherwise English.
    explicit InterfaceLanguage(const std::vector<std::string>& preferred, Wording wording = homeWording);
    InterfaceLanguage(const InterfaceLanguage&) = delete;
    InterfaceLanguage& operator=(const InterfaceLanguage&) = delete;

    /// Texts for code that does not use Qt.
    [[nodiscard]] static Translate texts();

private:
    [[nodiscard]] bool load(const QLocale& locale);

    const Wording wording_;
    QTranslator texts_;
    QTranslator macOSTexts_;
};

}  // namespace fadeloom
