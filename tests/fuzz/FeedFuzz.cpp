// SPDX-License-Identifier: MIT
// Arbitrary bytes as the update feed: they are rejected, or yield a version that is JSON again.
#include "shell/RemoteVersion.h"
#include "tests/fuzz/Require.h"

#include <nlohmann/json.hpp>

#include <cstddef>
#include <cstdint>
#include <string_view>

using namespace fadeloom;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto remote = decodeRemoteVersion({reinterpret_cast<const char*>(data), size});
    if (!remote)
        return 0;
    const nlohmann::json feed{{"version", remote->version}, {"build", remote->build}};
    require(decodeRemoteVersion(feed.dump()) == remote, "a version that was read is read again");
    return 0;
}
