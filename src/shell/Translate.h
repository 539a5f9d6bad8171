// SPDX-License-Identifier: MIT
// Translated texts of the interface.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace fadeloom {

/// Looks up a text by its context and its English form, which is the key. The string tables are extracted from the
/// sources: a call must be named `translate` and be given both as literals, or the text is not found.
using Translate = std::function<std::string(const char* context, const char* text)>;

/// The text with its first "%1" replaced by `value`.
[[nodiscard]] std::string withValue(std::string text, std::string_view value);

}  // namespace fadeloom
