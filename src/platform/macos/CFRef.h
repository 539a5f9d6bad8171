// SPDX-License-Identifier: MIT
// A counted reference to a CoreFoundation object.
#pragma once

#include <CoreFoundation/CoreFoundation.h>

#include <utility>

namespace fadeloom {

/// Released by the destructor. Null releases nothing.
template <typename Ref>
class CFRef {
public:
    CFRef() = default;
    /// Takes ownership of a reference: from a function with Create or Copy in its name, or of a property.
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
