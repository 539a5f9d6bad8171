// SPDX-License-Identifier: MIT
#include "platform/pipewire/MetadataBinding.h"

#include <pipewire/extensions/metadata.h>
#include <pipewire/type.h>

namespace fadeloom {

MetadataBinding::MetadataBinding(pw_registry* registry, GraphID id, Changed changed)
    : id_(id)
    , changed_(std::move(changed))
{
    static constexpr pw_metadata_events events{
        .version = PW_VERSION_METADATA_EVENTS,
        .property =
            [](void* self, std::uint32_t subject, const char* key, const char*, const char* value) {
                static_cast<MetadataBinding*>(self)->changed_(subject, key, value);
                return 0;
            },
    };
    proxy_ = static_cast<pw_proxy*>(
        pw_registry_bind(registry, id, PW_TYPE_INTERFACE_Metadata, PW_VERSION_METADATA, 0));
    if (proxy_)
        pw_proxy_add_object_listener(proxy_, &listener_, &events, this);
}

MetadataBinding::~MetadataBinding()
{
    if (proxy_)
        pw_proxy_destroy(proxy_);
}

void MetadataBinding::set(
    GraphID subject, const std::string& key, const char* type, const std::optional<std::string>& value)
{
    if (proxy_)
        pw_metadata_set_property(reinterpret_cast<pw_metadata*>(proxy_), subject, key.c_str(),
            value ? type : nullptr, value ? value->c_str() : nullptr);
}

}  // namespace fadeloom
