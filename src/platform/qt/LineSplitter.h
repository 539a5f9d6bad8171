// SPDX-License-Identifier: MIT
// Splits a stream of bytes into lines, with bounded buffering.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace fadeloom {

class LineSplitter {
public:
    /// A line without its end ("\n" or "\r\n"). One that is too long has no text: half a line would have another
    /// meaning.
    struct Line {
        std::string text;
        bool isTooLong = false;

        friend bool operator==(const Line&, const Line&) = default;
    };

    /// `longest`: bytes per line, without its end.
    explicit LineSplitter(std::size_t longest)
        : longest_(longest)
    {
    }

    /// The lines completed by these bytes.
    [[nodiscard]] std::vector<Line> feed(std::string_view bytes);
    /// The remainder at the end of the stream: one line, or nullopt.
    [[nodiscard]] std::vector<Line> finish();

private:
    void keep(std::string_view bytes);
    [[nodiscard]] Line take();

    std::size_t longest_;
    std::string rest_;
    bool isTooLong_ = false;
};

}  // namespace fadeloom
