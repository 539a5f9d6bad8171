// SPDX-License-Identifier: MIT
// One library that is opened while the program runs, because it may not be there.
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

    /// Null without the library, and when it has no such function. Valid for as long as this lives.
    template <typename Function>
    [[nodiscard]] Function* function(const char* name) const
    {
        return handle_ == nullptr ? nullptr : reinterpret_cast<Function*>(dlsym(handle_, name));
    }

private:
    void* const handle_;
};

}  // namespace fadeloom
