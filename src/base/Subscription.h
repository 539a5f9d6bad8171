// SPDX-License-Identifier: MIT
// An RAII handle of a registered callback.
#pragma once

#include <functional>
#include <utility>

namespace fadeloom {

/// Ends the registration (a listener, a timer) when destroyed, assigned over, or reset. Belongs to the thread that
/// created it. Once it has ended, the callback is not called again.
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
