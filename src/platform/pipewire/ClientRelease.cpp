// SPDX-License-Identifier: MIT
#include "platform/pipewire/ClientRelease.h"

#include "platform/pipewire/GraphBinding.h"

#include <pipewire/context.h>
#include <pipewire/core.h>
#include <pipewire/keys.h>
#include <pipewire/main-loop.h>
#include <pipewire/pipewire.h>

#include <cstring>

namespace fadeloom {
namespace {

struct ReleaseRun {
    const std::uint64_t client;
    const pid_t process;
    pw_main_loop* loop = nullptr;
    pw_core* core = nullptr;
    pw_registry* registry = nullptr;
    int lastSync = 0;

    void sync() { lastSync = pw_core_sync(core, PW_ID_CORE, 0); }

    static void onGlobal(void* self, std::uint32_t id, std::uint32_t, const char* type, std::uint32_t,
        const spa_dict* dictionary)
    {
        auto& run = *static_cast<ReleaseRun*>(self);
        if (std::strcmp(type, PW_TYPE_INTERFACE_Client) != 0)
            return;
        const auto properties = propertiesFrom(dictionary);
        const auto serial = static_cast<GraphSerial>(numberOf(properties, PW_KEY_OBJECT_SERIAL).value_or(0));
        const auto owner = numberOf(properties, PW_KEY_SEC_PID);
        if (clientWord(id, serial) != run.client || (owner && *owner != run.process))
            return;
        pw_registry_destroy(run.registry, id);
        run.sync();  // Until the server has processed that.
    }
    static void onDone(void* self, std::uint32_t id, int sequence)
    {
        const auto& run = *static_cast<ReleaseRun*>(self);
        if (id == PW_ID_CORE && sequence == run.lastSync)
            pw_main_loop_quit(run.loop);
    }
    static void onError(void* self, std::uint32_t id, int, int result, const char*)
    {
        if (id == PW_ID_CORE && result == -EPIPE)
            pw_main_loop_quit(static_cast<const ReleaseRun*>(self)->loop);
    }
};

}  // namespace

void releaseClient(std::uint64_t client, pid_t process)
{
    pw_init(nullptr, nullptr);
    ReleaseRun run{.client = client, .process = process};
    run.loop = pw_main_loop_new(nullptr);
    auto* const context = pw_context_new(pw_main_loop_get_loop(run.loop), nullptr, 0);
    run.core = pw_context_connect(context, nullptr, 0);
    if (!run.core)
        return;  // Then the server holds nothing either.

    static constexpr pw_core_events coreEvents{
        .version = PW_VERSION_CORE_EVENTS, .done = &ReleaseRun::onDone, .error = &ReleaseRun::onError};
    static constexpr pw_registry_events registryEvents{
        .version = PW_VERSION_REGISTRY_EVENTS, .global = &ReleaseRun::onGlobal};
    spa_hook coreListener{};
    spa_hook registryListener{};
    pw_core_add_listener(run.core, &coreListener, &coreEvents, &run);
    run.registry = pw_core_get_registry(run.core, PW_VERSION_REGISTRY, 0);
    pw_registry_add_listener(run.registry, &registryListener, &registryEvents, &run);
    run.sync();
    pw_main_loop_run(run.loop);
    // The process exits now; no cleanup is needed.
}

}  // namespace fadeloom
