// SPDX-License-Identifier: MIT
#include "tests/macos/doubles/Runtime.h"

#include "tests/macos/doubles/RuntimeClasses.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <mutex>
#include <new>
#include <unordered_map>
#include <unordered_set>
#include <vector>

extern "C" {
extern void* _NSConcreteGlobalBlock[];
extern void* _NSConcreteMallocBlock[];
extern void* _NSConcreteStackBlock[];
void* _Block_copy(const void* block);
void _Block_release(const void* block);
}

namespace doubles {
namespace {

/// Stands before each object on the heap.
struct Head {
    long count = 1;
    long unused = 0;  // Objects start at a multiple of 16.
};

struct World {
    std::recursive_mutex mutex;
    std::unordered_set<const void*> live;
    std::unordered_map<void**, ObjectData*> weak;  // By place.
};

World& world()
{
    static auto& made = *new World;  // Never ends: objects may go after everything else has.
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

bool isBlock(const ObjectData* object)
{
    const void* type = object->type;
    return type == _NSConcreteGlobalBlock || type == _NSConcreteMallocBlock || type == _NSConcreteStackBlock;
}

/// Classes, constant texts, queues: what is never freed.
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
    const std::size_t size = sizeof(Head) + type->ro().instanceSize;
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

ObjectData* objc_alloc(const ClassData* type)
{
    return makeObject(type);
}
ObjectData* objc_opt_self(ObjectData* object)
{
    return object;
}
const ClassData* objc_opt_class(const ObjectData* object)
{
    const bool isClass = (object->type->ro().flags & ClassRo::isMeta) != 0;
    return isClass ? reinterpret_cast<const ClassData*>(object) : object->type;
}
bool objc_opt_isKindOfClass(const ObjectData* object, const ClassData* type)
{
    for (const ClassData* each = object == nullptr ? nullptr : object->type; each != nullptr;
        each = each->superclass)
        if (each == type)
            return true;
    return false;
}
bool objc_opt_respondsToSelector(const ObjectData* object, const char* selector)
{
    return object != nullptr && object->type->method(selector) != nullptr;
}
ObjectData* objc_alloc_init(const ClassData* type)
{
    ObjectData* const made = makeObject(type);
    return reinterpret_cast<ObjectData* (*)(ObjectData*, const char*)>(fadeloomMethod(made, "init"))(
        made, "init");
}
ObjectData* objc_opt_new(const ClassData* type)
{
    return objc_alloc_init(type);
}

static ObjectData*& fieldAt(ObjectData* object, std::ptrdiff_t offset)
{
    return *reinterpret_cast<ObjectData**>(reinterpret_cast<char*>(object) + offset);
}
ObjectData* objc_getProperty(ObjectData* object, const char*, std::ptrdiff_t offset, bool)
{
    return objc_retainAutorelease(fieldAt(object, offset));
}
void objc_setProperty_atomic(ObjectData* object, const char*, ObjectData* value, std::ptrdiff_t offset)
{
    objc_storeStrong(&fieldAt(object, offset), value);
}
void objc_setProperty_atomic_copy(ObjectData* object, const char*, ObjectData* value, std::ptrdiff_t offset)
{
    ObjectData* copied = value;
    if (value != nullptr)
        copied = reinterpret_cast<ObjectData* (*)(ObjectData*, const char*)>(fadeloomMethod(value, "copy"))(
            value, "copy");
    objc_release(std::exchange(fieldAt(object, offset), copied));
}
void objc_setProperty_nonatomic(
    ObjectData* object, const char* selector, ObjectData* value, std::ptrdiff_t offset)
{
    objc_setProperty_atomic(object, selector, value, offset);
}
void objc_setProperty_nonatomic_copy(
    ObjectData* object, const char* selector, ObjectData* value, std::ptrdiff_t offset)
{
    objc_setProperty_atomic_copy(object, selector, value, offset);
}
void objc_copyStruct(void* to, const void* from, std::ptrdiff_t size, bool, bool)
{
    std::memcpy(to, from, static_cast<std::size_t>(size));
}
void objc_enumerationMutation(ObjectData*)
{
    crash("a collection changed while it was read");
}
}
// NOLINTEND

// Sends a message: finds the method, and jumps there with the registers as they came. What is sent to nothing is zero.
#define FADELOOM_SEND(NAME, OBJECT, SELECTOR, FIND, LAST, WHEN_NOTHING)                                      \
    __asm__(                                                                                                 \
        ".text\n.globl " NAME "\n.type " NAME ", @function\n" NAME ":\n" WHEN_NOTHING                        \
        "pushq %rbp\nmovq %rsp, %rbp\nsubq $208, %rsp\n"                                                     \
        "movq %rdi, 0(%rsp)\nmovq %rsi, 8(%rsp)\nmovq %rdx, 16(%rsp)\nmovq %rcx, 24(%rsp)\n"                 \
        "movq %r8, 32(%rsp)\nmovq %r9, 40(%rsp)\nmovq %rax, 48(%rsp)\n"                                      \
        "movups %xmm0, 64(%rsp)\nmovups %xmm1, 80(%rsp)\nmovups %xmm2, 96(%rsp)\nmovups %xmm3, 112(%rsp)\n"  \
        "movups %xmm4, 128(%rsp)\nmovups %xmm5, 144(%rsp)\nmovups %xmm6, 160(%rsp)\nmovups %xmm7, "          \
        "176(%rsp)\n"                                                                                        \
        "movq " OBJECT ", %rax\nmovq " SELECTOR ", %rsi\nmovq %rax, %rdi\n"                                  \
        "call " FIND "\nmovq %rax, %r11\n"                                                                   \
        "movups 64(%rsp), %xmm0\nmovups 80(%rsp), %xmm1\nmovups 96(%rsp), %xmm2\nmovups 112(%rsp), %xmm3\n"  \
        "movups 128(%rsp), %xmm4\nmovups 144(%rsp), %xmm5\nmovups 160(%rsp), %xmm6\nmovups 176(%rsp), "      \
        "%xmm7\n"                                                                                            \
        "movq 0(%rsp), %rdi\nmovq 8(%rsp), %rsi\nmovq 16(%rsp), %rdx\nmovq 24(%rsp), %rcx\n"                 \
        "movq 32(%rsp), %r8\nmovq 40(%rsp), %r9\nmovq 48(%rsp), %rax\nleave\n" LAST "jmp *%r11\n")

FADELOOM_SEND("objc_msgSend", "%rdi", "%rsi", "fadeloomMethod", "",
    "testq %rdi, %rdi\njne 1f\nxorl %eax, %eax\nxorl %edx, %edx\nxorps %xmm0, %xmm0\nxorps %xmm1, "
    "%xmm1\nret\n1:\n");
FADELOOM_SEND("objc_msgSend_stret", "%rsi", "%rdx", "fadeloomMethod", "",
    "testq %rsi, %rsi\njne 1f\nxorps %xmm0, %xmm0\nmovups %xmm0, 0(%rdi)\nmovups %xmm0, 16(%rdi)\nmovq %rdi, "
    "%rax\n"
    "ret\n1:\n");
FADELOOM_SEND("objc_msgSendSuper2", "%rdi", "%rsi", "fadeloomSuperMethod", "movq (%rdi), %rdi\n", "");
