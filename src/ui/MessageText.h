// SPDX-License-Identifier: MIT
// The controller's messages in the user's language.
//
// The controller knows no language: its messages are English sentences around a name or a reason. They are known again
// by their fixed parts; one that is not known is shown as it came.
#pragma once

#include <QString>

#include <string>

namespace fadeloom {

[[nodiscard]] QString messageText(const std::string& message);

}  // namespace fadeloom
