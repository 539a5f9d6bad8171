// SPDX-License-Identifier: MIT
// The runtime functions that the compiler calls for classes and properties.
#include "tests/macos/doubles/Runtime.h"
#include "tests/macos/doubles/RuntimeClasses.h"

#include <cstddef>
#include <cstring>
#include <utility>

extern "C" {
extern void* _NSConcreteGlobalBlock[];
extern void* _NSConcreteMallocBlock[];
extern void* _NSConcreteStackBlock[];
}

namespace doubles {

bool isBlock(const ObjectData* object)
{
    const void* type = object->type;
    return type == _NSConcreteGlobalBlock || type == _NSConcreteMallocBlock || type == _NSConcreteStackBlock;
}

}  // namespace doubles

using namespace doubles;

// NOLINTBEGIN: the names are the compiler's.
extern "C" {

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
    ObjectData* copied = objc_retain(value != nullptr && isBlock(value) ? value : nullptr);
    if (value != nullptr && copied == nullptr)
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
