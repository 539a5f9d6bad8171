<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>PlatformTexts</name>
    <message>
        <source>Show in Finder</source>
        <translation>Show in Finder</translation>
    </message>
    <message>
        <source>macOS asks for “System Audio Recording” access. Fadeloom uses it only to change each app’s volume, route it to an output and apply EQ. Audio is processed on your Mac and never leaves it.</source>
        <translation>macOS asks for “System Audio Recording” access. Fadeloom uses it only to change each app’s volume, route it to an output and apply EQ. Audio is processed on your Mac and never leaves it.</translation>
    </message>
    <message>
        <source>Access is turned off. Enable Fadeloom in System Settings › Privacy &amp; Security › Screen &amp; System Audio Recording.</source>
        <translation>Access is turned off. Enable Fadeloom in System Settings › Privacy &amp; Security › Screen &amp; System Audio Recording.</translation>
    </message>
    <message>
        <source>Open System Settings</source>
        <translation>Open System Settings</translation>
    </message>
    <message>
        <source>Free per-app volume, output routing, equalizer and recording for macOS.</source>
        <translation>Free per-app volume, output routing, equalizer and recording for macOS.</translation>
    </message>
    <message>
        <source>You have version %1. Download the new version and replace Fadeloom in Applications.</source>
        <translation>You have version %1. Download the new version and replace Fadeloom in Applications.</translation>
    </message>
</context>
</TS>
