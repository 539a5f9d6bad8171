// SPDX-License-Identifier: MIT
// The program that gives a running one commands.
#pragma once

namespace fadeloom {

/// Becomes fadeloomctl with the same words: the one beside this program, else the one of the search path. Returns an exit
/// status only when there is none. `arguments`: of the program, its name first.
[[nodiscard]] int becomeControl(char** arguments);

}  // namespace fadeloom
