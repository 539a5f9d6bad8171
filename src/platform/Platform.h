// SPDX-License-Identifier: MIT
// Everything the program asks of a system, gathered once and handed down.
#pragma once

namespace fadeloom {

class AudioHardware;
class BackgroundQueue;
class CapturePermission;
class MainLoop;
class StandardFolders;
class SystemLog;
class Text;
class Workspace;

/// References only: whoever builds a platform keeps its parts alive for as long as the program runs on it.
struct Platform {
    AudioHardware& audio;
    Workspace& workspace;
    CapturePermission& capturePermission;
    MainLoop& mainLoop;
    BackgroundQueue& utilityQueue;  // The settings write.
    BackgroundQueue& logQueue;  // The engine log's lines.
    StandardFolders& folders;
    SystemLog& systemLog;
    Text& text;
};

}  // namespace fadeloom
