// SPDX-License-Identifier: MIT
// The standard folders of a simulation: one real folder, passed to the constructor.
#pragma once

#include "platform/StandardFolders.h"

#include <utility>

namespace fadeloom {

class SimulatedFolders final : public StandardFolders {
public:
    explicit SimulatedFolders(std::filesystem::path applicationSupport)
        : applicationSupport_(std::move(applicationSupport))
    {
    }

    std::filesystem::path applicationSupport() const override { return applicationSupport_; }
    std::filesystem::path music() const override { return applicationSupport_ / "Music"; }

private:
    std::filesystem::path applicationSupport_;
};

}  // namespace fadeloom
