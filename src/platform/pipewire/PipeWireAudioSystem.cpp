// SPDX-License-Identifier: MIT
#include "platform/pipewire/PipeWireAudioSystem.h"

#include "base/Observers.h"
#include "platform/MainLoop.h"
#include "platform/pipewire/GraphSession.h"

#include <utility>

namespace fadeloom {

struct PipeWireAudioSystem::Announcements {
    Observers processes;
    Observers outputDevices;
    Observers defaultOutput;

    void notify(const AudioChanges& changes) const
    {
        if (changes.processes)
            processes.notify();
        if (changes.outputDevices)
            outputDevices.notify();
        if (changes.defaultOutput)
            defaultOutput.notify();
    }
};

/// One way through the graph, from its first link to its last.
class PipeWireAudioSystem::Tap final : public ProcessTap {
public:
    Tap(MainLoop& mainLoop, std::weak_ptr<GraphSession> session, TapPath& path, double sampleRate)
        : mainLoop_(mainLoop)
        , session_(std::move(session))
        , path_(path)
        , sampleRate_(sampleRate)
    {
    }
    Tap(const Tap&) = delete;
    Tap& operator=(const Tap&) = delete;
    ~Tap() override
    {
        if (const auto session = session_.lock())
            session->stopPath(path_);
        // Deferred: a rebuilt tap takes over the streams of the old one, which must not release them in between.
        mainLoop_.post([session = session_] {
            if (const auto alive = session.lock())
                alive->releaseStopped();
        });
    }

