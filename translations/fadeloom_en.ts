<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>AppDelegate</name>
    <message>
        <source>About Fadeloom</source>
        <translation>About Fadeloom</translation>
    </message>
    <message>
        <source>Open Mixer</source>
        <translation>Open Mixer</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Settings…</translation>
    </message>
    <message>
        <source>Launch at Login</source>
        <translation>Launch at Login</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Check for Updates…</translation>
    </message>
    <message>
        <source>Quit Fadeloom</source>
        <translation>Quit Fadeloom</translation>
    </message>
</context>
<context>
    <name>AppRowHead</name>
    <message>
        <source>Unmute %1</source>
        <translation>Unmute %1</translation>
    </message>
    <message>
        <source>Mute %1</source>
        <translation>Mute %1</translation>
    </message>
    <message>
        <source>Output, equalizer and recording</source>
        <translation>Output, equalizer and recording</translation>
    </message>
    <message>
        <source>Collapse</source>
        <translation>Collapse</translation>
    </message>
    <message>
        <source>Expand %1</source>
        <translation>Expand %1</translation>
    </message>
    <message>
        <source>%1 volume</source>
        <translation>%1 volume</translation>
    </message>
    <message>
        <source>Double-click to reset to 100%</source>
        <translation>Double-click to reset to 100%</translation>
    </message>
</context>
<context>
    <name>AppearanceSettings</name>
    <message>
        <source>Appearance</source>
        <translation>Appearance</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Theme</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Light</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dark</translation>
    </message>
    <message>
        <source>Glass effect</source>
        <translation>Glass effect</translation>
    </message>
    <message>
        <source>Animations</source>
        <translation>Animations</translation>
    </message>
    <message>
        <source>Live level meters</source>
        <translation>Live level meters</translation>
    </message>
    <message>
        <source>Turning off meters and animations saves a little CPU while the panel is open. Sound processing is not affected.</source>
        <translation>Turning off meters and animations saves a little CPU while the panel is open. Sound processing is not affected.</translation>
    </message>
</context>
<context>
    <name>Banner</name>
    <message>
        <source>Dismiss</source>
        <translation>Dismiss</translation>
    </message>
</context>
<context>
    <name>CallAppList</name>
    <message>
        <source>Remove %1</source>
        <translation>Remove %1</translation>
    </message>
</context>
<context>
    <name>CallOffer</name>
    <message>
        <source>Don’t offer this for %1 again</source>
        <translation>Don’t offer this for %1 again</translation>
    </message>
</context>
<context>
    <name>CallSettings</name>
    <message>
        <source>Focus Mode</source>
        <translation>Focus Mode</translation>
    </message>
    <message>
        <source>Lower other apps during calls</source>
        <translation>Lower other apps during calls</translation>
    </message>
    <message>
        <source>When a call app below uses the microphone, everything else fades down and comes back when the call ends.</source>
        <translation>When a call app below uses the microphone, everything else fades down and comes back when the call ends.</translation>
    </message>
    <message>
        <source>Lower to</source>
        <translation>Lower to</translation>
    </message>
    <message>
        <source>Add App</source>
        <translation>Add App</translation>
    </message>
    <message>
        <source>Reset List</source>
        <translation>Reset List</translation>
    </message>
</context>
<context>
    <name>DeviceRow</name>
    <message>
        <source>Output</source>
        <translation>Output</translation>
    </message>
</context>
<context>
    <name>EQHeader</name>
    <message>
        <source>Equalizer</source>
        <translation>Equalizer</translation>
    </message>
</context>
<context>
    <name>EQPreamp</name>
    <message>
        <source>Preamp</source>
        <translation>Preamp</translation>
    </message>
    <message>
        <source>Double-click to reset</source>
        <translation>Double-click to reset</translation>
    </message>
