// SPDX-License-Identifier: MIT
// One counted reference to an object of CoreFoundation.
#pragma once

#include <CoreFoundation/CoreFoundation.h>

#include <utility>

namespace fadeloom {

/// Releases it at its end. Null releases nothing.
template <typename Ref>
class CFRef {
public:
    CFRef() = default;
    /// Takes over a reference that the caller owns: one of a function with Create or Copy in its name, or a property's.
    static CFRef adopt(Ref owned) { return CFRef(owned); }
    CFRef(CFRef&& other) noexcept
        : object_(std::exchange(other.object_, nullptr))
    {
    }
    CFRef(const CFRef&) = delete;
    CFRef& operator=(const CFRef&) = delete;
    ~CFRef()
    {
        if (object_ != nullptr)
            CFRelease(object_);
    }

    [[nodiscard]] Ref get() const { return object_; }
    explicit operator bool() const { return object_ != nullptr; }

private:
    explicit CFRef(Ref owned)
        : object_(owned)
    {
    }

    Ref object_ = nullptr;
};

}  // namespace fadeloom