    [[nodiscard]] double sampleRate() const override { return sampleRate_; }
    [[nodiscard]] bool setProcesses(const std::vector<AudioProcessID>& processes) override
    {
        const auto session = session_.lock();
        if (session)
            session->setProcesses(path_, {processes.begin(), processes.end()});
        return session != nullptr;
    }

private:
    MainLoop& mainLoop_;
    const std::weak_ptr<GraphSession> session_;
    TapPath& path_;
    const double sampleRate_;
};

PipeWireAudioSystem::PipeWireAudioSystem(MainLoop& mainLoop, Options options)
    : mainLoop_(mainLoop)
    , options_(std::move(options))
    , announcements_(std::make_shared<Announcements>())
{
    const std::weak_ptr announcements = announcements_;
    session_ = std::make_shared<GraphSession>(GraphSession::Callbacks{
        .changed =
            [this, announcements](const AudioChanges& changes) {
                mainLoop_.post([announcements, changes] {
                    if (const auto alive = announcements.lock())
                        alive->notify(changes);
                });
            },
        .report =
            [this, announcements](SystemLog::Level level, std::string text) {
                mainLoop_.post([this, announcements, level, text = std::move(text)] {
                    if (!announcements.expired() && options_.report)
                        options_.report(level, text);
                });
            },
        .application = options_.newBundleIdentifier,
        .ownClient =
            [this](std::uint64_t client) {
                if (options_.ownClient)
                    options_.ownClient(client);
            },
    });
}

PipeWireAudioSystem::~PipeWireAudioSystem()
{
    session_.reset();
}

std::vector<AudioProcess> PipeWireAudioSystem::processes(ReadMic readMic)
{
    const auto world = session_->world();
    std::vector<AudioProcess> processes;
    processes.reserve(world->processes.size());
    for (const auto& process : world->processes) {
        const auto& identity = identityOf(process);
        processes.push_back({
            .id = process.id,
            .pid = identity.pid,
            .bundleID = identity.bundleID,
            .isPlaying = process.isPlaying,
            .isUsingMic = readMic == ReadMic::yes && process.isUsingMicrophone,
            .ownOutputs = {process.ownOutputs.begin(), process.ownOutputs.end()},
            .outOfReach = process.outOfReach,
        });
    }
    if (identities_.size() > world->processes.size())
        forgetEnded(*world);
    return processes;
}

const PipeWireAudioSystem::Identity& PipeWireAudioSystem::identityOf(const AudioWorld::Process& process)
{
    const auto [entry, isNew] = identities_.try_emplace(process.id);
    if (isNew) {
        auto& identity = entry->second;
        identity.pid = process.pid;
        // A sandboxed client of pipewire-pulse knows only its pid inside the sandbox.
        if (process.pid < 0 && !process.portalAppID.empty() && options_.portalProcess)
            identity.pid = options_.portalProcess(process.portalAppID);
        identity.bundleID = options_.bundleIdentifier(identity.pid, process.portalAppID);
    }
    return entry->second;
}

void PipeWireAudioSystem::forgetEnded(const AudioWorld& world)
{
    std::erase_if(identities_, [&](const auto& entry) { return world.process(entry.first) == nullptr; });
}

Subscription PipeWireAudioSystem::whenProcessesChange(Listener listener)
{
    return announcements_->processes.add(std::move(listener));
}

std::vector<OutputDevice> PipeWireAudioSystem::outputDevices() const
{
    std::vector<OutputDevice> devices;
    for (const auto& device : session_->world()->devices)
        devices.push_back({.id = device.id, .uid = device.uid, .name = device.name});
    return devices;
}

Subscription PipeWireAudioSystem::whenOutputDevicesChange(Listener listener)
{
    return announcements_->outputDevices.add(std::move(listener));
}

double PipeWireAudioSystem::sampleRate(OutputDeviceID device) const
{
    const auto world = session_->world();
    const auto* known = world->device(device);
    return known ? session_->rateOf(*known) : 0;
}

HostTime PipeWireAudioSystem::hostTime() const
{
    // The server uses the same clock, which is also that of std::chrono::steady_clock.
    return std::chrono::steady_clock::now().time_since_epoch();
}

std::optional<std::string> PipeWireAudioSystem::defaultOutput() const
{
    const auto world = session_->world();
    const auto* device = world->device(world->defaultDevice);
    return device ? std::optional(device->uid) : std::nullopt;
}

Subscription PipeWireAudioSystem::whenDefaultOutputChanges(Listener listener)
{
    return announcements_->defaultOutput.add(std::move(listener));
}

bool PipeWireAudioSystem::setDefaultOutput(const OutputDevice& device)
{
    return session_->world()->device(device.id) && session_->setDefaultDevice(device.uid);
}

void PipeWireAudioSystem::holdStreamsOf(const std::set<std::string>& bundleIDs)
{
    session_->holdStreamsOf(bundleIDs);
}

std::expected<std::unique_ptr<ProcessTap>, TapError> PipeWireAudioSystem::createTap(
    const TapRequest& request, const AudioIOProcFactory& makeIOProc)
{
    const auto failed = [](TapReason reason, std::string detail = {}) {
        return std::unexpected(
            TapError{.step = "Start device", .reason = reason, .detail = std::move(detail)});
    };
    if (!session_->isConnected())
        return failed("no PipeWire server is running");
    const auto world = session_->world();
    const auto* device = world->device(request.output.id);
    if (!device)
        return failed("the device is gone");
    const TapFormat format{
        .sampleRate = session_->rateOf(*device),
        .output = {.left = device->layout.left, .right = device->layout.right},
        .tapBufferCount = 2,
        .isTapInterleaved = false,
    };
    // Before the server sends anything: descriptors beyond the limit are lost, and with them the connection.
    if (const auto limit = descriptorBudget_.limitWithoutRoom(session_->pathCount()))
        return failed("of %1 files that may be open, too few are left", std::to_string(*limit));
    auto* path =
        session_->startPath({request.processes.begin(), request.processes.end()}, *device, makeIOProc(format),
            request.scope == TapScope::everyStream ? StreamScope::every : StreamScope::ofTheDevice);
    if (!path)
        return failed("PipeWire made no node for it");
    return std::make_unique<Tap>(mainLoop_, session_, *path, format.sampleRate);
}

}  // namespace fadeloom
