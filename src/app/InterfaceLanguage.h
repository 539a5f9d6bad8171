// SPDX-License-Identifier: MIT
// The language of the interface.
#pragma once

#include <QTranslator>

#include <string>

namespace fadeloom {

/// Holds for as long as it lives; made before the first text is shown. Needs a QCoreApplication.
class InterfaceLanguage {
public:
    /// `code`: "en", "pl", or "system" for the user's own. One that there are no texts for is English.
    explicit InterfaceLanguage(const std::string& code);
    InterfaceLanguage(const InterfaceLanguage&) = delete;
    InterfaceLanguage& operator=(const InterfaceLanguage&) = delete;

private:
    QTranslator translator_;
};

}  // namespace fadeloom
