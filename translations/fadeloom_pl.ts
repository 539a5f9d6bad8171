<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>AppDelegate</name>
    <message>
        <source>About Fadeloom</source>
        <translation>O aplikacji Fadeloom</translation>
    </message>
    <message>
        <source>Open Mixer</source>
        <translation>Otwórz mikser</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Ustawienia…</translation>
    </message>
    <message>
        <source>Launch at Login</source>
        <translation>Uruchamiaj przy logowaniu</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Sprawdź uaktualnienia…</translation>
    </message>
    <message>
        <source>Quit Fadeloom</source>
        <translation>Zakończ Fadeloom</translation>
    </message>
</context>
<context>
    <name>AppRowHead</name>
    <message>
        <source>Unmute %1</source>
        <translation>Wyłącz wyciszenie: %1</translation>
    </message>
    <message>
        <source>Mute %1</source>
        <translation>Wycisz: %1</translation>
    </message>
    <message>
        <source>Output, equalizer and recording</source>
        <translation>Wyjście, korektor i nagrywanie</translation>
    </message>
    <message>
        <source>Collapse</source>
        <translation>Zwiń</translation>
    </message>
    <message>
        <source>Expand %1</source>
        <translation>Rozwiń: %1</translation>
    </message>
    <message>
        <source>%1 volume</source>
        <translation>%1 – głośność</translation>
    </message>
    <message>
        <source>Double-click to reset to 100%</source>
        <translation>Kliknij dwukrotnie, aby przywrócić 100%</translation>
    </message>
</context>
<context>
    <name>AppearanceSettings</name>
    <message>
        <source>Appearance</source>
        <translation>Wygląd</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Motyw</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Systemowy</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Jasny</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Ciemny</translation>
    </message>
    <message>
        <source>Glass effect</source>
        <translation>Efekt szkła</translation>
    </message>
    <message>
        <source>Animations</source>
        <translation>Animacje</translation>
    </message>
    <message>
        <source>Live level meters</source>
        <translation>Wskaźniki poziomu na żywo</translation>
    </message>
    <message>
        <source>Turning off meters and animations saves a little CPU while the panel is open. Sound processing is not affected.</source>
        <translation>Wyłączenie wskaźników i animacji nieco zmniejsza użycie procesora, gdy panel jest otwarty. Nie wpływa to na przetwarzanie dźwięku.</translation>
    </message>
</context>
<context>
    <name>Banner</name>
    <message>
        <source>Dismiss</source>
        <translation>Zamknij</translation>
    </message>
</context>
<context>
    <name>CallAppList</name>
    <message>
        <source>Remove %1</source>
        <translation>Usuń: %1</translation>
    </message>
</context>
<context>
    <name>CallOffer</name>
    <message>
        <source>Don’t offer this for %1 again</source>
        <translation>Nie proponuj tego więcej dla: %1</translation>
    </message>
</context>
<context>
    <name>CallSettings</name>
    <message>
        <source>Focus Mode</source>
        <translation>Tryb skupienia</translation>
    </message>
    <message>
        <source>Lower other apps during calls</source>
        <translation>Ściszaj inne aplikacje podczas rozmów</translation>
    </message>
    <message>
        <source>When a call app below uses the microphone, everything else fades down and comes back when the call ends.</source>
        <translation>Gdy aplikacja do rozmów z listy poniżej używa mikrofonu, wszystkie pozostałe cichną, a po zakończeniu rozmowy wracają do poprzedniej głośności.</translation>
    </message>
    <message>
        <source>Lower to</source>
        <translation>Ścisz do poziomu</translation>
    </message>
    <message>
        <source>Add App</source>
        <translation>Dodaj aplikację</translation>
    </message>
    <message>
        <source>Reset List</source>
        <translation>Przywróć listę domyślną</translation>
    </message>
</context>
<context>
    <name>DeviceRow</name>
    <message>
        <source>Output</source>
        <translation>Wyjście</translation>
    </message>
