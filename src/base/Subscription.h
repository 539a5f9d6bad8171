// SPDX-License-Identifier: MIT
// A promise to be told of something, for as long as this object lives.
#pragma once

#include <functional>
#include <utility>

namespace fadeloom {

/// Ends what it stands for (a listener, a timer) when it is destroyed, assigned over, or reset.
/// Belongs to the thread that made it. After it has ended, the callback is not called again.
class [[nodiscard]] Subscription {
public:
    Subscription() = default;
    explicit Subscription(std::function<void()> end)
        : end_(std::move(end))
    {
    }
    Subscription(Subscription&& other) noexcept
        : end_(std::exchange(other.end_, nullptr))
    {
    }
    Subscription& operator=(Subscription&& other) noexcept
    {
        if (this != &other) {
            reset();
            end_ = std::exchange(other.end_, nullptr);
        }
        return *this;
    }
    ~Subscription() { reset(); }

    void reset()
    {
        if (auto end = std::exchange(end_, nullptr))
            end();
    }
    explicit operator bool() const { return static_cast<bool>(end_); }

private:
    std::function<void()> end_;
};

}  // namespace fadeloom
