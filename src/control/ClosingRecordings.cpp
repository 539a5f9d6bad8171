// SPDX-License-Identifier: MIT
#include "control/ClosingRecordings.h"

#include <utility>

namespace fadeloom {

ClosingRecordings::ClosingRecordings(MainLoop& mainLoop, Finish finish)
    : mainLoop_(mainLoop)
    , finish_(std::move(finish))
{
}

void ClosingRecordings::add(const std::string& bundleID, std::unique_ptr<Recording> recording,
    std::shared_ptr<TapParameters> parameters)
{
    closeLater(closing_.insert(closing_.end(),
        {.bundleID = bundleID,
            .recording = std::move(recording),
            .parameters = std::move(parameters),
            .timer = {}}));
}

void ClosingRecordings::closeNow()
{
    for (auto place = closing_.begin(); place != closing_.end();) {
        if (isReachable(*place)) {
            ++place;
            continue;
        }
        finish_(place->bundleID, *place->recording);
        place = closing_.erase(place);
    }
}

bool ClosingRecordings::isReachable(const Closing& closing)
{
    return closing.parameters && !closing.parameters->recorder.letGo();
}

void ClosingRecordings::closeLater(Place place)
{
    place->timer = mainLoop_.after(delay, [this, place] {
        mainLoop_.requireCurrent();
        if (isReachable(*place)) {
            closeLater(place);
            return;
        }
        const auto ended = std::move(*place);
        closing_.erase(place);
        finish_(ended.bundleID, *ended.recording);
    });
}

}  // namespace fadeloom
