// SPDX-License-Identifier: MIT
// The language of the interface, where the user wants another one than the system's.
//
// The choice is kept in the program's own preferences, under the key where the system's machinery looks for it as well.
// It takes effect at the next start.
#pragma once

#include <array>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace fadeloom {

class UserDefaults;
class Workspace;

/// Thread: main.
namespace AppLanguage {

struct Choice {
    std::string_view code;
    std::string_view ownName;  // As its speakers call it.
};
/// What the user chooses from. The first follows the system's preferred languages, and has no name of its own.
inline constexpr std::array choices = {Choice{"system", ""}, Choice{"en", "English"}, Choice{"pl", "Polski"}};

/// The choice for the next start. What is stored by other means, and is none of the choices, reads as "system".
[[nodiscard]] std::string current(const UserDefaults& defaults);
void set(UserDefaults& defaults, const std::string& code);
/// The languages to look for texts in at the start, best first, also those that are none of the choices; empty for the
/// system's.
[[nodiscard]] std::vector<std::string> preferred(const UserDefaults& defaults);
/// Starts the program anew: calls `terminate` once a new instance was asked for, whether it started or not.
void relaunch(Workspace& workspace, std::function<void()> terminate);

}  // namespace AppLanguage

}  // namespace fadeloom
