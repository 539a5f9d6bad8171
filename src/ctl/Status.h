// SPDX-License-Identifier: MIT
// Exit statuses of fadeloomctl. Documented in docs/control.md and fadeloomctl(1).
#pragma once

namespace fadeloom::ctl {

enum Status {
    done = 0,
    refused = 1,
    usage = 2,
    notRunning = 4,
    unknownName = 5,
    denied = 6,
    noAnswer = 7,
};

}  // namespace fadeloom::ctl
