// SPDX-License-Identifier: MIT
// What only a text library knows: letter case and order, in every script. Texts are UTF-8.
#pragma once

#include <compare>
#include <string>
#include <string_view>

namespace fadeloom {

/// Thread: main.
class Text {
public:
    virtual ~Text() = default;

    // Bytes that are not UTF-8 become replacement characters.

    /// Lower case by Unicode's rules, whatever the language of the interface.
    [[nodiscard]] virtual std::string lowercased(std::string_view text) const = 0;
    /// Without the white space and line breaks at either end.
    [[nodiscard]] virtual std::string trimmed(std::string_view text) const = 0;
    /// Whether the texts are the same but for letter case, by Unicode's case folding: "Straße" and "STRASSE" are.
    [[nodiscard]] virtual bool equalIgnoringCase(std::string_view one, std::string_view other) const = 0;
    /// The order of the user's language, without regard to letter case.
    [[nodiscard]] virtual std::weak_ordering compareLocalized(
        std::string_view one, std::string_view other) const = 0;
};

}  // namespace fadeloom
