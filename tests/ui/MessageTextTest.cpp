// SPDX-License-Identifier: MIT
// Every error that the panel can show, in both languages.
#include "ui/MessageText.h"
#include "tests/ui/PanelTest.h"

#include <QSet>

#include <set>
#include <string>
#include <vector>

namespace fadeloom {
namespace {

const FileError full{.step = FileError::Step::write,
    .file = "/disk/file",
    .reason = make_error_code(std::errc::no_space_on_device)};

/// One of each kind, with each possible reason.
std::vector<ControllerError> examples()
{
    return {BuiltInPresetName{"Rock"}, NothingToRecord{}, RecordingNotStarted{full},
        RecordingNotStarted{TapError{.step = "Create recording file", .status = 28}},
        RecordingNotWritten{"Player", "disk full"}, RecordingRateChanged{"Player"}, SettingsNotSaved{full},
        SettingsNotSaved{SettingsTooLarge{1000}}, SettingsNotRead{full}, LoginItemRefused{full},
        LoginItemRefused{ProgramUnknown{}}, LoginItemRefused{SystemMessage{"Nie wolno."}},
        OutputRefused{"Headphones"}};
}

std::vector<FileError> fileErrors()
{
    using Step = FileError::Step;
    std::vector<FileError> errors;
    for (const auto step : {Step::read, Step::follow, Step::replace, Step::createBeside, Step::write,
             Step::createFolder, Step::remove})
        errors.push_back({.step = step, .file = "/disk/file", .reason = full.reason});
    return errors;
}

QStringList allTexts()
{
    QStringList texts;
    for (const auto& error : examples())
        texts += messageText(error);
    for (const auto& error : fileErrors())
        texts += messageText(SettingsNotRead{error});
    return texts;
}

class MessageTextTest : public PanelTest { };

TEST_F(MessageTextTest, theExamplesCoverEveryKind)
{
    std::set<std::size_t> kinds;
    for (const auto& error : examples())
        kinds.insert(error.index());
    EXPECT_EQ(kinds.size(), std::variant_size_v<ControllerError>);

    std::set<std::string> steps;
    for (const auto& error : fileErrors())
        steps.insert(error.description());
    EXPECT_EQ(steps.size(), static_cast<std::size_t>(FileError::Step::remove) + 1);
}

TEST_F(MessageTextTest, everyErrorHasItsOwnTextInBothLanguages)
{
    const auto english = allTexts();
    const auto polish = speaking("pl");
    const auto translated = allTexts();

    ASSERT_EQ(english.size(), translated.size());
    for (qsizetype i = 0; i < english.size(); ++i) {
        EXPECT_NE(english[i], translated[i]);
        for (const auto& text : {english[i], translated[i]})
            EXPECT_FALSE(text.isEmpty() || text.contains('%')) << text.toStdString();
    }
    EXPECT_EQ(QSet<QString>(english.begin(), english.end()).size(), english.size() - 1)
        << "one file cannot be written twice among the examples";
}

TEST_F(MessageTextTest, aHeadlessRunSaysTheSameInEnglish)
{
    for (const auto& error : examples())
        EXPECT_EQ(messageText(error), QString::fromStdString(englishText(error)));
    for (const auto& error : fileErrors())
        EXPECT_EQ(
            messageText(SettingsNotRead{error}), QString::fromStdString(englishText(SettingsNotRead{error})));
}

/// The texts of an adapter without a translation.
template <typename Texts>
QStringList untranslated(const Texts& texts)
{
    QStringList missing;
    for (const auto text : texts) {
        const auto known = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
        if (QCoreApplication::translate("MessageText", text.data()) == known)
            missing += known;
    }
    return missing;
}

TEST_F(MessageTextTest, everyStepAndReasonOfAFailedTapIsTranslated)
{
    const TapError gone{.step = "Start device", .reason = "the device is gone"};
    const TapError refused{.step = "Create process tap", .status = -50};
    const TapError listening{.step = "Switch off the microphone",
        .reason = "the one of %1 would listen while apps play there",
        .detail = "Head%2set"};
    EXPECT_EQ(listening.description(),
        "Switch off the microphone failed: the one of Head%2set would listen while apps play there");
    EXPECT_EQ(messageText(listening).toStdString(), listening.description());
    EXPECT_EQ(messageText(gone).toStdString(), gone.description());
    EXPECT_EQ(messageText(refused).toStdString(), refused.description());

    const auto polish = speaking("pl");

    EXPECT_EQ(untranslated(tapSteps).join("; "), "");
    EXPECT_EQ(untranslated(tapReasons).join("; "), "");
    EXPECT_NE(messageText(gone).toStdString(), gone.description());
}

TEST_F(MessageTextTest, namesAreKeptVerbatim)
{
    EXPECT_EQ(messageText(OutputRefused{"100%1 %2"}), "Could not switch output to 100%1 %2.");
    EXPECT_EQ(messageText(RecordingNotWritten{"%2", "%1"}),
        "Recording of %2 stopped: the file could not be written (%1).");
}

}  // namespace
}  // namespace fadeloom