</context>
<context>
    <name>EQPresets</name>
    <message>
        <source>Basic</source>
        <translation>Basic</translation>
    </message>
    <message>
        <source>Genres</source>
        <translation>Genres</translation>
    </message>
    <message>
        <source>Moods</source>
        <translation>Moods</translation>
    </message>
    <message>
        <source>Use Cases</source>
        <translation>Use Cases</translation>
    </message>
    <message>
        <source>Flat</source>
        <translation>Flat</translation>
    </message>
    <message>
        <source>Bass Boost</source>
        <translation>Bass Boost</translation>
    </message>
    <message>
        <source>Treble Boost</source>
        <translation>Treble Boost</translation>
    </message>
    <message>
        <source>Loudness</source>
        <translation>Loudness</translation>
    </message>
    <message>
        <source>Acoustic</source>
        <translation>Acoustic</translation>
    </message>
    <message>
        <source>Blues</source>
        <translation>Blues</translation>
    </message>
    <message>
        <source>Classical</source>
        <translation>Classical</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Country</translation>
    </message>
    <message>
        <source>Dance</source>
        <translation>Dance</translation>
    </message>
    <message>
        <source>Electronic</source>
        <translation>Electronic</translation>
    </message>
    <message>
        <source>Funk</source>
        <translation>Funk</translation>
    </message>
    <message>
        <source>Hip-Hop</source>
        <translation>Hip-Hop</translation>
    </message>
    <message>
        <source>Jazz</source>
        <translation>Jazz</translation>
    </message>
    <message>
        <source>Latin</source>
        <translation>Latin</translation>
    </message>
    <message>
        <source>Metal</source>
        <translation>Metal</translation>
    </message>
    <message>
        <source>Pop</source>
        <translation>Pop</translation>
    </message>
    <message>
        <source>Reggae</source>
        <translation>Reggae</translation>
    </message>
    <message>
        <source>R&amp;B</source>
        <translation>R&amp;B</translation>
    </message>
    <message>
        <source>Rock</source>
        <translation>Rock</translation>
    </message>
    <message>
        <source>Soul</source>
        <translation>Soul</translation>
    </message>
    <message>
        <source>Bright</source>
        <translation>Bright</translation>
    </message>
    <message>
        <source>Late Night</source>
        <translation>Late Night</translation>
    </message>
    <message>
        <source>Lounge</source>
        <translation>Lounge</translation>
    </message>
    <message>
        <source>Powerful</source>
        <translation>Powerful</translation>
    </message>
    <message>
        <source>Soft</source>
        <translation>Soft</translation>
    </message>
    <message>
        <source>Warm</source>
        <translation>Warm</translation>
    </message>
    <message>
        <source>Car Audio</source>
        <translation>Car Audio</translation>
    </message>
    <message>
        <source>Cinema</source>
        <translation>Cinema</translation>
    </message>
    <message>
        <source>Club</source>
        <translation>Club</translation>
    </message>
    <message>
        <source>Headphones</source>
        <translation>Headphones</translation>
    </message>
    <message>
        <source>Large Hall</source>
        <translation>Large Hall</translation>
    </message>
    <message>
        <source>Piano</source>
        <translation>Piano</translation>
    </message>
    <message>
        <source>Podcast</source>
        <translation>Podcast</translation>
    </message>
    <message>
        <source>Small Speakers</source>
        <translation>Small Speakers</translation>
    </message>
    <message>
        <source>Spoken Word</source>
        <translation>Spoken Word</translation>
    </message>
    <message>
        <source>Vocal</source>
        <translation>Vocal</translation>
    </message>
</context>
<context>
    <name>EmptyState</name>
    <message>
        <source>Nothing is playing</source>
        <translation>Nothing is playing</translation>
    </message>
    <message>
        <source>Apps appear here as soon as they play sound.</source>
        <translation>Apps appear here as soon as they play sound.</translation>
    </message>
</context>
<context>
    <name>GainText</name>
    <message>
        <source>%1 hertz</source>
        <translation>%1 hertz</translation>
    </message>
    <message numerus="yes">
        <source>%n decibels</source>
        <translation>
            <numerusform>%n decibel</numerusform>
            <numerusform>%n decibels</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>GeneralSettings</name>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Launch at login</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>Restart to Apply</source>
        <translation>Restart to Apply</translation>
    </message>
    <message>
        <source>Reset All App Volumes and EQ</source>
        <translation>Reset All App Volumes and EQ</translation>
    </message>
</context>
<context>
    <name>IconVolume</name>
    <message>
        <source>Scroll: volume of %1. Middle click: mute.</source>
        <translation>Scroll: volume of %1. Middle click: mute.</translation>
    </message>
    <message>
        <source>Scroll: volume of the loudest app. Middle click: mute.</source>
        <translation>Scroll: volume of the loudest app. Middle click: mute.</translation>
    </message>
