// SPDX-License-Identifier: MIT
#include "platform/qtdesktop/QtDialogs.h"

#include "tests/platform/qtdesktop/OffscreenApplication.h"
#include "tests/support/TemporaryFolder.h"

#include <QAbstractButton>
#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <optional>
#include <string>
#include <vector>

namespace fadeloom {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class QtDialogsTest : public ::testing::Test {
protected:
    QtDialogsTest() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

    /// The open window of this kind; null if there is none.
    template <typename Window>
    static Window* open()
    {
        for (auto* const window : QApplication::topLevelWidgets())
            if (auto* const found = qobject_cast<Window*>(window); found != nullptr && found->isVisible())
                return found;
        return nullptr;
    }
    void ask(const Alert& alert)
    {
        dialogs->showAlert(alert, [this](std::size_t button) { answers.push_back(button); });
    }
    static void click(const char* button)
    {
        for (auto* const each : open<QMessageBox>()->buttons())
            if (each->text() == QString::fromUtf8(button))
                return each->click();
        FAIL() << "no button " << button;
    }
    void askForApplication()
    {
        dialogs->chooseApplication([this](const auto& bundleID) { chosen.push_back(bundleID); });
    }
    void choose(const std::string& fileName)
    {
        const auto file = folder.path() / fileName;
        std::ofstream{file} << "[Desktop Entry]\n";
        auto* const dialog = open<QFileDialog>();
        dialog->setNameFilter("*");
        dialog->setDirectory(QString::fromStdString(folder.path().string()));
        dialog->selectFile(QString::fromStdString(file.string()));
        QMetaObject::invokeMethod(dialog, "accept");
    }

    TemporaryFolder folder;
    OffscreenApplication offscreen;
    std::optional<QtDialogs> dialogs{std::in_place};
    std::vector<std::size_t> answers;
    std::vector<std::optional<std::string>> chosen;
    const Alert update{
        .title = "<b>2.0</b> is there", .text = "Get it & go.", .buttons = {"Download", "Later"}};
};

TEST_F(QtDialogsTest, aMessageShowsItsTextsAndWaits)
{
    ask(update);

    auto* const box = open<QMessageBox>();
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->text().toStdString(), "<b>2.0</b> is there");
    EXPECT_EQ(box->textFormat(), Qt::PlainText);
    EXPECT_EQ(box->informativeText().toStdString(), "Get it &amp; go.");
    EXPECT_FALSE(box->isModal());
    EXPECT_TRUE(box->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_THAT(answers, IsEmpty());
}

TEST_F(QtDialogsTest, itsFirstButtonIsTheDefault)
{
    ask(update);
    EXPECT_EQ(open<QMessageBox>()->defaultButton()->text().toStdString(), "Download");

    click("Download");

    EXPECT_THAT(answers, ElementsAre(0U));
    EXPECT_EQ(open<QMessageBox>(), nullptr);
}

TEST_F(QtDialogsTest, itsLastButtonIsTheLast)
{
    ask(update);

    click("Later");

    EXPECT_THAT(answers, ElementsAre(1U));
}

TEST_F(QtDialogsTest, closingItIsItsLastButton)
{
    ask({.title = "Three", .text = "", .buttons = {"One", "Two", "Three"}});

    open<QMessageBox>()->close();

    EXPECT_THAT(answers, ElementsAre(2U));
}

TEST_F(QtDialogsTest, withoutButtonsItHasTheSystemsOwn)
{
    ask({.title = "All is well", .text = ""});
    ASSERT_EQ(open<QMessageBox>()->buttons().size(), 1);

    open<QMessageBox>()->buttons().front()->click();

    EXPECT_THAT(answers, ElementsAre(0U));
}

TEST_F(QtDialogsTest, aSecondMessageTakesThePlaceOfTheFirst)
{
    ask(update);
    ask({.title = "Other", .text = "", .buttons = {"Good"}});

    EXPECT_THAT(answers, ElementsAre(1U));
    EXPECT_EQ(open<QMessageBox>()->text().toStdString(), "Other");
}

TEST_F(QtDialogsTest, anApplicationIsKnownByItsDesktopEntry)
{
    askForApplication();
    ASSERT_NE(open<QFileDialog>(), nullptr);
    EXPECT_THAT(chosen, IsEmpty());

    choose("org.example.Call.desktop");

    EXPECT_THAT(chosen, ElementsAre(std::optional<std::string>("org.example.Call")));
}

TEST_F(QtDialogsTest, aFileThatIsNotAnApplicationGivesNothing)
{
    askForApplication();

    choose("picture.png");

    EXPECT_THAT(chosen, ElementsAre(std::nullopt));
}

TEST_F(QtDialogsTest, cancellingGivesNothing)
{
    askForApplication();

    open<QFileDialog>()->reject();

    EXPECT_THAT(chosen, ElementsAre(std::nullopt));
}

TEST_F(QtDialogsTest, aSecondQuestionAnswersTheFirstWithNothing)
{
    askForApplication();
    askForApplication();

    EXPECT_THAT(chosen, ElementsAre(std::nullopt));
    choose("call.desktop");
    EXPECT_THAT(chosen, ElementsAre(std::nullopt, std::optional<std::string>("call")));
}

TEST_F(QtDialogsTest, theirDestructionIsNotAnAnswer)
{
    ask(update);
    askForApplication();

    dialogs.reset();

    EXPECT_EQ(open<QMessageBox>(), nullptr);
    EXPECT_EQ(open<QFileDialog>(), nullptr);
    EXPECT_THAT(answers, IsEmpty());
    EXPECT_THAT(chosen, IsEmpty());
}

}  // namespace
}  // namespace fadeloom
