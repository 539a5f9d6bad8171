<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL">
<context>
    <name>PlatformTexts</name>
    <message>
        <source>Show in Finder</source>
        <translation>Pokaż w Finderze</translation>
    </message>
    <message>
        <source>macOS asks for “System Audio Recording” access. Fadeloom uses it only to change each app’s volume, route it to an output and apply EQ. Audio is processed on your Mac and never leaves it.</source>
        <translation>macOS prosi o zgodę na „Nagrywanie dźwięku systemowego”. Fadeloom używa jej tylko do zmiany głośności każdej aplikacji, kierowania jej na wyjście i działania korektora. Dźwięk jest przetwarzany na Twoim Macu i nigdy go nie opuszcza.</translation>
    </message>
    <message>
        <source>Access is turned off. Enable Fadeloom in System Settings › Privacy &amp; Security › Screen &amp; System Audio Recording.</source>
        <translation>Dostęp jest wyłączony. Włącz Fadeloom w Ustawieniach systemowych › Prywatność i ochrona › Nagrywanie ekranu i dźwięku systemowego.</translation>
    </message>
    <message>
        <source>Open System Settings</source>
        <translation>Otwórz Ustawienia systemowe</translation>
    </message>
    <message>
        <source>Free per-app volume, output routing, equalizer and recording for macOS.</source>
        <translation>Bezpłatna regulacja głośności, wybór wyjścia, korektor i nagrywanie dla każdej aplikacji w systemie macOS.</translation>
    </message>
    <message>
        <source>You have version %1. Download the new version and replace Fadeloom in Applications.</source>
        <translation>Masz wersję %1. Pobierz nową wersję i zastąp nią Fadeloom w folderze Aplikacje.</translation>
    </message>
</context>
</TS>
