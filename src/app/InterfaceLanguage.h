// SPDX-License-Identifier: MIT
// The language of the interface.
#pragma once

#include "shell/Translate.h"

#include <QTranslator>

#include <string>
#include <vector>

namespace fadeloom {

/// The system whose words the texts use where they name something of it.
enum class Wording { ofLinux, ofMacOS };
#ifdef __APPLE__
constexpr auto homeWording = Wording::ofMacOS;
#else
constexpr auto homeWording = Wording::ofLinux;
#endif

/// Holds for as long as it lives; made before the first text is shown. Needs a QCoreApplication.
class InterfaceLanguage {
public:
    /// `preferred`: codes as "pl" or "pl-PL", best first; none for the user's own language. The first that there are
    /// texts for is the interface's, and English without one.
    explicit InterfaceLanguage(const std::vector<std::string>& preferred, Wording wording = homeWording);
    InterfaceLanguage(const InterfaceLanguage&) = delete;
    InterfaceLanguage& operator=(const InterfaceLanguage&) = delete;

    /// Texts for what knows nothing of Qt.
    [[nodiscard]] static Translate texts();

private:
    [[nodiscard]] bool load(const QLocale& locale);

    const Wording wording_;
    QTranslator texts_;
    QTranslator macOSTexts_;
};

}  // namespace fadeloom
