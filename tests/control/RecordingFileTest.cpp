// SPDX-License-Identifier: MIT
#include "control/RecordingFile.h"

#include "platform/simulated/SimulatedFolders.h"
#include "tests/support/ForeignLocale.h"

#include <gtest/gtest.h>

namespace fadeloom {
namespace {

using namespace std::chrono_literals;
using std::chrono::local_days;

const LocalTime afternoon = local_days{2025y / 3 / 2} + 14h + 5min + 9s;

TEST(RecordingFileName, isTheAppAndTheTime)
{
    EXPECT_EQ(recordingFileName("Player", afternoon), "Player 2025-03-02 14.05.09.wav");
}

TEST(RecordingFileName, isTheSameInEveryLocale)
{
    const ForeignLocale locale;

    EXPECT_EQ(recordingFileName("Player", afternoon), "Player 2025-03-02 14.05.09.wav");
}

TEST(RecordingFileName, hasNoPathSeparators)
{
    EXPECT_EQ(recordingFileName("AC/DC: Live", afternoon), "AC-DC- Live 2025-03-02 14.05.09.wav");
    EXPECT_EQ(recordingFileName("../../etc/x", afternoon), "..-..-etc-x 2025-03-02 14.05.09.wav");
}

TEST(RecordingFileName, keepsEveryOtherCharacter)
{
    EXPECT_EQ(recordingFileName("Zażółć 音楽 🎵", afternoon), "Zażółć 音楽 🎵 2025-03-02 14.05.09.wav");
    EXPECT_EQ(recordingFileName("", afternoon), " 2025-03-02 14.05.09.wav");
}

TEST(RecordingFileName, padsEveryNumber)
{
    const LocalTime midnight = local_days{987y / 1 / 2};

    EXPECT_EQ(recordingFileName("Player", midnight), "Player 0987-01-02 00.00.00.wav");
}

TEST(RecordingFileName, distinguishesRecordingsOfTheSameSecond)
{
    EXPECT_EQ(recordingFileName("Player", afternoon, 2), "Player 2025-03-02 14.05.09 2.wav");
}

TEST(RecordingsFolder, isOneOfOursAmongTheMusicUnlessTheUserChose)
{
    const SimulatedFolders folders("/home");
    SettingsData settings;
    EXPECT_EQ(recordingsFolder(settings, folders), folders.music() / "Fadeloom Recordings");

    settings.recordingsFolder = "/elsewhere/my tapes";
    EXPECT_EQ(recordingsFolder(settings, folders), "/elsewhere/my tapes");
}

}  // namespace
}  // namespace fadeloom
