// SPDX-License-Identifier: MIT
// Texts for somebody who may not read them: a pipe, a terminal, a log.
//
// Whoever writes to one of these waits until the other side has taken enough. Here a thread waits, and what finds no
// more room is dropped and counted.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace fadeloom {

/// Thread: any, the destructor's aside.
class TextWriter {
public:
    /// Writes one text and may wait for as long as it likes. It is called on a thread that may go on when the writer is
    /// gone, so it refers to nothing that ends with it.
    using Sink = std::function<void(std::string_view text)>;
    /// The text that is written where so many were dropped.
    using Notice = std::function<std::string(std::uint64_t dropped)>;

    static constexpr std::size_t room = std::size_t{256} * 1024;  // Bytes that may wait.
    static constexpr std::chrono::milliseconds patience{300};  // At the end, with a sink that takes nothing.

    TextWriter(Sink sink, Notice notice);
    /// As `close`.
    ~TextWriter();
    TextWriter(const TextWriter&) = delete;
    TextWriter& operator=(const TextWriter&) = delete;

    /// Has the text written after those before it. Waits for nothing.
    void write(std::string text);
    /// Waits until everything is written, or until the sink has taken nothing for `patience`. False when something was
    /// left, which may still be written or not. Nothing may be written afterwards.
    bool close();

private:
    struct State;

    const std::shared_ptr<State> state_;  // Shared with the thread, which may be stuck in the sink for ever.
};

/// Writes to an open file; what it refuses is lost.
[[nodiscard]] TextWriter::Sink writeToDescriptor(int descriptor);

}  // namespace fadeloom
