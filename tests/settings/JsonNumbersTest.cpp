// SPDX-License-Identifier: MIT
#include "settings/JsonNumbers.h"

#include "tests/support/ForeignLocale.h"

#include <gtest/gtest.h>

#include <string>

namespace fadeloom {
namespace {

constexpr const char* largest = "3.4028235e38";

TEST(JsonNumbers, aNumberThatIsTooLargeBecomesTheMaximum)
{
    for (const std::string number : {"1e39", "1E+39", "3.5e38", "1e400", "1e99999999999999999999",
             "1000000000000000000000000000000000000000", "0.001e42"}) {
        EXPECT_EQ(withFiniteNumbers(number), largest) << number;
        EXPECT_EQ(withFiniteNumbers("[-" + number + ",1]"), std::string("[-") + largest + ",1]");
    }
    EXPECT_EQ(withFiniteNumbers(std::string(1'000'000, '9')), largest);
}

TEST(JsonNumbers, meanTheSameInEveryLocale)
{
    const ForeignLocale locale;

    EXPECT_EQ(withFiniteNumbers("[1.5e39, 1.5e38]"), std::string("[") + largest + ", 1.5e38]");
}

TEST(JsonNumbers, otherNumbersStay)
{
    for (const std::string number :
        {"0", "-0", "1", "12.50", "3.4028235e38", "1e38", "1e-400", "0e999", "1E2",
            "99999999999999999999999999999999999999", "0.00000000000000000000000000000000000000000000000001"})
        EXPECT_EQ(withFiniteNumbers(number), number);
}

TEST(JsonNumbers, nanStaysNaN)
{
    for (const std::string text :
        {"+1e400", "01e400", ".5e400", "5.e400", "1e400e1", "--1e400", "1e400.0", "-", "e400", "1e", "1e+"})
        EXPECT_EQ(withFiniteNumbers(text), text);
}

TEST(JsonNumbers, textsStay)
{
    for (const std::string text :
        {R"("1e400")", R"({"1e400": "a\"1e400\"\\"})", R"("open 1e400)", R"("\)", "\"", "", "\xFF 1e4"})
        EXPECT_EQ(withFiniteNumbers(text), text);
    EXPECT_EQ(withFiniteNumbers(R"(["\\",1e400])"), std::string(R"(["\\",)") + largest + "]");
}

}  // namespace
}  // namespace fadeloom
