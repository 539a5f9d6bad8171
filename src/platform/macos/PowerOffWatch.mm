// SPDX-License-Identifier: MIT
#include "platform/macos/PowerOffWatch.h"

#import <AppKit/AppKit.h>

#include <utility>

namespace fadeloom {

class PowerOffWatch::Observation {
public:
    explicit Observation(std::function<void()> willEnd)
        : observer_([NSWorkspace.sharedWorkspace.notificationCenter
              addObserverForName:NSWorkspaceWillPowerOffNotification
                          object:nil
                           queue:nil
                      usingBlock:^(NSNotification*) { willEnd(); }])
    {
    }
    Observation(const Observation&) = delete;
    Observation& operator=(const Observation&) = delete;
    ~Observation() { [NSWorkspace.sharedWorkspace.notificationCenter removeObserver:observer_]; }

private:
    const id observer_;
};

PowerOffWatch::PowerOffWatch(std::function<void()> willEnd)
    : observation_(std::make_unique<Observation>(std::move(willEnd)))
{
}

PowerOffWatch::~PowerOffWatch() = default;

}  // namespace fadeloom
