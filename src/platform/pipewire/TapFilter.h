// SPDX-License-Identifier: MIT
// The node of one tap in the graph: two inputs, and the output device's stereo pair as outputs.
//
// It runs in the same graph cycle as the application and the device, so it adds no latency. It has no media class:
// session managers and volume mixers ignore it.
#pragma once

#include "platform/ProcessTap.h"
#include "platform/pipewire/GraphRules.h"

#include <array>
#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

struct pw_core;
struct pw_filter;
struct spa_hook;
struct spa_io_position;

namespace fadeloom {

/// Thread: the graph thread or one that holds its lock, unless stated otherwise.
class TapFilter {
public:
    /// `layout`: the channels of the output device. Connects immediately; the node appears a little later. `changed` is
    /// called when the node's state has advanced. On failure `isConnected` is false.
    TapFilter(pw_core* core, const std::string& name, const DeviceLayout& layout,
        std::shared_ptr<AudioIOProc> proc, std::function<void()> changed);
    ~TapFilter();
    TapFilter(const TapFilter&) = delete;
    TapFilter& operator=(const TapFilter&) = delete;

    [[nodiscard]] bool isConnected() const { return filter_ != nullptr; }
    /// The node's id once the server has assigned one.
    [[nodiscard]] std::optional<GraphID> nodeID() const;
    /// The number of outputs: 2, or 1 for a mono device. Output 0 plays `layout.left`, output 1 `layout.right`.
    [[nodiscard]] int outputCount() const { return outputCount_; }

    /// A closed gate outputs silence: the tap must not be audible while its application still is directly.
    void setGateOpen(bool isOpen) { isGateOpen_.store(isOpen, std::memory_order_relaxed); }
    /// Stops calling the procedure. When this returns it is not running. Thread: any; blocks for one cycle at most.
    void stopRendering();
    /// After `stopRendering`: passes the input through, while the application is released to its own output.
    void passThrough() { isPassingThrough_.store(true, std::memory_order_relaxed); }

    /// The rate of the last cycle in hertz; 0 before the first one. Thread: any.
    [[nodiscard]] double rate() const { return rate_.load(std::memory_order_relaxed); }

private:
    static constexpr std::size_t maximumChannels = 64;
    static constexpr std::uint32_t maximumFrames = 8192;  // The server's own limit per cycle.

    using Sides = std::array<float*, 2>;  // Left and right; null if not linked.

    static void onProcess(void* self, spa_io_position* position);
    void process(const spa_io_position& position) noexcept FADELOOM_NONBLOCKING;
    void renderThrough(AudioIOProc& proc, const CycleTime& time, const Sides& inputs, const Sides& outputs,
        std::uint32_t frames) noexcept FADELOOM_NONBLOCKING;
    void playThrough(
        const Sides& inputs, const Sides& outputs, std::uint32_t frames) const noexcept FADELOOM_NONBLOCKING;
    bool connect(pw_core* core, const std::string& name);

    DeviceLayout layout_;
    int outputCount_;
    std::function<void()> changed_;
    pw_filter* filter_ = nullptr;
    std::unique_ptr<spa_hook> listener_;
    std::array<void*, 2> inputPorts_{};
    std::array<void*, 2> outputPorts_{};
    std::array<AudioBuffer, maximumChannels> outputBuffers_{};
    std::array<float, maximumFrames> silence_{};

    const std::shared_ptr<AudioIOProc> sharedProc_;  // Kept alive while a cycle may reach it.
    // Shared with the IO thread. `proc_` and `isInCycle_` are sequentially consistent as a pair: either the IO thread
    // sees that the procedure is gone, or `stopRendering` sees that a cycle is in progress and waits for its end. The
    // others are independent words that guard nothing: relaxed, and visible in the next cycle.
    std::atomic<AudioIOProc*> proc_;
    std::atomic<bool> isInCycle_ = false;
    std::atomic<bool> isGateOpen_ = false;
    std::atomic<bool> isPassingThrough_ = false;
    std::atomic<double> rate_ = 0;
};

}  // namespace fadeloom
