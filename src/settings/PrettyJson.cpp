// SPDX-License-Identifier: MIT
#include "settings/PrettyJson.h"

#include <array>
#include <charconv>
#include <cstddef>

namespace fadeloom {

namespace {

constexpr std::size_t indentation = 2;

class Writer {
public:
    std::string take() && { return std::move(text_) + "\n"; }

    void write(const FloatJson& value)
    {
        if (value.is_object())
            writeList('{', '}', value, [this](const auto& member) {
                writeString(member.key());
                text_ += ": ";
                write(member.value());
            });
        else if (value.is_array())
            writeList('[', ']', value, [this](const auto& element) { write(element.value()); });
        else if (value.is_number_float())
            writeFloat(value.get<float>());
        else
            writeString(value);
    }

private:
    template <typename WriteEntry>
    void writeList(char open, char close, const FloatJson& list, WriteEntry writeEntry)
    {
        text_ += open;
        depth_ += 1;
        bool isFirst = true;
        for (const auto& entry : list.items()) {
            if (!isFirst)
                text_ += ',';
            isFirst = false;
            beginLine();
            writeEntry(entry);
        }
        depth_ -= 1;
        if (!list.empty())
            beginLine();
        text_ += close;
    }

    void beginLine() { text_.append("\n").append(depth_ * indentation, ' '); }

    void writeFloat(float number)
    {
        std::array<char, 32> buffer{};  // The longest float has 15 characters.
        const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number);
        text_.append(buffer.data(), end);
    }

    // Values on a single line: strings, booleans, null and integers.
    void writeString(const FloatJson& value)
    {
        text_ += value.dump(-1, ' ', false, FloatJson::error_handler_t::replace);
    }

    std::string text_;
    std::size_t depth_ = 0;
};

}  // namespace

std::string prettyJson(const FloatJson& value)
{
    Writer writer;
    writer.write(value);
    return std::move(writer).take();
}

}  // namespace fadeloom