</context>
<context>
    <name>EQHeader</name>
    <message>
        <source>Equalizer</source>
        <translation>Korektor</translation>
    </message>
</context>
<context>
    <name>EQPreamp</name>
    <message>
        <source>Preamp</source>
        <translation>Wzmocnienie</translation>
    </message>
    <message>
        <source>Double-click to reset</source>
        <translation>Kliknij dwukrotnie, aby wyzerować</translation>
    </message>
</context>
<context>
    <name>EQPresets</name>
    <message>
        <source>Basic</source>
        <translation>Podstawowe</translation>
    </message>
    <message>
        <source>Genres</source>
        <translation>Gatunki</translation>
    </message>
    <message>
        <source>Moods</source>
        <translation>Nastroje</translation>
    </message>
    <message>
        <source>Use Cases</source>
        <translation>Zastosowania</translation>
    </message>
    <message>
        <source>Flat</source>
        <translation>Płaski</translation>
    </message>
    <message>
        <source>Bass Boost</source>
        <translation>Wzmocnienie basów</translation>
    </message>
    <message>
        <source>Treble Boost</source>
        <translation>Wzmocnienie sopranów</translation>
    </message>
    <message>
        <source>Loudness</source>
        <translation>Kontur</translation>
    </message>
    <message>
        <source>Acoustic</source>
        <translation>Akustyczna</translation>
    </message>
    <message>
        <source>Blues</source>
        <translation>Blues</translation>
    </message>
    <message>
        <source>Classical</source>
        <translation>Klasyczna</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Country</translation>
    </message>
    <message>
        <source>Dance</source>
        <translation>Taneczna</translation>
    </message>
    <message>
        <source>Electronic</source>
        <translation>Elektroniczna</translation>
    </message>
    <message>
        <source>Funk</source>
        <translation>Funk</translation>
    </message>
    <message>
        <source>Hip-Hop</source>
        <translation>Hip-hop</translation>
    </message>
    <message>
        <source>Jazz</source>
        <translation>Jazz</translation>
    </message>
    <message>
        <source>Latin</source>
        <translation>Latynoska</translation>
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
        <translation>Jasny</translation>
    </message>
    <message>
        <source>Late Night</source>
        <translation>Późna noc</translation>
    </message>
    <message>
        <source>Lounge</source>
        <translation>Lounge</translation>
    </message>
    <message>
        <source>Powerful</source>
        <translation>Mocny</translation>
    </message>
    <message>
        <source>Soft</source>
        <translation>Łagodny</translation>
    </message>
    <message>
        <source>Warm</source>
        <translation>Ciepły</translation>
    </message>
    <message>
        <source>Car Audio</source>
        <translation>Samochód</translation>
    </message>
    <message>
        <source>Cinema</source>
        <translation>Kino</translation>
    </message>
    <message>
        <source>Club</source>
        <translation>Klub</translation>
    </message>
    <message>
        <source>Headphones</source>
        <translation>Słuchawki</translation>
    </message>
    <message>
        <source>Large Hall</source>
        <translation>Duża sala</translation>
    </message>
    <message>
        <source>Piano</source>
        <translation>Fortepian</translation>
    </message>
    <message>
        <source>Podcast</source>
        <translation>Podcast</translation>
    </message>
    <message>
        <source>Small Speakers</source>
        <translation>Małe głośniki</translation>
    </message>
    <message>
        <source>Spoken Word</source>
        <translation>Mowa</translation>
    </message>
    <message>
        <source>Vocal</source>
        <translation>Wokal</translation>
    </message>
</context>
<context>
    <name>EmptyState</name>
    <message>
        <source>Nothing is playing</source>
        <translation>Nic nie gra</translation>
    </message>
    <message>
        <source>Apps appear here as soon as they play sound.</source>
        <translation>Aplikacje pojawią się tutaj, gdy tylko zaczną odtwarzać dźwięk.</translation>
    </message>
