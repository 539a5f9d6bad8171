// SPDX-License-Identifier: MIT
// The end of the user's session, before it comes.
#pragma once

#include <functional>
#include <memory>

namespace fadeloom {

/// Thread: main.
class PowerOffWatch {
public:
    /// `willEnd` is called when the user logs out or shuts down. What has to be done is done when it returns: the system
    /// may end the program at any moment afterwards.
    explicit PowerOffWatch(std::function<void()> willEnd);
    PowerOffWatch(const PowerOffWatch&) = delete;
    PowerOffWatch& operator=(const PowerOffWatch&) = delete;
    ~PowerOffWatch();

private:
    class Observation;

    const std::unique_ptr<Observation> observation_;
};

}  // namespace fadeloom
