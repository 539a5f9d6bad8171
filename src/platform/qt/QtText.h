// SPDX-License-Identifier: MIT
// Letter case by the Unicode tables of Qt.
#pragma once

#include "platform/Text.h"

namespace fadeloom {

class QtText final : public Text {
public:
    std::string lowercased(std::string_view text) const override;
};

}  // namespace fadeloom