</context>
<context>
    <name>MessageText</name>
    <message>
        <source>“%1” is a built-in preset name. Choose another name.</source>
        <translation>“%1” is a built-in preset name. Choose another name.</translation>
    </message>
    <message>
        <source>Start playback in this app first, then press record.</source>
        <translation>Start playback in this app first, then press record.</translation>
    </message>
    <message>
        <source>Could not start recording: %1</source>
        <translation>Could not start recording: %1</translation>
    </message>
    <message>
        <source>Could not save settings: %1</source>
        <translation>Could not save settings: %1</translation>
    </message>
    <message>
        <source>Settings could not be read, and changes will not be saved: %1</source>
        <translation>Settings could not be read, and changes will not be saved: %1</translation>
    </message>
    <message>
        <source>Launch at login: %1</source>
        <translation>Launch at login: %1</translation>
    </message>
    <message>
        <source>Recording of %1 stopped: the file could not be written (%2).</source>
        <translation>Recording of %1 stopped: the file could not be written (%2).</translation>
    </message>
    <message>
        <source>Create process tap</source>
        <translation>Create process tap</translation>
    </message>
    <message>
        <source>Unsupported tap format</source>
        <translation>Unsupported tap format</translation>
    </message>
    <message>
        <source>Create aggregate device</source>
        <translation>Create aggregate device</translation>
    </message>
    <message>
        <source>Create IOProc</source>
        <translation>Create IOProc</translation>
    </message>
    <message>
        <source>Start device</source>
        <translation>Start device</translation>
    </message>
    <message>
        <source>Create recording file</source>
        <translation>Create recording file</translation>
    </message>
    <message>
        <source>Set recording format</source>
        <translation>Set recording format</translation>
    </message>
    <message>
        <source>no PipeWire server is running</source>
        <translation>no PipeWire server is running</translation>
    </message>
    <message>
        <source>the device is gone</source>
        <translation>the device is gone</translation>
    </message>
    <message>
        <source>a process is gone</source>
        <translation>a process is gone</translation>
    </message>
    <message>
        <source>PipeWire made no node for it</source>
        <translation>PipeWire made no node for it</translation>
    </message>
    <message>
        <source>Cannot read %1: %2</source>
        <translation>Cannot read %1: %2</translation>
    </message>
    <message>
        <source>Cannot follow %1: %2</source>
        <translation>Cannot follow %1: %2</translation>
    </message>
    <message>
        <source>Cannot replace %1: %2</source>
        <translation>Cannot replace %1: %2</translation>
    </message>
    <message>
        <source>Cannot create a file beside %1: %2</source>
        <translation>Cannot create a file beside %1: %2</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>Cannot write %1: %2</translation>
    </message>
    <message>
        <source>Cannot create the folder %1: %2</source>
        <translation>Cannot create the folder %1: %2</translation>
    </message>
    <message>
        <source>Cannot remove %1: %2</source>
        <translation>Cannot remove %1: %2</translation>
    </message>
    <message>
        <source>%1 failed (OSStatus %2)</source>
        <translation>%1 failed (OSStatus %2)</translation>
    </message>
    <message>
        <source>%1 failed: %2</source>
        <translation>%1 failed: %2</translation>
    </message>
    <message>
        <source>larger than %1 bytes</source>
        <translation>larger than %1 bytes</translation>
    </message>
    <message>
        <source>The system does not tell where this program is.</source>
        <translation>The system does not tell where this program is.</translation>
    </message>
    <message>
        <source>Recording of %1 stopped: the output device changed its sample rate.</source>
        <translation>Recording of %1 stopped: the output device changed its sample rate.</translation>
    </message>
    <message>
        <source>Could not switch output to %1.</source>
        <translation>Could not switch output to %1.</translation>
    </message>
    <message>
        <source>Switch off the microphone</source>
        <translation>Switch off the microphone</translation>
    </message>
    <message>
        <source>of %1 files that may be open, too few are left</source>
        <translation>of %1 files that may be open, too few are left</translation>
    </message>
    <message>
        <source>the one of %1 would listen while apps play there</source>
        <translation>the one of %1 would listen while apps play there</translation>
    </message>
