// SPDX-License-Identifier: MIT
#include "app/InterfaceLanguage.h"

#include "ui/PanelEngine.h"

#include <QCoreApplication>
#include <QLocale>

#include <gtest/gtest.h>

namespace fadeloom {
namespace {

class InterfaceLanguageTest : public testing::Test {
protected:
    InterfaceLanguageTest() { QLocale::setDefault(QLocale(QLocale::German)); }  // The user's language.

    static std::string later() { return InterfaceLanguage::texts()("UpdateChecker", "Later"); }
    static std::string about()
    {
        return InterfaceLanguage::texts()(
            "PlatformTexts", "Free per-app volume, output routing, equalizer and recording for macOS.");
    }

    int argumentCount = 1;
    char name[5] = "test";
    char* arguments[2] = {name, nullptr};
    QCoreApplication application{argumentCount, arguments};
    // Keeps the linker from dropping the string tables.
    void (*const resources)() = [] { static_cast<void>(PanelEngine{}); };
};

TEST_F(InterfaceLanguageTest, theSelectedLanguageIsUsed)
{
    const InterfaceLanguage language({"pl"});

    EXPECT_EQ(later(), "Później");
    EXPECT_EQ(QLocale().language(), QLocale::Polish);
}

TEST_F(InterfaceLanguageTest, macOSHasItsOwnWording)
{
    {
        const InterfaceLanguage language({"en"}, Wording::ofMacOS);
        EXPECT_EQ(about(), "Free per-app volume, output routing, equalizer and recording for macOS.");
    }
    const InterfaceLanguage language({"pl"}, Wording::ofMacOS);
    EXPECT_EQ(InterfaceLanguage::texts()("PlatformTexts", "Show in Finder"), "Pokaż w Finderze");
    EXPECT_EQ(later(), "Później");
}

TEST_F(InterfaceLanguageTest, aRegionIsIgnored)
{
    const InterfaceLanguage language({"pl-PL"});

    EXPECT_EQ(later(), "Później");
}

TEST_F(InterfaceLanguageTest, theFirstLanguageWithATranslationIsUsed)
{
    const InterfaceLanguage language({"de", "pl", "en"});

    EXPECT_EQ(later(), "Później");
}

TEST_F(InterfaceLanguageTest, aLanguageWithoutTextsIsEnglish)
{
    const InterfaceLanguage language({"fr"});

    EXPECT_EQ(about(), "Free per-app volume, output routing, equalizer and recording for Linux.");
    EXPECT_EQ(QLocale().language(), QLocale::French);  // For sorting names, and the like.
}

TEST_F(InterfaceLanguageTest, anInvalidLanguageChangesNothing)
{
    const InterfaceLanguage language({"", "nonsense", "C"});

    EXPECT_EQ(later(), "Later");
    EXPECT_EQ(QLocale().language(), QLocale::German);
}

TEST_F(InterfaceLanguageTest, withoutAChoiceItIsTheUsers)
{
    QLocale::setDefault(QLocale(QLocale::Polish));
    const InterfaceLanguage language({});

    EXPECT_EQ(later(), "Później");
}

TEST_F(InterfaceLanguageTest, anUnsupportedLanguageFallsBackToEnglish)
{
    const InterfaceLanguage language({});

    EXPECT_EQ(about(), "Free per-app volume, output routing, equalizer and recording for Linux.");
}

TEST_F(InterfaceLanguageTest, isActiveWhileItExists)
{
    {
        const InterfaceLanguage language({"pl"});
    }

    EXPECT_EQ(later(), "Later");
}

}  // namespace
}  // namespace fadeloom