</context>
<context>
    <name>GainText</name>
    <message>
        <source>%1 hertz</source>
        <translation>%1 Hz</translation>
    </message>
    <message numerus="yes">
        <source>%n decibels</source>
        <translation>
            <numerusform>%n decybel</numerusform>
            <numerusform>%n decybele</numerusform>
            <numerusform>%n decybeli</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>GeneralSettings</name>
    <message>
        <source>General</source>
        <translation>Ogólne</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Uruchamiaj przy logowaniu</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Język</translation>
    </message>
    <message>
        <source>Restart to Apply</source>
        <translation>Uruchom ponownie</translation>
    </message>
    <message>
        <source>Reset All App Volumes and EQ</source>
        <translation>Resetuj głośność i korektor wszystkich aplikacji</translation>
    </message>
</context>
<context>
    <name>IconVolume</name>
    <message>
        <source>Scroll: volume of %1. Middle click: mute.</source>
        <translation>Kółko: głośność %1. Środkowy przycisk: wyciszenie.</translation>
    </message>
    <message>
        <source>Scroll: volume of the loudest app. Middle click: mute.</source>
        <translation>Kółko: głośność najgłośniejszej aplikacji. Środkowy przycisk: wyciszenie.</translation>
    </message>
</context>
<context>
    <name>MessageText</name>
    <message>
        <source>“%1” is a built-in preset name. Choose another name.</source>
        <translation>„%1” to nazwa wbudowanego ustawienia. Wybierz inną nazwę.</translation>
    </message>
    <message>
        <source>Start playback in this app first, then press record.</source>
        <translation>Najpierw włącz odtwarzanie w tej aplikacji, a potem rozpocznij nagrywanie.</translation>
    </message>
    <message>
        <source>Could not start recording: %1</source>
        <translation>Nie udało się rozpocząć nagrywania: %1</translation>
    </message>
    <message>
        <source>Could not save settings: %1</source>
        <translation>Nie udało się zapisać ustawień: %1</translation>
    </message>
    <message>
        <source>Settings could not be read, and changes will not be saved: %1</source>
        <translation>Nie udało się odczytać ustawień, a zmiany nie zostaną zapisane: %1</translation>
    </message>
    <message>
        <source>Launch at login: %1</source>
        <translation>Uruchamianie przy logowaniu: %1</translation>
    </message>
    <message>
        <source>Recording of %1 stopped: the file could not be written (%2).</source>
        <translation>Nagrywanie aplikacji %1 zostało zatrzymane: nie można zapisać pliku (%2).</translation>
    </message>
    <message>
        <source>Create process tap</source>
        <translation>Przechwycenie dźwięku aplikacji</translation>
    </message>
    <message>
        <source>Unsupported tap format</source>
        <translation>Nieobsługiwany format przechwyconego dźwięku</translation>
    </message>
    <message>
        <source>Create aggregate device</source>
        <translation>Utworzenie urządzenia zbiorczego</translation>
    </message>
    <message>
        <source>Create IOProc</source>
        <translation>Utworzenie procedury wejścia i wyjścia</translation>
    </message>
    <message>
        <source>Start device</source>
        <translation>Uruchomienie urządzenia</translation>
    </message>
    <message>
        <source>Create recording file</source>
        <translation>Utworzenie pliku nagrania</translation>
    </message>
    <message>
        <source>Set recording format</source>
        <translation>Ustawienie formatu nagrania</translation>
    </message>
    <message>
        <source>no PipeWire server is running</source>
        <translation>serwer PipeWire nie działa</translation>
    </message>
    <message>
        <source>the device is gone</source>
        <translation>urządzenia już nie ma</translation>
    </message>
    <message>
        <source>a process is gone</source>
        <translation>proces już się zakończył</translation>
    </message>
    <message>
        <source>PipeWire made no node for it</source>
        <translation>PipeWire nie utworzył dla niego węzła</translation>
    </message>
    <message>
        <source>Cannot read %1: %2</source>
        <translation>Nie można odczytać %1: %2</translation>
    </message>
    <message>
        <source>Cannot follow %1: %2</source>
        <translation>Nie można podążyć za dowiązaniem %1: %2</translation>
    </message>
    <message>
        <source>Cannot replace %1: %2</source>
        <translation>Nie można zastąpić %1: %2</translation>
    </message>
    <message>
        <source>Cannot create a file beside %1: %2</source>
        <translation>Nie można utworzyć pliku obok %1: %2</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>Nie można zapisać %1: %2</translation>
    </message>
    <message>
        <source>Cannot create the folder %1: %2</source>
        <translation>Nie można utworzyć folderu %1: %2</translation>
    </message>
    <message>
        <source>Cannot remove %1: %2</source>
        <translation>Nie można usunąć %1: %2</translation>
    </message>
    <message>
        <source>%1 failed (OSStatus %2)</source>
        <translation>%1: niepowodzenie (OSStatus %2)</translation>
    </message>
    <message>
        <source>%1 failed: %2</source>
        <translation>%1: niepowodzenie, %2</translation>
    </message>
    <message>
        <source>larger than %1 bytes</source>
        <translation>więcej niż %1 bajtów</translation>
    </message>
    <message>
        <source>The system does not tell where this program is.</source>
        <translation>System nie podaje, gdzie jest ten program.</translation>
    </message>
    <message>
        <source>Recording of %1 stopped: the output device changed its sample rate.</source>
        <translation>Nagrywanie aplikacji %1 zostało zatrzymane: urządzenie wyjściowe zmieniło częstotliwość próbkowania.</translation>
    </message>
    <message>
        <source>Could not switch output to %1.</source>
        <translation>Nie udało się przełączyć wyjścia na %1.</translation>
    </message>
    <message>
        <source>Switch off the microphone</source>
        <translation>Wyłączenie mikrofonu</translation>
    </message>
    <message>
        <source>of %1 files that may be open, too few are left</source>
        <translation>z %1 plików, które wolno otworzyć, zostało zbyt mało</translation>
    </message>
    <message>
        <source>the one of %1 would listen while apps play there</source>
        <translation>mikrofon urządzenia %1 słuchałby, gdy grają tam aplikacje</translation>
    </message>
