// SPDX-License-Identifier: MIT
#include "engine/EQPresets.h"

namespace fadeloom::EQPresets {

const std::vector<EQPresetGroup>& groups()
{
    // Decibels at              32  64 125 250 500  1k  2k  4k  8k 16k hertz.
    // clang-format off
    static const std::vector<EQPresetGroup> catalogue = {
        {"Basic", {
            {"Flat",           { 0,  0,  0,  0,  0,  0,  0,  0,  0,  0}},
            {"Bass Boost",     { 7,  6,  5,  3,  1,  0,  0,  0,  0,  0}},
            {"Treble Boost",   { 0,  0,  0,  0,  0,  1,  3,  5,  6,  7}},
            {"Loudness",       { 4,  3,  1,  0, -1, -1,  0,  1,  3,  4}},
        }},
        {"Genres", {
            {"Acoustic",       { 3,  2,  1,  2,  3,  2,  2,  3,  2,  2}},
            {"Blues",          { 2,  3,  3,  1, -2,  0,  2,  3,  3,  2}},
            {"Classical",      { 5,  4,  3,  2, -2, -2,  0,  2,  3,  4}},
            {"Country",        { 2,  2,  1,  1,  0,  0,  1,  2,  3,  3}},
            {"Dance",          { 4,  6,  5,  0, -2, -2,  0,  2,  4,  4}},
            {"Electronic",     { 5,  4,  1,  0, -2,  2,  1,  2,  4,  5}},
            {"Funk",           { 4,  4,  2,  0, -2, -2,  0,  2,  3,  3}},
            {"Hip-Hop",        { 5,  4,  2,  1, -1, -1,  1,  0,  2,  3}},
            {"Jazz",           { 4,  3,  2,  2, -2, -2,  0,  2,  3,  4}},
            {"Latin",          { 3,  2,  0,  0, -2, -2, -2,  0,  3,  4}},
            {"Metal",          { 6,  4,  0,  0,  2, -1,  0,  3,  5,  5}},
            {"Pop",            {-1, -1,  0,  2,  4,  4,  2,  0, -1, -1}},
            {"Reggae",         { 0,  0,  0, -3,  0,  3,  3,  0,  0,  0}},
            {"R&B",            { 3,  6,  5,  1, -2, -1,  2,  3,  3,  2}},
            {"Rock",           { 5,  4,  3,  1, -1, -1,  1,  3,  4,  5}},
            {"Soul",           { 3,  4,  3,  1, -1,  0,  2,  3,  3,  2}},
        }},
        {"Moods", {
            {"Bright",         {-2, -1,  0,  0,  1,  2,  3,  4,  5,  5}},
            {"Late Night",     { 2,  2,  1,  0, -1, -1,  0,  1,  2,  3}},
            {"Lounge",         {-1,  1,  2,  1, -1, -1,  0,  1,  2,  1}},
            {"Powerful",       { 4,  3,  2,  1,  0,  0,  1,  3,  4,  5}},
            {"Soft",           { 2,  1,  0, -1, -2, -2, -1,  0,  1,  2}},
            {"Warm",           { 3,  3,  2,  1,  0, -1, -1,  0,  1,  1}},
        }},
        {"Use Cases", {
            {"Car Audio",      { 4,  4,  2,  0, -1, -1,  0,  3,  4,  5}},
            {"Cinema",         { 4,  5,  3,  1,  0,  0,  1,  3,  4,  3}},
            {"Club",           { 5,  5,  4,  2,  0,  0,  0,  2,  4,  4}},
            {"Headphones",     { 3,  5,  4,  2, -1, -1,  2,  3,  4,  5}},
            {"Large Hall",     { 3,  3,  2,  1,  0, -1, -1,  0,  2,  3}},
            {"Piano",          { 2,  1,  0,  2,  3,  2,  3,  4,  3,  3}},
            {"Podcast",        {-2, -1,  1,  3,  5,  5,  4,  2,  0, -1}},
            {"Small Speakers", { 5,  4,  3,  2,  1,  0, -1, -2, -1,  0}},
            {"Spoken Word",    {-3, -1,  0,  2,  4,  5,  5,  4,  2,  0}},
            {"Vocal",          {-2, -2, -1,  1,  3,  3,  3,  2,  1,  0}},
        }},
    };
    // clang-format on
    return catalogue;
}

const std::vector<EQPreset>& all()
{
    static const std::vector<EQPreset> presets = [] {
        std::vector<EQPreset> result;
        for (const auto& group : groups())
            result.insert(result.end(), group.presets.begin(), group.presets.end());
        return result;
    }();
    return presets;
}

const EQPreset& flat()
{
    return all().front();
}

}  // namespace fadeloom::EQPresets
