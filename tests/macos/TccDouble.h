// SPDX-License-Identifier: MIT
// A double of the privacy framework, as a library of its own.
#pragma once

#include <functional>
#include <string>

namespace fadeloom {

struct TccDouble {
    int preflightAnswer = 0;
    std::string service{};  // That was asked for last.
    bool hadOptions = false;
    std::function<void(bool isGranted)> answer{};  // Of the last request; works once.
};

}  // namespace fadeloom