</context>
<context>
    <name>OutputEntries</name>
    <message>
        <source>No output</source>
        <translation>No output</translation>
    </message>
    <message>
        <source>System Output (%1)</source>
        <translation>System Output (%1)</translation>
    </message>
    <message>
        <source>System Output</source>
        <translation>System Output</translation>
    </message>
    <message>
        <source>Disconnected, muted</source>
        <translation>Disconnected, muted</translation>
    </message>
    <message>
        <source>%1, chosen by the app</source>
        <translation>%1, chosen by the app</translation>
    </message>
</context>
<context>
    <name>OutputPicker</name>
    <message>
        <source>Output</source>
        <translation>Output</translation>
    </message>
</context>
<context>
    <name>PanelHeader</name>
    <message>
        <source>Update %1</source>
        <translation>Update %1</translation>
    </message>
    <message>
        <source>Download Fadeloom %1</source>
        <translation>Download Fadeloom %1</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Quit Fadeloom</source>
        <translation>Quit Fadeloom</translation>
    </message>
</context>
<context>
    <name>PanelModel</name>
    <message>
        <source>A call app</source>
        <translation>A call app</translation>
    </message>
    <message>
        <source>%1 is on a call. Other apps lowered to %2</source>
        <extracomment>The name of an app, then a percentage with its sign.</extracomment>
        <translation>%1 is on a call. Other apps lowered to %2</translation>
    </message>
</context>
<context>
    <name>PermissionView</name>
    <message>
        <source>Allow Fadeloom to control app audio</source>
        <translation>Allow Fadeloom to control app audio</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continue</translation>
    </message>
</context>
<context>
    <name>PlatformTexts</name>
    <message>
        <source>Show in Finder</source>
        <translation>Show in Files</translation>
    </message>
    <message>
        <source>macOS asks for “System Audio Recording” access. Fadeloom uses it only to change each app’s volume, route it to an output and apply EQ. Audio is processed on your Mac and never leaves it.</source>
        <translation>Your system asks for permission to record other apps’ sound. Fadeloom uses it only to change each app’s volume, route it to an output and apply EQ. Audio is processed on your computer and never leaves it.</translation>
    </message>
    <message>
        <source>Access is turned off. Enable Fadeloom in System Settings › Privacy &amp; Security › Screen &amp; System Audio Recording.</source>
        <translation>Access is turned off. Allow Fadeloom to record sound in the system’s privacy settings.</translation>
    </message>
    <message>
        <source>Open System Settings</source>
        <translation>Open System Settings</translation>
    </message>
    <message>
        <source>Free per-app volume, output routing, equalizer and recording for macOS.</source>
        <translation>Free per-app volume, output routing, equalizer and recording for Linux.</translation>
    </message>
    <message>
        <source>You have version %1. Download the new version and replace Fadeloom in Applications.</source>
        <translation>You have version %1. Download the new version and install it in the place of this one.</translation>
    </message>
</context>
<context>
    <name>PresetEntries</name>
    <message>
        <source>My Presets</source>
        <translation>My Presets</translation>
    </message>
    <message>
        <source>Save Current as Preset…</source>
        <translation>Save Current as Preset…</translation>
    </message>
    <message>
        <source>Delete Preset</source>
        <translation>Delete Preset</translation>
    </message>
    <message>
        <source>Reset to Flat</source>
        <translation>Reset to Flat</translation>
    </message>
</context>
<context>
    <name>PresetMenu</name>
    <message>
        <source>Equalizer preset</source>
        <translation>Equalizer preset</translation>
    </message>
</context>
<context>
    <name>PresetNaming</name>
    <message>
        <source>Preset name</source>
        <translation>Preset name</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>PresetText</name>
    <message>
        <source>Custom</source>
        <translation>Custom</translation>
    </message>
</context>
<context>
    <name>RecordRow</name>
    <message>
        <source>Record</source>
        <translation>Record</translation>
    </message>
    <message>
        <source>Records this app’s sound (before volume and mute) to a WAV file</source>
        <translation>Records this app’s sound (before volume and mute) to a WAV file</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