</context>
<context>
    <name>OutputEntries</name>
    <message>
        <source>No output</source>
        <translation>Brak wyjścia</translation>
    </message>
    <message>
        <source>System Output (%1)</source>
        <translation>Wyjście systemowe (%1)</translation>
    </message>
    <message>
        <source>System Output</source>
        <translation>Wyjście systemowe</translation>
    </message>
    <message>
        <source>Disconnected, muted</source>
        <translation>Odłączone, wyciszono</translation>
    </message>
    <message>
        <source>%1, chosen by the app</source>
        <translation>%1, wybór aplikacji</translation>
    </message>
</context>
<context>
    <name>OutputPicker</name>
    <message>
        <source>Output</source>
        <translation>Wyjście</translation>
    </message>
</context>
<context>
    <name>PanelHeader</name>
    <message>
        <source>Update %1</source>
        <translation>Uaktualnij do %1</translation>
    </message>
    <message>
        <source>Download Fadeloom %1</source>
        <translation>Pobierz Fadeloom %1</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>Quit Fadeloom</source>
        <translation>Zakończ Fadeloom</translation>
    </message>
</context>
<context>
    <name>PanelModel</name>
    <message>
        <source>A call app</source>
        <translation>Aplikacja do rozmów</translation>
    </message>
    <message>
        <source>%1 is on a call. Other apps lowered to %2</source>
        <extracomment>The name of an app, then a percentage with its sign.</extracomment>
        <translation>%1: trwa rozmowa. Inne aplikacje ściszono do %2</translation>
    </message>
</context>
<context>
    <name>PermissionView</name>
    <message>
        <source>Allow Fadeloom to control app audio</source>
        <translation>Pozwól aplikacji Fadeloom sterować dźwiękiem aplikacji</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Dalej</translation>
    </message>
