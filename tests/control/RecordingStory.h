// SPDX-License-Identifier: MIT
// The fixture of stories about recordings.
#pragma once

#include "tests/control/ControllerStory.h"

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

namespace fadeloom {

class RecordingStory : public ControllerStory {
protected:
    RecordingStory() { start(); }

    void record(const std::string& bundleID) { controller->startRecording(bundleID); }
    void stop(const std::string& bundleID) { controller->stopRecording(bundleID); }
    bool isRecorded(const std::string& bundleID) { return state().recordings->contains(bundleID); }
    std::vector<std::filesystem::path> files() { return world.audioFiles().locations(); }
    const SimulatedAudioContent& lastFile() { return *world.audioFiles().at(**state().lastRecording); }
    long closings()
    {
        return std::ranges::count_if(world.audioFiles().journal(),
            [](const std::string& call) { return call.starts_with("dispose"); });
    }

    const std::string player = "com.example.player";
};

}  // namespace fadeloom
