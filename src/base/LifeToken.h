// SPDX-License-Identifier: MIT
// Guards deferred callbacks into an object that may have been destroyed.
#pragma once

#include <memory>
#include <utility>

namespace fadeloom {

/// The last field of the object that is called back, so that the callbacks end before anything else is destroyed.
/// Guarded functions run on the thread that owns the object; they may be copied and destroyed on any.
class LifeToken {
public:
    LifeToken() = default;
    LifeToken(const LifeToken&) = delete;
    LifeToken& operator=(const LifeToken&) = delete;

    /// Wraps `function` so that it runs only while this token lives.
    template <typename Function>
    [[nodiscard]] auto whileAlive(Function function) const
    {
        return [isAlive = std::weak_ptr(life_), function = std::move(function)](auto&&... arguments) {
            if (!isAlive.expired())
                function(std::forward<decltype(arguments)>(arguments)...);
        };
    }

    /// Disables all guarded functions.
    void end() { life_.reset(); }

private:
    struct Life { };
    std::shared_ptr<Life> life_ = std::make_shared<Life>();
};

}  // namespace fadeloom
