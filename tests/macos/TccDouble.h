// SPDX-License-Identifier: MIT
// A double of the privacy framework, as a separate library.
#pragma once

#include <functional>
#include <string>

namespace fadeloom {

struct TccDouble {
    int preflightAnswer = 0;
    std::string service{};  // The service of the last request.
    bool hadOptions = false;
    std::function<void(bool isGranted)> answer{};  // Completes the last request; works once.
};

}  // namespace fadeloom
