// SPDX-License-Identifier: MIT
#include "platform/pipewire/OwnLinks.h"

#include <pipewire/core.h>
#include <pipewire/keys.h>
#include <pipewire/link.h>
#include <pipewire/properties.h>
#include <pipewire/proxy.h>
#include <pipewire/type.h>

#include <algorithm>
#include <string>

namespace fadeloom {

class OwnLinks::Proxy {
public:
    Proxy(pw_core* core, const WantedLink& link, const std::function<void()>& changed)
        : changed_(changed)
    {
        auto* properties = pw_properties_new(nullptr, nullptr);
        const auto set = [&](const char* key, GraphID id) {
            pw_properties_set(properties, key, std::to_string(id).c_str());
        };
        set(PW_KEY_LINK_OUTPUT_NODE, link.outputNode);
        set(PW_KEY_LINK_OUTPUT_PORT, link.outputPort);
        set(PW_KEY_LINK_INPUT_NODE, link.inputNode);
        set(PW_KEY_LINK_INPUT_PORT, link.inputPort);
        if (link.isPassive)
            pw_properties_set(properties, PW_KEY_LINK_PASSIVE, "true");

        proxy_ = static_cast<pw_proxy*>(pw_core_create_object(
            core, "link-factory", PW_TYPE_INTERFACE_Link, PW_VERSION_LINK, &properties->dict, 0));
        pw_properties_free(properties);
        if (!proxy_) {
            fail();
            return;
        }
        static constexpr pw_proxy_events events{
            .version = PW_VERSION_PROXY_EVENTS,
            .removed = [](void* self) { static_cast<Proxy*>(self)->fail(); },
            .error = [](void* self, int, int, const char*) { static_cast<Proxy*>(self)->fail(); },
        };
        pw_proxy_add_listener(proxy_, &listener_, &events, this);
        static constexpr pw_link_events linkEvents{.version = PW_VERSION_LINK_EVENTS, .info = &onInfo};
        pw_proxy_add_object_listener(proxy_, &linkListener_, &linkEvents, this);
    }

    ~Proxy()
    {
        if (proxy_) {
            spa_hook_remove(&listener_);
            spa_hook_remove(&linkListener_);
            pw_proxy_destroy(proxy_);
        }
    }

    Proxy(const Proxy&) = delete;
    Proxy& operator=(const Proxy&) = delete;

    [[nodiscard]] bool hasFailed() const { return hasFailed_; }
    [[nodiscard]] bool isActive() const { return isActive_ && !hasFailed_; }
    [[nodiscard]] bool mayRetry() const { return std::chrono::steady_clock::now() - failedAt_ >= retryDelay; }

private:
    static void onInfo(void* self, const pw_link_info* info)
    {
        auto& me = *static_cast<Proxy*>(self);
        if ((info->change_mask & PW_LINK_CHANGE_MASK_STATE) == 0)
            return;
        me.isActive_ = info->state == PW_LINK_STATE_ACTIVE || info->state == PW_LINK_STATE_PAUSED;
        me.changed_();
    }

    void fail()
    {
        hasFailed_ = true;
        failedAt_ = std::chrono::steady_clock::now();
    }

    pw_proxy* proxy_ = nullptr;
    spa_hook listener_{};
    spa_hook linkListener_{};
    const std::function<void()>& changed_;
    bool isActive_ = false;
    bool hasFailed_ = false;
    std::chrono::steady_clock::time_point failedAt_;
};

OwnLinks::OwnLinks(std::function<void()> changed)
    : changed_(std::move(changed))
{
}

OwnLinks::~OwnLinks() = default;

bool OwnLinks::reconcile(pw_core* core, const std::set<WantedLink>& wanted)
{
    std::erase_if(links_, [&](const auto& entry) {
        return !wanted.contains(entry.first) || (entry.second->hasFailed() && entry.second->mayRetry());
    });

    for (const auto& link : wanted) {
        if (!links_.contains(link))
            links_.emplace(link, std::make_unique<Proxy>(core, link, changed_));
    }
    return std::ranges::any_of(links_, [](const auto& entry) { return entry.second->hasFailed(); });
}

bool OwnLinks::has(GraphID outputPort, GraphID inputPort) const
{
    return std::ranges::any_of(links_, [&](const auto& entry) {
        return entry.first.outputPort == outputPort && entry.first.inputPort == inputPort
            && !entry.second->hasFailed();
    });
}

bool OwnLinks::isActive(const WantedLink& link) const
{
    const auto found = links_.find(link);
    return found != links_.end() && found->second->isActive();
}

void OwnLinks::drop(GraphID outputNode, GraphID inputNode)
{
    std::erase_if(links_, [&](const auto& entry) {
        return entry.first.outputNode == outputNode && entry.first.inputNode == inputNode;
    });
}

void OwnLinks::clear()
{
    links_.clear();
}

}  // namespace fadeloom
