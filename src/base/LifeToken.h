// SPDX-License-Identifier: MIT
// Calls made later on behalf of an object that may be gone by then.
#pragma once

#include <memory>
#include <utility>

namespace fadeloom {

/// A field of the object that is called back, its last one: the calls end before anything else of the object does.
/// The guarded calls run on the thread on which the object lives and ends; they may be copied and dropped on any.
class LifeToken {
public:
    LifeToken() = default;
    LifeToken(const LifeToken&) = delete;
    LifeToken& operator=(const LifeToken&) = delete;

    /// A function that does what `function` does while this token lives, and nothing afterwards.
    template <typename Function>
    [[nodiscard]] auto whileAlive(Function function) const
    {
        return [isAlive = std::weak_ptr(life_), function = std::move(function)](auto&&... arguments) {
            if (!isAlive.expired())
                function(std::forward<decltype(arguments)>(arguments)...);
        };
    }

    /// Ends every guarded call now.
    void end() { life_.reset(); }

private:
    struct Life { };
    std::shared_ptr<Life> life_ = std::make_shared<Life>();
};

}  // namespace fadeloom
