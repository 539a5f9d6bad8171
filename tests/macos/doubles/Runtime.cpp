// SPDX-License-Identifier: MIT
#include "tests/macos/doubles/Runtime.h"

#include "tests/macos/doubles/RuntimeClasses.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <mutex>
#include <new>
#include <unordered_map>
#include <unordered_set>
#include <vector>

extern "C" {
void* _Block_copy(const void* block);
void _Block_release(const void* block);
}

namespace doubles {
namespace {

/// Precedes each object on the heap.
struct Head {
    long count = 1;
    long unused = 0;  // Aligns objects to 16.
};

struct World {
    std::recursive_mutex mutex;
    std::unordered_set<const void*> live;
    std::unordered_map<void**, ObjectData*> weak;  // By place.
};

World& world()
{
    static auto& made = *new World;  // Never destroyed: objects may outlive everything else.
    return made;
}

std::vector<std::vector<ObjectData*>>& pools()
{
    static thread_local std::vector<std::vector<ObjectData*>> made;
    return made;
}

Head& headOf(const ObjectData* object)
{
    return *(reinterpret_cast<Head*>(const_cast<ObjectData*>(object)) - 1);
}

/// Classes, constant strings, queues: never freed.
bool isImmortal(const ObjectData* object)
{
    return (object->type->ro().flags & ClassRo::isMeta) != 0
        || std::strncmp(object->type->ro().name, "Immortal", 8) == 0;
}

void runAlong(const ClassData* type, ObjectData* object, const char* selector, bool isRootFirst)
{
    if (type == nullptr)
        return;
    if (isRootFirst)
        runAlong(type->superclass, object, selector, isRootFirst);
    if (const auto method = type->ownMethod(selector))
        reinterpret_cast<void (*)(ObjectData*, const char*)>(method)(object, selector);
    if (!isRootFirst)
        runAlong(type->superclass, object, selector, isRootFirst);
}

}  // namespace

void crash(const std::string& why)
{
    std::fprintf(stderr, "crash: %s\n", why.c_str());
    std::abort();
}

std::size_t liveObjects()
{
    const std::scoped_lock guard(world().mutex);
    return world().live.size();
}

std::string describeLiveObjects()
{
    const std::scoped_lock guard(world().mutex);
    std::string text;
    for (const void* each : world().live)
        text += std::string(static_cast<const ObjectData*>(each)->type->ro().name) + '\n';
    return text;
}

int retainCount(const void* object)
{
    const std::scoped_lock guard(world().mutex);
    return world().live.contains(object)
        ? static_cast<int>(headOf(static_cast<const ObjectData*>(object)).count)
        : 0;
}

AutoreleasePool::AutoreleasePool()
    : pool_(objc_autoreleasePoolPush())
{
}

AutoreleasePool::~AutoreleasePool()
{
    objc_autoreleasePoolPop(pool_);
}

ObjectData* makeObject(const ClassData* type)
{
    // The platform adjusts field offsets then; here a class is compiled in the same source as its superclasses.
    const ClassRo& own = type->ro();
    const std::size_t above = type->superclass == nullptr ? 0 : type->superclass->ro().instanceSize;
    if (own.instanceSize > own.instanceStart && own.instanceStart < above)
        crash(std::string(own.name) + " was compiled without knowing the fields above it");
    const std::size_t size = sizeof(Head) + std::max<std::size_t>(own.instanceSize, above);
    auto* const head = new (std::calloc(1, size)) Head;
    auto* const object = reinterpret_cast<ObjectData*>(head + 1);
    object->type = type;
    runAlong(type, object, ".cxx_construct", true);
    const std::scoped_lock guard(world().mutex);
    world().live.insert(object);
    return object;
}

void disposeOf(ObjectData* object)
{
    runAlong(object->type, object, ".cxx_destruct", false);
    const std::scoped_lock guard(world().mutex);
    std::erase_if(world().weak, [object](const auto& each) {
        if (each.second != object)
            return false;
        *each.first = nullptr;
        return true;
    });
    world().live.erase(object);
    std::free(&headOf(object));
}

}  // namespace doubles