</context>
<context>
    <name>PlatformTexts</name>
    <message>
        <source>Show in Finder</source>
        <translation>Pokaż w plikach</translation>
    </message>
    <message>
        <source>macOS asks for “System Audio Recording” access. Fadeloom uses it only to change each app’s volume, route it to an output and apply EQ. Audio is processed on your Mac and never leaves it.</source>
        <translation>System prosi o zgodę na nagrywanie dźwięku innych aplikacji. Fadeloom używa jej tylko do zmiany głośności każdej aplikacji, kierowania jej na wyjście i działania korektora. Dźwięk jest przetwarzany na Twoim komputerze i nigdy go nie opuszcza.</translation>
    </message>
    <message>
        <source>Access is turned off. Enable Fadeloom in System Settings › Privacy &amp; Security › Screen &amp; System Audio Recording.</source>
        <translation>Dostęp jest wyłączony. Zezwól aplikacji Fadeloom na nagrywanie dźwięku w ustawieniach prywatności systemu.</translation>
    </message>
    <message>
        <source>Open System Settings</source>
        <translation>Otwórz ustawienia systemowe</translation>
    </message>
    <message>
        <source>Free per-app volume, output routing, equalizer and recording for macOS.</source>
        <translation>Bezpłatna regulacja głośności, wybór wyjścia, korektor i nagrywanie dla każdej aplikacji w systemie Linux.</translation>
    </message>
    <message>
        <source>You have version %1. Download the new version and replace Fadeloom in Applications.</source>
        <translation>Masz wersję %1. Pobierz nową wersję i zainstaluj ją w miejsce obecnej.</translation>
    </message>
</context>
<context>
    <name>PresetEntries</name>
    <message>
        <source>My Presets</source>
        <translation>Moje ustawienia</translation>
    </message>
    <message>
        <source>Save Current as Preset…</source>
        <translation>Zachowaj bieżące jako ustawienie…</translation>
    </message>
    <message>
        <source>Delete Preset</source>
        <translation>Usuń ustawienie</translation>
    </message>
    <message>
        <source>Reset to Flat</source>
        <translation>Przywróć płaski</translation>
    </message>
</context>
<context>
    <name>PresetMenu</name>
    <message>
        <source>Equalizer preset</source>
        <translation>Ustawienie korektora</translation>
    </message>
</context>
<context>
    <name>PresetNaming</name>
    <message>
        <source>Preset name</source>
        <translation>Nazwa ustawienia</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Zachowaj</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
</context>
<context>
    <name>PresetText</name>
    <message>
        <source>Custom</source>
        <translation>Własne</translation>
    </message>
</context>
<context>
    <name>RecordRow</name>
    <message>
        <source>Record</source>
        <translation>Nagrywanie</translation>
    </message>
    <message>
        <source>Records this app’s sound (before volume and mute) to a WAV file</source>
        <translation>Nagrywa dźwięk tej aplikacji (przed regulacją głośności i wyciszeniem) do pliku WAV</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Zatrzymaj</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Rozpocznij</translation>
    </message>
</context>
<context>
    <name>RecordingSettings</name>
    <message>
        <source>Recording</source>
        <translation>Nagrywanie</translation>
    </message>
    <message>
        <source>Change…</source>
        <translation>Zmień…</translation>
    </message>
    <message>
        <source>24-bit WAV at the output’s sample rate.</source>
        <translation>24-bitowy plik WAV z częstotliwością próbkowania wyjścia.</translation>
    </message>
</context>
<context>
    <name>SettingsEntries</name>
    <message>
        <source>System</source>
        <translation>Systemowy</translation>
    </message>
    <message>
        <source>Choose from Applications…</source>
        <translation>Wybierz z aplikacji…</translation>
    </message>
    <message>
        <source>100% (no boost)</source>
        <translation>100% (bez wzmocnienia)</translation>
    </message>
    <message>
        <source>Lower others during calls in %1</source>
        <extracomment>The name of an app.</extracomment>
        <translation>Przyciszaj inne podczas rozmów w: %1</translation>
    </message>
