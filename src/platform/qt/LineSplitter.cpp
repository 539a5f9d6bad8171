// SPDX-License-Identifier: MIT
#include "platform/qt/LineSplitter.h"

#include <utility>

namespace fadeloom {

std::vector<LineSplitter::Line> LineSplitter::feed(std::string_view bytes)
{
    std::vector<Line> lines;
    for (auto end = bytes.find('\n'); end != std::string_view::npos; end = bytes.find('\n')) {
        keep(bytes.substr(0, end));
        lines.push_back(take());
        bytes.remove_prefix(end + 1);
    }
    keep(bytes);
    return lines;
}

std::vector<LineSplitter::Line> LineSplitter::finish()
{
    if (rest_.empty() && !isTooLong_)
        return {};
    return {take()};
}

void LineSplitter::keep(std::string_view bytes)
{
    // One byte more than the longest line, for a "\r" that may be part of the line end.
    isTooLong_ = isTooLong_ || rest_.size() + bytes.size() > longest_ + 1;
    if (isTooLong_)
        rest_.clear();
    else
        rest_ += bytes;
}

LineSplitter::Line LineSplitter::take()
{
    std::string text = std::exchange(rest_, {});
    bool isTooLong = std::exchange(isTooLong_, false);
    if (text.ends_with('\r'))
        text.pop_back();
    isTooLong = isTooLong || text.size() > longest_;
    return isTooLong ? Line{{}, true} : Line{std::move(text), false};
}

}  // namespace fadeloom
