// SPDX-License-Identifier: MIT
// The platform contract for the audio system of macOS, on this Mac's CoreAudio.
//
//      coreaudioTests                  the contract and the questions
// coreaudioTests --play VOLUME    is a player for them
#include "app/macos/HomeMainLoop.h"
#include "tests/coreaudio/CoreAudioWorld.h"
#include "tests/coreaudio/SinePlayer.h"
#include "tests/platform/PlatformContract.h"

#include <QCoreApplication>

#include <cstdlib>
#include <iostream>
#include <string_view>

namespace fadeloom {

static std::unique_ptr<ContractWorld> makeCoreAudioWorld()
{
    return std::make_unique<CoreAudioWorld>();
}

INSTANTIATE_TEST_SUITE_P(CoreAudio, PlatformContract, ::testing::Values(&makeCoreAudioWorld));
INSTANTIATE_TEST_SUITE_P(CoreAudio, TapContract, ::testing::Values(&makeCoreAudioWorld));

/// Tests that cannot run on this Mac; each is reported.
static std::string leftOut()
{
    std::string tests;
    const auto leaveOut = [&](const char* pattern, const char* why) {
        std::cout << "left out " << pattern << ": " << why << std::endl;
        tests += (tests.empty() ? "-" : ":") + std::string(pattern);
    };
    leaveOut("*aMonoDevice*", "a device that is built around another one has as many channels as that");
    leaveOut("*aSurroundDevice*", "the same");
    if (!CoreAudioWorld::mayCapture())
        leaveOut("*TapContract*:*WithPermission*", "without the permission to capture, taps deliver silence");
    return tests;
}

}  // namespace fadeloom

int main(int argc, char** argv)
{
    using namespace fadeloom;
    if (argc == 3 && std::string_view(argv[1]) == "--play")
        return SinePlayer::play(std::strtof(argv[2], nullptr));
    if (!CoreAudioWorld::originalOutput()) {
        std::cout << "left out everything: this Mac has no output device" << std::endl;
        return 0;
    }
    CoreAudioWorld::program() = argv[0];
    prepareMainLoop();
    const QCoreApplication application{argc, argv};
    ::testing::InitGoogleTest(&argc, argv);
    if (GTEST_FLAG_GET(filter) == "*")
        GTEST_FLAG_SET(filter, leftOut());
    return RUN_ALL_TESTS();
}
