// SPDX-License-Identifier: MIT
// A value together with the announcement that it was assigned.
//
//     Published<int> volume = 3;
//     const Subscription watch = volume.whenAssigned([&] { show(*volume); });
//     volume.assign(4);  // shows 4
//
// Its owner hands it out as const: whoever sees it may read and observe it, and only the owner assigns.
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

    /// A reference taken here is of no use once the value is assigned again.
    [[nodiscard]] const T& operator*() const { return value_; }
    [[nodiscard]] const T* operator->() const { return &value_; }

    /// Takes the new value, then tells the observers, also when it equals the old one.
    void assign(T value)
    {
        value_ = std::move(value);
        observers_.notify();
    }
    /// Assigns only a value that differs; says whether it did.
    bool assignIfDifferent(T value)
    {
        if (value == value_)
            return false;
        assign(std::move(value));
        return true;
    }
    /// Assigns and returns what was there before.
    T exchange(T value)
    {
        T old = std::exchange(value_, std::move(value));
        observers_.notify();
        return old;
    }
    /// Lets `change` work on the value in place, then tells the observers.
    template <typename Change>
    void modify(Change change)
    {
        change(value_);
        observers_.notify();
    }

    /// Has `callback` called after each assignment, until the subscription ends.
    [[nodiscard]] Subscription whenAssigned(std::function<void()> callback) const
    {
        return observers_.add(std::move(callback));
    }

private:
    T value_{};
    mutable Observers observers_;  // To observe a value is not to change it.
};

}  // namespace fadeloom
