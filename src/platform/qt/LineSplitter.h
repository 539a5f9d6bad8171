// SPDX-License-Identifier: MIT
// Cuts a stream of bytes into lines, with a limit on what it keeps.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace fadeloom {

class LineSplitter {
public:
    /// A line without its end ("\n" or "\r\n"). One that is too long has no text: half a line says something else.
    struct Line {
        std::string text;
        bool isTooLong = false;

        friend bool operator==(const Line&, const Line&) = default;
    };

    /// `longest`: bytes of a line, without its end.
    explicit LineSplitter(std::size_t longest)
        : longest_(longest)
    {
    }

    /// The lines that these bytes complete.
    [[nodiscard]] std::vector<Line> feed(std::string_view bytes);
    /// What is left when the stream ends: one line, or none.
    [[nodiscard]] std::vector<Line> finish();

private:
    void keep(std::string_view bytes);
    [[nodiscard]] Line take();

    std::size_t longest_;
    std::string rest_;
    bool isTooLong_ = false;
};

}  // namespace fadeloom
