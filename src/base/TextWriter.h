// SPDX-License-Identifier: MIT
// Output to a reader that may not read: a pipe, a terminal, a log.
//
// Writing to one of these can block. Here a separate thread blocks instead, and what does not fit in the buffer is
// dropped and counted.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace fadeloom {

/// Thread: any, except for the destructor.
class TextWriter {
public:
    /// Writes one text and may block indefinitely. It is called on a thread that may outlive the writer, so it must not
    /// refer to anything with a shorter lifetime.
    using Sink = std::function<void(std::string_view text)>;
    /// The text that reports how many were dropped.
    using Notice = std::function<std::string(std::uint64_t dropped)>;

    static constexpr std::size_t room = std::size_t{256} * 1024;  // Bytes that may be pending.
    // At the end, for a sink that makes no progress.
    static constexpr std::chrono::milliseconds timeout{300};

    TextWriter(Sink sink, Notice notice);
    /// Calls `close`.
    ~TextWriter();
    TextWriter(const TextWriter&) = delete;
    TextWriter& operator=(const TextWriter&) = delete;

    /// Queues the text after the previous ones. Never blocks.
    void write(std::string text);
    /// Blocks until everything is written, or the sink has made no progress for `timeout`. Returns false if something
    /// was left, which may still be written. Must not be written to afterwards.
    bool close();

private:
    struct State;

    const std::shared_ptr<State> state_;  // Shared with the thread, which may be blocked in the sink forever.
};

/// Writes to an open file; what it rejects is lost.
[[nodiscard]] TextWriter::Sink writeToDescriptor(int descriptor);

}  // namespace fadeloom
