// SPDX-License-Identifier: MIT
// Arbitrary bytes as a line of words, and as a volume: they are rejected with a message, or yield something that
// round-trips, and a volume within its range.
#include "commands/LineWords.h"
#include "commands/PrintableText.h"
#include "commands/VolumeWord.h"
#include "tests/fuzz/Require.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

using namespace fadeloom;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    if (const auto words = wordsOf(bytes)) {
        std::string line;
        for (const auto& word : *words) {
            require(word.size() <= size, "no word is longer than the line");
            line += asWord(word) + " ";
        }
        const auto again = wordsOf(line);
        require(again && again->size() == words->size(), "what is printed is as many words");
        for (std::size_t i = 0; i < words->size(); ++i)
            require((*again)[i] == printable((*words)[i]), "what is printed is read back");
    } else {
        require(!words.error().empty(), "a refusal has words");
    }

    const auto volume = VolumeWord::parse(bytes);
    if (!volume) {
        require(volume.error().find('\n') == std::string::npos, "a refusal is one line");
        return 0;
    }
    for (const float limit : {1.0F, 2.0F}) {
        for (const float present : {0.0F, 0.001F, 0.5F, 1.0F}) {
            const float meant = volume->from(present, limit);
            require(!std::isnan(meant) && meant >= 0, "a volume is a number, and not below 0");
            require(!volume->isStep() || meant <= limit, "a step stops at the limit");
        }
    }
    return 0;
}
