// SPDX-License-Identifier: MIT
// Strict decoding of JSON values into C++ ones. For this folder's sources; not exposed in public headers.
//
// `decode` fills `result`, or records a problem, in which case `result` is unspecified. Records add an overload that
// calls `decodeField` for each key.
#pragma once

#include "settings/FloatJson.h"
#include "settings/Lenient.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace fadeloom {

/// The first problem, with the path of keys to it.
class DecodingProblem {
public:
    [[nodiscard]] bool isNoted() const { return text_.has_value(); }
    [[nodiscard]] std::string text() const { return text_.value_or(""); }

    void noteExpected(std::string_view type, const FloatJson& found)
    {
        note("expected " + std::string(type) + ", found " + found.type_name());
    }
    void note(std::string text)
    {
        if (!isNoted())
            text_ = std::move(text);
    }
    /// Adopts a problem found below `key`.
    void noteBelow(std::string_view key, const DecodingProblem& below)
    {
        if (below.isNoted())
            note(std::string(key) + ": " + *below.text_);
    }

private:
    std::optional<std::string> text_;
};

inline void decode(const FloatJson& json, bool& result, DecodingProblem& problem)
{
    if (json.is_boolean())
        result = json.get<bool>();
    else
        problem.noteExpected("boolean", json);
}

/// Any number. The range was checked before: see `withFiniteNumbers`.
inline void decode(const FloatJson& json, float& result, DecodingProblem& problem)
{
    if (json.is_number())
        result = json.get<float>();
    else
        problem.noteExpected("number", json);
}

inline void decode(const FloatJson& json, std::string& result, DecodingProblem& problem)
{
    if (json.is_string())
        result = json.get<std::string>();
    else
        problem.noteExpected("string", json);
}

template <typename Value>
void decode(const FloatJson& json, Lenient<Value>& result, DecodingProblem&)
{
    Value value;
    DecodingProblem ignored;
    decode(json, value, ignored);
    if (!ignored.isNoted())
        result.value = std::move(value);
}

template <typename Element>
void decode(const FloatJson& json, std::vector<Element>& result, DecodingProblem& problem)
{
    if (!json.is_array())
        return problem.noteExpected("array", json);
    result.clear();
    for (const auto& element : json)
        decode(element, result.emplace_back(), problem);
}

template <typename Value>
void decode(const FloatJson& json, std::map<std::string, Value>& result, DecodingProblem& problem)
{
    if (!json.is_object())
        return problem.noteExpected("object", json);
    result.clear();
    for (const auto& [key, value] : json.items())
        decode(value, result[key], problem);
}

/// How to treat a key whose value is null.
enum class Null { isAbsent, isNoValue };

/// Decodes the value of `key` in an object. If the key is missing, `field` keeps its default.
template <Null null = Null::isAbsent, typename Field>
void decodeField(const FloatJson& object, const char* key, Field& field, DecodingProblem& problem)
{
    const auto found = object.find(key);
    if (found == object.end())
        return;
    DecodingProblem below;
    if (!found->is_null()) {
        if constexpr (null == Null::isNoValue)
            decode(*found, field.emplace(), below);
        else
            decode(*found, field, below);
    } else if constexpr (null == Null::isNoValue) {
        field.reset();
    }
    problem.noteBelow(key, below);
}

}  // namespace fadeloom
