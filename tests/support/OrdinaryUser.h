// SPDX-License-Identifier: MIT
// While an instance exists, the process runs as an ordinary user subject to permissions, even if root runs the tests.
#pragma once

#include <unistd.h>

#include <filesystem>
#include <stdexcept>

namespace fadeloom {

class OrdinaryUser {
public:
    /// `home`: a folder that becomes this user's home.
    explicit OrdinaryUser(const std::filesystem::path& home)
    {
        constexpr uid_t nobody = 65534;
        if (wasRoot_ && (::chown(home.c_str(), nobody, nobody) != 0 || ::seteuid(nobody) != 0))
            throw std::runtime_error("cannot become an ordinary user");
    }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;
    ~OrdinaryUser()
    {
        if (wasRoot_)
            (void)::seteuid(0);
    }

private:
    const bool wasRoot_ = ::geteuid() == 0;
};

}  // namespace fadeloom
