// SPDX-License-Identifier: MIT
// A value with change notification.
//
//     Published<int> volume = 3;
//     const Subscription watch = volume.whenAssigned([&] { show(*volume); });
//     volume.assign(4);  // shows 4
//
// Its owner exposes it as const: others may read and observe it, and only the owner assigns.
#pragma once

#include "base/Observers.h"

#include <functional>
#include <utility>

namespace fadeloom {

/// Thread: main.
template <typename T>
class Published {
public:
    Published() = default;
    Published(T value)
        : value_(std::move(value))
    {
    }

    /// The reference is invalidated by the next assignment.
    [[nodiscard]] const T& operator*() const { return value_; }
    [[nodiscard]] const T* operator->() const { return &value_; }

    /// Assigns the value and notifies the observers, even if it equals the old one.
    void assign(T value)
    {
        value_ = std::move(value);
        observers_.notify();
    }
    /// Assigns only if the value differs; returns whether it did.
    bool assignIfDifferent(T value)
    {
        if (value == value_)
            return false;
        assign(std::move(value));
        return true;
    }
    /// Assigns and returns the previous value.
    T exchange(T value)
    {
        T old = std::exchange(value_, std::move(value));
        observers_.notify();
        return old;
    }
    /// Modifies the value in place, then notifies the observers.
    template <typename Change>
    void modify(Change change)
    {
        change(value_);
        observers_.notify();
    }

    /// `callback` is called after each assignment, until the subscription ends.
    [[nodiscard]] Subscription whenAssigned(std::function<void()> callback) const
    {
        return observers_.add(std::move(callback));
    }

private:
    T value_{};
    mutable Observers observers_;  // Observing a const value is not a modification.
};

}  // namespace fadeloom
