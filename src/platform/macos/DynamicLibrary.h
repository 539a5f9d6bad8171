// SPDX-License-Identifier: MIT
// A library that is loaded at run time, because it may not exist.
#pragma once

#include <dlfcn.h>

namespace fadeloom {

class DynamicLibrary {
public:
    explicit DynamicLibrary(const char* path)
        : handle_(dlopen(path, RTLD_NOW))
    {
    }
    DynamicLibrary(const DynamicLibrary&) = delete;
    DynamicLibrary& operator=(const DynamicLibrary&) = delete;
    ~DynamicLibrary()
    {
        if (handle_ != nullptr)
            dlclose(handle_);
    }

    /// Null if the library or the function does not exist. Valid for the lifetime of this object.
    template <typename Function>
    [[nodiscard]] Function* function(const char* name) const
    {
        return handle_ == nullptr ? nullptr : reinterpret_cast<Function*>(dlsym(handle_, name));
    }

private:
    void* const handle_;
};

}  // namespace fadeloom