</context>
<context>
    <name>RecordingSettings</name>
    <message>
        <source>Recording</source>
        <translation>Recording</translation>
    </message>
    <message>
        <source>Change…</source>
        <translation>Change…</translation>
    </message>
    <message>
        <source>24-bit WAV at the output’s sample rate.</source>
        <translation>24-bit WAV at the output’s sample rate.</translation>
    </message>
</context>
<context>
    <name>SettingsEntries</name>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Choose from Applications…</source>
        <translation>Choose from Applications…</translation>
    </message>
    <message>
        <source>100% (no boost)</source>
        <translation>100% (no boost)</translation>
    </message>
    <message>
        <source>Lower others during calls in %1</source>
        <extracomment>The name of an app.</extracomment>
        <translation>Lower others during calls in %1</translation>
    </message>
</context>
<context>
    <name>SettingsModel</name>
    <message>
        <source>Choose</source>
        <extracomment>On the button that confirms a folder.</extracomment>
        <translation>Choose</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>About Fadeloom %1</source>
        <translation>About Fadeloom %1</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>Can’t control audio</source>
        <translation>Can’t control audio</translation>
    </message>
    <message>
        <source>This app ties its sound to its output device.</source>
        <translation>This app ties its sound to its output device.</translation>
    </message>
    <message>
        <source>Another program keeps moving this app’s sound.</source>
        <translation>Another program keeps moving this app’s sound.</translation>
    </message>
    <message>
        <source>Output disconnected, muted</source>
        <translation>Output disconnected, muted</translation>
    </message>
    <message>
        <source>Choose another output below, or reconnect the device.</source>
        <translation>Choose another output below, or reconnect the device.</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Recording</translation>
    </message>
    <message>
        <source>On a call</source>
        <translation>On a call</translation>
    </message>
    <message>
        <source>Lowered for call</source>
        <translation>Lowered for call</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>Playing</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>Idle</translation>
    </message>
</context>
<context>
    <name>StatusRow</name>
    <message>
        <source>Retry</source>
        <translation>Retry</translation>
    </message>
</context>
<context>
    <name>UpdateChecker</name>
    <message>
        <source>Fadeloom is up to date</source>
        <translation>Fadeloom is up to date</translation>
    </message>
    <message>
        <source>You have the latest version.</source>
        <translation>You have the latest version.</translation>
    </message>
    <message>
        <source>Could not check for updates</source>
        <translation>Could not check for updates</translation>
    </message>
    <message>
        <source>Check your internet connection and try again.</source>
        <translation>Check your internet connection and try again.</translation>
    </message>
    <message>
        <source>Fadeloom %1 is available</source>
        <translation>Fadeloom %1 is available</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Download</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Later</translation>
    </message>
</context>
<context>
    <name>VolumeSettings</name>
    <message>
        <source>Volume &amp; Safety</source>
        <translation>Volume &amp; Safety</translation>
    </message>
    <message>
        <source>Maximum app volume</source>
        <translation>Maximum app volume</translation>
    </message>
    <message>
        <source>Boost makes apps louder than their original level. Peaks are limited to −1 dBFS, so the signal never clips, but loud content at high system volume can still strain small speakers. Raise it with care.</source>
        <translation>Boost makes apps louder than their original level. Peaks are limited to −1 dBFS, so the signal never clips, but loud content at high system volume can still strain small speakers. Raise it with care.</translation>
    </message>
    <message>
        <source>Apps can never play louder than their original level.</source>
        <translation>Apps can never play louder than their original level.</translation>
    </message>
    <message>
        <source>Equalizer auto headroom</source>
        <translation>Equalizer auto headroom</translation>
    </message>
    <message>
        <source>Keeps the overall loudness unchanged when the equalizer is on, so EQ changes the tone, not the level. Peaks are limited to −1 dBFS.</source>
        <translation>Keeps the overall loudness unchanged when the equalizer is on, so EQ changes the tone, not the level. Peaks are limited to −1 dBFS.</translation>
    </message>
</context>
<context>
    <name>VolumeText</name>
    <message numerus="yes">
        <source>%n percent</source>
        <translation>
            <numerusform>%n percent</numerusform>
            <numerusform>%n percent</numerusform>
        </translation>
    </message>
</context>
</TS>
