// SPDX-License-Identifier: MIT
// Runs the command line client.
#pragma once

namespace fadeloom {

/// Replaces this process by fadeloomctl with the same arguments: the one beside this program, else from the search
/// path. Returns an exit status only if there is none. `arguments`: of the program, its name first.
[[nodiscard]] int execControl(char** arguments);

}  // namespace fadeloom
