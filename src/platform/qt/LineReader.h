// SPDX-License-Identifier: MIT
// Reads lines from a file descriptor (usually standard input) without blocking the main loop.
#pragma once

#include "platform/qt/LineSplitter.h"

#include <cstddef>
#include <functional>
#include <memory>

namespace fadeloom {

/// Needs a running Qt event loop. Thread: main, for the reader and its callbacks, which may destroy it.
class LineReader {
public:
    static constexpr std::size_t longestLine = 4096;  // Bytes.

    /// Reads `descriptor`, which remains the caller's, to the end of file; then calls `ended` once. The descriptor's
    /// flags are not changed: others may share it.
    LineReader(
        int descriptor, std::function<void(const LineSplitter::Line&)> received, std::function<void()> ended);
    ~LineReader();
    LineReader(const LineReader&) = delete;
    LineReader& operator=(const LineReader&) = delete;

private:
    struct State;

    std::shared_ptr<State> state_;  // Kept alive during a callback that destroys the reader.
};

}  // namespace fadeloom
