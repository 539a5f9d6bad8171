// SPDX-License-Identifier: MIT
// Texts of the interface in the user's language.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace fadeloom {

/// Looks a text up by the context that it belongs to and its English form, which is its key. The string tables are filled
/// from the sources: a call has to be named `translate` and be given both as literals, or the text is not found there.
using Translate = std::function<std::string(const char* context, const char* text)>;

/// The text with `value` in the place of its first "%1".
[[nodiscard]] std::string withValue(std::string text, std::string_view value);

}  // namespace fadeloom
