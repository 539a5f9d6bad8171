// SPDX-License-Identifier: MIT
// Recordings that have ended but whose files are still open.
//
// A cycle that began before a recording was stopped may still write to its file. So a file is closed after a delay, and
// never before the app's renderers have released it, however long a cycle takes.
#pragma once

#include "base/Subscription.h"
#include "engine/Recording.h"
#include "engine/TapParameters.h"
#include "platform/MainLoop.h"

#include <chrono>
#include <functional>
#include <list>
#include <memory>
#include <string>

namespace fadeloom {

/// Thread: main.
class ClosingRecordings {
public:
    static constexpr std::chrono::milliseconds delay{500};

    /// Closes the recording; no renderer can reach its file any more.
    using Finish = std::function<void(const std::string& bundleID, Recording& recording)>;

    ClosingRecordings(MainLoop& mainLoop, Finish finish);
    ClosingRecordings(const ClosingRecordings&) = delete;
    ClosingRecordings& operator=(const ClosingRecordings&) = delete;

    /// `parameters`: the block through which renderers reached the file, which has been detached from it; null for
    /// none.
    void add(const std::string& bundleID, std::unique_ptr<Recording> recording,
        std::shared_ptr<TapParameters> parameters);
    /// Immediately closes all files that nobody can reach. The rest stays open.
    void closeNow();

private:
    struct Closing {
        std::string bundleID;
        std::unique_ptr<Recording> recording;
        std::shared_ptr<TapParameters> parameters;  // Shared with the renderers, which may outlive the app.
        Subscription timer;
    };
    using Place = std::list<Closing>::iterator;

    [[nodiscard]] static bool isReachable(const Closing& closing);
    void closeLater(Place place);

    MainLoop& mainLoop_;
    Finish finish_;
    std::list<Closing> closing_;
};

}  // namespace fadeloom
