// SPDX-License-Identifier: MIT
// Everything the program asks of a system, gathered once and handed down.
#pragma once

namespace fadeloom {

class Application;
class AudioFiles;
class AudioSystem;
class BackgroundQueue;
class CallApps;
class CapturePermission;
class Dialogs;
class HttpClient;
class LoginItem;
class MainLoop;
class StandardFolders;
class SystemLog;
class Text;
class UserDefaults;
class WallClock;
class Workspace;

/// References only: whoever builds a platform keeps its parts alive for as long as the program runs on it.
struct Platform {
    AudioSystem& audio;
    AudioFiles& audioFiles;
    Workspace& workspace;
    CapturePermission& capturePermission;
    LoginItem& loginItem;
    MainLoop& mainLoop;
    BackgroundQueue& utilityQueue;  // The settings write.
    BackgroundQueue& logQueue;  // The engine log's lines.
    StandardFolders& folders;
    SystemLog& systemLog;
    Text& text;
    WallClock& clock;
    UserDefaults& userDefaults;
    HttpClient& http;
    const CallApps& callApps;

    // Null without windows.
    Application* application = nullptr;
    Dialogs* dialogs = nullptr;
};

}  // namespace fadeloom
