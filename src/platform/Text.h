// SPDX-License-Identifier: MIT
// What only a text library knows: letter case and order, in every script. Texts are UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace fadeloom {

/// Thread: main.
class Text {
public:
    virtual ~Text() = default;

    /// Lower case by Unicode's rules, whatever the language of the interface. Bytes that are not UTF-8 become
    /// replacement characters.
    [[nodiscard]] virtual std::string lowercased(std::string_view text) const = 0;
};

}  // namespace fadeloom
