// SPDX-License-Identifier: MIT
#include "ui/MessageText.h"
#include "tests/ui/PanelTest.h"

namespace fadeloom {
namespace {

class MessageTextTest : public PanelTest { };

TEST_F(MessageTextTest, messagesAreTranslatedAroundTheirNames)
{
    const auto polish = speaking("pl");

    EXPECT_EQ(messageText("“Rock” is a built-in preset name. Choose another name."),
        "„Rock” to nazwa wbudowanego ustawienia. Wybierz inną nazwę.");
    EXPECT_EQ(messageText("Recording of Player stopped: the file could not be written (disk full)."),
        "Nagrywanie aplikacji Player zostało zatrzymane: nie można zapisać pliku (disk full).");
    EXPECT_EQ(messageText("Settings could not be read, and changes will not be saved: Permission denied"),
        "Nie udało się odczytać ustawień, a zmiany nie zostaną zapisane: Permission denied");
}

TEST_F(MessageTextTest, anUnknownMessageIsShownAsItCame)
{
    const auto polish = speaking("pl");

    EXPECT_EQ(messageText("100%1 new"), "100%1 new");
}

}  // namespace
}  // namespace fadeloom
