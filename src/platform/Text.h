// SPDX-License-Identifier: MIT
// Case folding and collation for all scripts. Texts are UTF-8.
#pragma once

#include <compare>
#include <string>
#include <string_view>

namespace fadeloom {

/// Thread: main.
class Text {
public:
    virtual ~Text() = default;

    // Invalid UTF-8 becomes replacement characters.

    /// Lower case by Unicode's rules, independent of the interface language.
    [[nodiscard]] virtual std::string lowercased(std::string_view text) const = 0;
    /// Without leading and trailing white space and line breaks.
    [[nodiscard]] virtual std::string trimmed(std::string_view text) const = 0;
    /// Case-insensitive equality by Unicode's case folding: "Straße" equals "STRASSE".
    [[nodiscard]] virtual bool equalIgnoringCase(std::string_view one, std::string_view other) const = 0;
    /// The user's collation order, ignoring case.
    [[nodiscard]] virtual std::weak_ordering compareLocalized(
        std::string_view one, std::string_view other) const = 0;
};

}  // namespace fadeloom
