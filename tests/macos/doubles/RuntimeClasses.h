// SPDX-License-Identifier: MIT
// The compiler's layout of Objective-C classes; used only by the runtime.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <utility>

namespace doubles {

struct MethodList {
    struct Method {
        const char* selector;
        const char* types;
        void* function;
    };

    std::uint32_t entrySize;
    std::uint32_t count;
    Method methods[1];  // Variable length.
};

struct ClassRo {
    static constexpr std::uint32_t isMeta = 1;

    std::uint32_t flags;
    std::uint32_t instanceStart;
    std::uint32_t instanceSize;
    std::uint32_t reserved;
    const std::uint8_t* ivarLayout;
    const char* name;
    const MethodList* methods;
};

struct ClassData {
    const ClassData* type;
    const ClassData* superclass;
    void* cache;
    void* table;
    const ClassRo* data;

    [[nodiscard]] const ClassRo& ro() const { return *data; }
    [[nodiscard]] void* ownMethod(const char* selector) const
    {
        const MethodList* list = data->methods;
        for (std::uint32_t i = 0; list != nullptr && i < list->count; ++i)
            if (std::strcmp((&list->methods[0] + i)->selector, selector) == 0)
                return (&list->methods[0] + i)->function;
        return nullptr;
    }
    [[nodiscard]] void* method(const char* selector) const
    {
        for (const ClassData* each = this; each != nullptr; each = each->superclass)
            if (void* const found = each->ownMethod(selector))
                return found;
        return nullptr;
    }
};

struct ObjectData {
    const ClassData* type;
};

struct Super {
    ObjectData* receiver;
    const ClassData* type;
};

ObjectData* makeObject(const ClassData* type);
void disposeOf(ObjectData* object);
/// To the language blocks are objects, with a class that has no methods here.
bool isBlock(const ObjectData* object);

}  // namespace doubles

extern "C" {
doubles::ObjectData* objc_retain(doubles::ObjectData* object);
void objc_release(doubles::ObjectData* object);
doubles::ObjectData* objc_autorelease(doubles::ObjectData* object);
doubles::ObjectData* objc_retainAutorelease(doubles::ObjectData* object);
void objc_storeStrong(doubles::ObjectData** place, doubles::ObjectData* object);
void* fadeloomMethod(const doubles::ObjectData* object, const char* selector);
void* objc_autoreleasePoolPush();
void objc_autoreleasePoolPop(void* pool);
}
