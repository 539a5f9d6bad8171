// SPDX-License-Identifier: MIT
// All platform services of the program, bundled and passed down.
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

/// References only: the builder of a platform keeps its parts alive for as long as the program uses it.
struct Platform {
    AudioSystem& audio;
    AudioFiles& audioFiles;
    Workspace& workspace;
    CapturePermission& capturePermission;
    LoginItem& loginItem;
    MainLoop& mainLoop;
    BackgroundQueue& utilityQueue;  // The settings write.
    BackgroundQueue& logQueue;  // The engine log.
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
