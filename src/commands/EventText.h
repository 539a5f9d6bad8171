// SPDX-License-Identifier: MIT
// Events as text: as lines that begin with a fixed word, and as JSON objects.
//
//     app appeared com.example.player Player      device added speakers "Desk Speakers"
//     app playing com.example.player              device removed speakers "Desk Speakers"
//     app output com.example.player speakers      default speakers
//     app changed com.example.player volume 0.5   permission granted
//     app silent com.example.player               message "Could not switch output to Headphones."
//     app disappeared com.example.player          recording started com.example.player
//     call com.example.chat                       recording stopped com.example.player
//     call none                                   recording saved "/music/Player 2030-01-02 12.00.00.wav"
//     levels com.example.player 0.62
#pragma once

#include "commands/Events.h"

#include <string>

namespace fadeloom {

/// One line, without the line feed.
[[nodiscard]] std::string eventLine(const Event& event);
/// One line of JSON, {"event":"appeared",...}. Keys and events may be added; readers ignore unknown ones.
[[nodiscard]] std::string eventJson(const Event& event);

}  // namespace fadeloom
