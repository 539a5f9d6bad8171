// SPDX-License-Identifier: MIT
#include "shell/RemoteVersion.h"

#include <nlohmann/json.hpp>

#include <utility>

namespace fadeloom {

namespace {

std::optional<std::int64_t> integerIn(const nlohmann::json& value)
{
    if (!value.is_number_integer())
        return std::nullopt;
    if (value.is_number_unsigned() && !std::in_range<std::int64_t>(value.get<std::uint64_t>()))
        return std::nullopt;
    return value.get<std::int64_t>();
}

}  // namespace

std::optional<RemoteVersion> decodeRemoteVersion(std::string_view feed)
{
    const auto record = nlohmann::json::parse(feed, nullptr, /*allow_exceptions=*/false);
    if (!record.is_object())
        return std::nullopt;
    const auto version = record.find("version");
    const auto build = record.find("build");
    if (version == record.end() || build == record.end() || !version->is_string())
        return std::nullopt;
    const auto number = integerIn(*build);
    if (!number)
        return std::nullopt;
    return RemoteVersion{version->get<std::string>(), *number};
}

}  // namespace fadeloom
