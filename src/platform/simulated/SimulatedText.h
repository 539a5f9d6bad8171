// SPDX-License-Identifier: MIT
// Case folding and collation without a text library.
//
// Only handles the letters A to Z; every other byte is unchanged. A simulation with names in other scripts needs a real
// `Text`.
#pragma once

#include "platform/Text.h"

namespace fadeloom {

class SimulatedText final : public Text {
public:
    std::string lowercased(std::string_view text) const override
    {
        std::string lower{text};
        for (char& c : lower)
            if (c >= 'A' && c <= 'Z')
                c = static_cast<char>(c - 'A' + 'a');
        return lower;
    }
    std::string trimmed(std::string_view text) const override
    {
        constexpr std::string_view blanks = " \t\n\v\f\r";
        const auto first = text.find_first_not_of(blanks);
        return first == std::string_view::npos
            ? ""
            : std::string{text.substr(first, text.find_last_not_of(blanks) + 1 - first)};
    }
    bool equalIgnoringCase(std::string_view one, std::string_view other) const override
    {
        return lowercased(one) == lowercased(other);
    }
    std::weak_ordering compareLocalized(std::string_view one, std::string_view other) const override
    {
        return lowercased(one) <=> lowercased(other);
    }
};

}  // namespace fadeloom