using namespace doubles;

// NOLINTBEGIN: the names are the compiler's.
extern "C" {

void* _objc_empty_cache = nullptr;
void* _objc_empty_vtable = nullptr;

void* fadeloomMethod(const ObjectData* object, const char* selector)
{
    if (const auto method = object->type->method(selector))
        return method;
    crash(std::string("no method ") + object->type->ro().name + " " + selector);
}

void* fadeloomSuperMethod(const Super* super, const char* selector)
{
    if (const auto method = super->type->superclass->method(selector))
        return method;
    crash(std::string("no method above ") + super->type->ro().name + " " + selector);
}

ObjectData* objc_retain(ObjectData* object)
{
    if (object == nullptr)
        return nullptr;
    if (isBlock(object))
        return static_cast<ObjectData*>(_Block_copy(object));
    if (isImmortal(object))
        return object;
    const std::scoped_lock guard(world().mutex);
    if (!world().live.contains(object))
        crash("retained what is no object");
    ++headOf(object).count;
    return object;
}

void objc_release(ObjectData* object)
{
    if (object == nullptr)
        return;
    if (isBlock(object))
        return _Block_release(object);
    if (isImmortal(object))
        return;
    const std::scoped_lock guard(world().mutex);
    if (!world().live.contains(object))
        crash("released what is no object");
    if (--headOf(object).count == 0)
        reinterpret_cast<void (*)(ObjectData*, const char*)>(fadeloomMethod(object, "dealloc"))(
            object, "dealloc");
}

void* objc_autoreleasePoolPush()
{
    pools().emplace_back();
    return reinterpret_cast<void*>(pools().size());
}

void objc_autoreleasePoolPop(void* pool)
{
    while (pools().size() >= reinterpret_cast<std::size_t>(pool)) {
        while (!pools().back().empty()) {
            ObjectData* const last = pools().back().back();
            pools().back().pop_back();
            objc_release(last);
        }
        pools().pop_back();
    }
}

ObjectData* objc_autorelease(ObjectData* object)
{
    if (object == nullptr)
        return nullptr;
    if (pools().empty())
        crash("autoreleased without a pool");
    pools().back().push_back(object);
    return object;
}

ObjectData* objc_retainAutorelease(ObjectData* object)
{
    return objc_autorelease(objc_retain(object));
}
ObjectData* objc_autoreleaseReturnValue(ObjectData* object)
{
    return objc_autorelease(object);
}
ObjectData* objc_retainAutoreleaseReturnValue(ObjectData* object)
{
    return objc_retainAutorelease(object);
}
ObjectData* objc_retainAutoreleasedReturnValue(ObjectData* object)
{
    return objc_retain(object);
}
ObjectData* objc_unsafeClaimAutoreleasedReturnValue(ObjectData* object)
{
    return object;
}
ObjectData* objc_retainBlock(ObjectData* block)
{
    return block == nullptr ? nullptr : static_cast<ObjectData*>(_Block_copy(block));
}

void objc_storeStrong(ObjectData** place, ObjectData* object)
{
    ObjectData* const former = *place;
    objc_retain(object);
    *place = object;
    objc_release(former);
}

ObjectData* objc_storeWeak(void** place, ObjectData* object)
{
    const std::scoped_lock guard(world().mutex);
    world().weak.erase(place);
    if (object != nullptr && !isImmortal(object))
        world().weak[place] = object;
    *place = object;
    return object;
}
ObjectData* objc_initWeak(void** place, ObjectData* object)
{
    return objc_storeWeak(place, object);
}
void objc_destroyWeak(void** place)
{
    objc_storeWeak(place, nullptr);
}
ObjectData* objc_loadWeakRetained(void** place)
{
    const std::scoped_lock guard(world().mutex);
    return objc_retain(static_cast<ObjectData*>(*place));
}
}
// NOLINTEND
