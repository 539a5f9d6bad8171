// SPDX-License-Identifier: MIT
// Case folding and collation by Qt's Unicode tables.
#pragma once

#include "platform/Text.h"

#include <memory>

namespace fadeloom {

class QtText final : public Text {
public:
    QtText();
    ~QtText() override;
    QtText(const QtText&) = delete;
    QtText& operator=(const QtText&) = delete;

    std::string lowercased(std::string_view text) const override;
    std::string trimmed(std::string_view text) const override;
    bool equalIgnoringCase(std::string_view one, std::string_view other) const override;
    /// The language is that of Qt's default locale, which may change.
    std::weak_ordering compareLocalized(std::string_view one, std::string_view other) const override;

private:
    class Order;

    const std::unique_ptr<Order> order_;
};

}  // namespace fadeloom
