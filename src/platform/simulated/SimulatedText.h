// SPDX-License-Identifier: MIT
// Letter case without a text library.
//
// Only the letters A to Z change; every other byte stays as it is. A world whose applications have names in other
// scripts is built on a real `Text` instead.
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
};

}  // namespace fadeloom
