// SPDX-License-Identifier: MIT
// The verbs that are more than a line and its answer.
#pragma once

#include "ctl/Client.h"
#include "ctl/Options.h"
#include "ctl/Status.h"

#include <span>
#include <string>

namespace fadeloom::ctl {

using Words = std::span<const std::string>;

/// Prints the answer to a command in the form that the options ask for.
Status printAnswer(Client& client, Words words, const Options& options);
/// Commands from standard input, one a line.
Status runLines(Client& client, const Options& options);
/// What happens, line by line; where a wait is asked for, of the next Fadeloom as well.
Status watch(Client& client, Words words, const Options& options);
/// All settings, to standard output or into a file.
Status exportSettings(Client& client, Words words);
/// All settings, from a file or, with "-", from standard input.
Status restoreSettings(Client& client, Words words, const Options& options);
/// What may follow the words: one a line, with a tab and what it is.
Status complete(Client& client, Words words);

}  // namespace fadeloom::ctl