</context>
<context>
    <name>SettingsModel</name>
    <message>
        <source>Choose</source>
        <extracomment>On the button that confirms a folder.</extracomment>
        <translation>Wybierz</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>About Fadeloom %1</source>
        <translation>Fadeloom %1 — informacje</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>Can’t control audio</source>
        <translation>Nie można sterować dźwiękiem</translation>
    </message>
    <message>
        <source>This app ties its sound to its output device.</source>
        <translation>Ta aplikacja wiąże dźwięk ze swoim urządzeniem wyjściowym.</translation>
    </message>
    <message>
        <source>Another program keeps moving this app’s sound.</source>
        <translation>Inny program stale przenosi dźwięk tej aplikacji.</translation>
    </message>
    <message>
        <source>Output disconnected, muted</source>
        <translation>Wyjście odłączone, wyciszono</translation>
    </message>
    <message>
        <source>Choose another output below, or reconnect the device.</source>
        <translation>Wybierz poniżej inne wyjście lub ponownie podłącz urządzenie.</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Nagrywanie</translation>
    </message>
    <message>
        <source>On a call</source>
        <translation>Trwa rozmowa</translation>
    </message>
    <message>
        <source>Lowered for call</source>
        <translation>Ściszono na czas rozmowy</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>Odtwarzanie</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>Bezczynna</translation>
    </message>
</context>
<context>
    <name>StatusRow</name>
    <message>
        <source>Retry</source>
        <translation>Ponów</translation>
    </message>
</context>
<context>
    <name>UpdateChecker</name>
    <message>
        <source>Fadeloom is up to date</source>
        <translation>Fadeloom jest aktualny</translation>
    </message>
    <message>
        <source>You have the latest version.</source>
        <translation>Masz najnowszą wersję.</translation>
    </message>
    <message>
        <source>Could not check for updates</source>
        <translation>Nie można sprawdzić uaktualnień</translation>
    </message>
    <message>
        <source>Check your internet connection and try again.</source>
        <translation>Sprawdź połączenie z internetem i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Fadeloom %1 is available</source>
        <translation>Dostępny jest Fadeloom %1</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Pobierz</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Później</translation>
    </message>
</context>
<context>
    <name>VolumeSettings</name>
    <message>
        <source>Volume &amp; Safety</source>
        <translation>Głośność i bezpieczeństwo</translation>
    </message>
    <message>
        <source>Maximum app volume</source>
        <translation>Maksymalna głośność aplikacji</translation>
    </message>
    <message>
        <source>Boost makes apps louder than their original level. Peaks are limited to −1 dBFS, so the signal never clips, but loud content at high system volume can still strain small speakers. Raise it with care.</source>
        <translation>Wzmocnienie sprawia, że aplikacje grają głośniej niż ich oryginalny poziom. Szczyty są ograniczane do −1 dBFS, więc sygnał nigdy nie jest przesterowany, ale głośny dźwięk przy dużej głośności systemu może obciążać małe głośniki. Zwiększaj ostrożnie.</translation>
    </message>
    <message>
        <source>Apps can never play louder than their original level.</source>
        <translation>Aplikacje nigdy nie grają głośniej niż ich oryginalny poziom.</translation>
    </message>
    <message>
        <source>Equalizer auto headroom</source>
        <translation>Automatyczny zapas korektora</translation>
    </message>
    <message>
        <source>Keeps the overall loudness unchanged when the equalizer is on, so EQ changes the tone, not the level. Peaks are limited to −1 dBFS.</source>
        <translation>Utrzymuje ogólną głośność bez zmian, gdy korektor jest włączony, dzięki czemu korektor zmienia barwę, a nie poziom. Szczyty są ograniczane do −1 dBFS.</translation>
    </message>
</context>
<context>
    <name>VolumeText</name>
    <message numerus="yes">
        <source>%n percent</source>
        <translation>
            <numerusform>%n procent</numerusform>
            <numerusform>%n procent</numerusform>
            <numerusform>%n procent</numerusform>
        </translation>
    </message>
</context>
</TS>
