// SPDX-License-Identifier: MIT
// Notification before the user's session ends.
#pragma once

#include <functional>
#include <memory>

namespace fadeloom {

/// Thread: main.
class PowerOffWatch {
public:
    /// `willEnd` is called when the user logs out or shuts down. It must complete the shutdown before it returns: the
    /// system may terminate the program at any time afterwards.
    explicit PowerOffWatch(std::function<void()> willEnd);
    PowerOffWatch(const PowerOffWatch&) = delete;
    PowerOffWatch& operator=(const PowerOffWatch&) = delete;
    ~PowerOffWatch();

private:
    class Observation;

    const std::unique_ptr<Observation> observation_;
};

}  // namespace fadeloom
