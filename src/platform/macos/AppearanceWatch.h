// SPDX-License-Identifier: MIT
// Whether the system's appearance is dark or light.
#pragma once

#include <functional>
#include <memory>

namespace fadeloom {

/// Needs the application object. Thread: main.
class AppearanceWatch {
public:
    /// `changed` is called whenever the result may differ.
    explicit AppearanceWatch(std::function<void(bool isDark)> changed);
    AppearanceWatch(const AppearanceWatch&) = delete;
    AppearanceWatch& operator=(const AppearanceWatch&) = delete;
    ~AppearanceWatch();

    [[nodiscard]] bool isDark() const;

private:
    class Observation;

    const std::unique_ptr<Observation> observation_;
};

}  // namespace fadeloom
