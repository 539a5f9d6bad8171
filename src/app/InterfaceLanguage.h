// SPDX-License-Identifier: MIT
// The language of the interface.
#pragma once

#include "shell/Translate.h"

#include <QTranslator>

#include <string>
#include <vector>

namespace fadeloom {

/// Holds for as long as it lives; made before the first text is shown. Needs a QCoreApplication.
class InterfaceLanguage {
public:
    /// `preferred`: codes as "pl" or "pl-PL", best first; none for the user's own language. The first that there are
    /// texts for is the interface's, and English without one.
    explicit InterfaceLanguage(const std::vector<std::string>& preferred);
    InterfaceLanguage(const InterfaceLanguage&) = delete;
    InterfaceLanguage& operator=(const InterfaceLanguage&) = delete;

    /// Texts for what knows nothing of Qt.
    [[nodiscard]] static Translate texts();

private:
    [[nodiscard]] bool load(const QLocale& locale);

    QTranslator translator_;
};

}  // namespace fadeloom
