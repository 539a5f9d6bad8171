// SPDX-License-Identifier: MIT
// The user's folders.
#pragma once

#include "platform/StandardFolders.h"

namespace fadeloom {

class FoundationFolders final : public StandardFolders {
public:
    std::filesystem::path applicationSupport() const override;
    std::filesystem::path music() const override;
    /// The folder for caches. Thread: any.
    [[nodiscard]] std::filesystem::path caches() const;
};

}  // namespace fadeloom
