// SPDX-License-Identifier: MIT
// A locale in which numbers look different, whichever locales the system has.
#pragma once

#include <locale>
#include <string>

namespace fadeloom {

/// While one lives, new streams write "1.234,5".
class ForeignLocale {
public:
    ForeignLocale() = default;
    ForeignLocale(const ForeignLocale&) = delete;
    ForeignLocale& operator=(const ForeignLocale&) = delete;
    ~ForeignLocale() { std::locale::global(former_); }

private:
    class Numbers final : public std::numpunct<char> {
        char do_decimal_point() const override { return ','; }
        char do_thousands_sep() const override { return '.'; }
        std::string do_grouping() const override { return "\3"; }
    };

    const std::locale former_ = std::locale::global(std::locale(std::locale::classic(), new Numbers));
};

}  // namespace fadeloom
