// SPDX-License-Identifier: MIT
// The language of the interface, if the user prefers another one than the system's.
//
// The choice is stored in the program's preferences, under the key that the platform also uses. It takes effect at the
// next start.
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
    std::string_view ownName;  // In the language itself.
};
/// The user's options. The first follows the system's preferred languages, and has no name.
inline constexpr std::array choices = {Choice{"system", ""}, Choice{"en", "English"}, Choice{"pl", "Polski"}};

/// The choice for the next start. A value stored by other means that is none of the options reads as "system".
[[nodiscard]] std::string current(const UserDefaults& defaults);
void set(UserDefaults& defaults, const std::string& code);
/// The languages whose translations to look for at startup, in order of preference, including those that are no option;
/// empty for the system's.
[[nodiscard]] std::vector<std::string> preferred(const UserDefaults& defaults);
/// Restarts the program: calls `terminate` once a new instance was requested, whether it started or not.
void relaunch(Workspace& workspace, std::function<void()> terminate);

}  // namespace AppLanguage

}  // namespace fadeloom
