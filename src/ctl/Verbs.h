// SPDX-License-Identifier: MIT
// The verbs that take more than one line and its reply.
#pragma once

#include "ctl/Client.h"
#include "ctl/Options.h"
#include "ctl/Status.h"

#include <span>
#include <string>

namespace fadeloom::ctl {

using Words = std::span<const std::string>;

/// Prints the reply to a command in the format selected by the options.
Status printAnswer(Client& client, Words words, const Options& options);
/// Commands from standard input, one per line.
Status runLines(Client& client, const Options& options);
/// Events, line by line; with --wait also those of the next instance.
Status watch(Client& client, Words words, const Options& options);
/// Writes all settings to standard output or a file.
Status exportSettings(Client& client, Words words);
/// Restores all settings from a file or, with "-", from standard input.
Status restoreSettings(Client& client, Words words, const Options& options);
/// Completions for the words: one per line, with a tab and a description.
Status complete(Client& client, Words words);

}  // namespace fadeloom::ctl
