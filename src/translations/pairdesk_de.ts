<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>DeviceType</name>
    <message>
        <source>phone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>modem</source>
        <translation>Modem</translation>
    </message>
    <message>
        <source>computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>network</source>
        <translation>Netzwerk</translation>
    </message>
    <message>
        <source>headset</source>
        <translation>Headset</translation>
    </message>
    <message>
        <source>headphones</source>
        <translation>Kopfhörer</translation>
    </message>
    <message>
        <source>audiovideo</source>
        <translation>Audio/Video</translation>
    </message>
    <message>
        <source>keyboard</source>
        <translation>Tastatur</translation>
    </message>
    <message>
        <source>mouse</source>
        <translation>Maus</translation>
    </message>
    <message>
        <source>joypad</source>
        <translation>Gamepad</translation>
    </message>
    <message>
        <source>tablet</source>
        <translation>Grafiktablett</translation>
    </message>
    <message>
        <source>peripheral</source>
        <translation>Peripherie</translation>
    </message>
    <message>
        <source>camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>printer</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>imaging</source>
        <translation>Bildgerät</translation>
    </message>
    <message>
        <source>wearable</source>
        <translation>Wearable</translation>
    </message>
    <message>
        <source>toy</source>
        <translation>Spielzeug</translation>
    </message>
    <message>
        <source>health</source>
        <translation>Gesundheit</translation>
    </message>
</context>
<context>
    <name>Pin</name>
    <message>
        <source>Bluetooth Pairing PIN</source>
        <translation>PIN zur Bluetooth-Kopplung</translation>
    </message>
    <message>
        <source>Please anter following the PIN:</source>
        <translation>PIN am Gerät eingeben:</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>audiotest</name>
    <message>
        <source>Bluetooth Audio Test</source>
        <translation>Bluetooth-Audiotest</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Audio Playback</source>
        <translation>Audiowiedergabe</translation>
    </message>
    <message>
        <source>Test left</source>
        <translation>Test links</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Test</translation>
    </message>
    <message>
        <source>Test right</source>
        <translation>Test rechts</translation>
    </message>
    <message>
        <source>Test mono</source>
        <translation>Test mono</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>links</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>Mono</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>rechts</translation>
    </message>
    <message>
        <source>Audio Recording</source>
        <translation>Audioaufnahme</translation>
    </message>
    <message>
        <source>Record sample</source>
        <translation>Probe aufnehmen</translation>
    </message>
    <message>
        <source>Playback sample</source>
        <translation>Probe abspielen</translation>
    </message>
    <message>
        <source>Audio Profiles:</source>
        <translation>Audioprofile:</translation>
    </message>
    <message>
        <source>Bluetooth Audio Profile</source>
        <translation>Bluetooth-Audioprofil</translation>
    </message>
    <message>
        <source>An error occure while changing profile</source>
        <translation>Beim Wechsel des Profils ist ein Fehler aufgetreten</translation>
    </message>
    <message>
        <source>Audio source name</source>
        <translation>Name der Audioquelle</translation>
    </message>
    <message>
        <source>An error occurred while getting the audio source name.</source>
        <translation>Der Name der Audioquelle konnte nicht ermittelt werden.</translation>
    </message>
    <message>
        <source>Sample Record</source>
        <translation>Probeaufnahme</translation>
    </message>
    <message>
        <source>An error occurred while reconding the audio sample.
The file is empty</source>
        <translation>Bei der Probeaufnahme ist ein Fehler aufgetreten.
Die Datei ist leer.</translation>
    </message>
</context>
<context>
    <name>btscan</name>
    <message>
        <source>Bluetooth Scan</source>
        <translation>Gerätesuche</translation>
    </message>
    <message>
        <source>Devices found</source>
        <translation>Gefundene Geräte</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Vorgang läuft</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Bluetooth Connection</source>
        <translation>Bluetooth-Verbindung</translation>
    </message>
    <message>
        <source>Authentication rejected. Remove the device and repeat pairing</source>
        <translation>Authentifizierung abgelehnt. Entfernen Sie das Gerät und koppeln Sie es erneut.</translation>
    </message>
    <message>
        <source>Connection attempt failed</source>
        <translation>Verbindungsversuch fehlgeschlagen</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; successfully connected.</source>
        <translation>Das Gerät „%1“ wurde verbunden.</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; connection failure</source>
        <translation>Verbindung mit dem Gerät „%1“ fehlgeschlagen</translation>
    </message>
    <message>
        <source>Bluetooth Pairing</source>
        <translation>Bluetooth-Kopplung</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; pairing failure</source>
        <translation>Kopplung mit dem Gerät „%1“ fehlgeschlagen</translation>
    </message>
    <message>
        <source>Bluetooth Scan</source>
        <comment>window title</comment>
        <translation>Gerätesuche</translation>
    </message>
</context>
<context>
    <name>options</name>
    <message>
        <source>Bluetooth Options</source>
        <translation>Bluetooth-Optionen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Debug log</source>
        <translation>Debug-Protokoll</translation>
    </message>
    <message>
        <source>A2DP</source>
        <extracomment>The settings store this very text: it stays as it is in every language.</extracomment>
        <translation>A2DP</translation>
    </message>
    <message>
        <source>HSP/HFP</source>
        <extracomment>The settings store this very text: it stays as it is in every language.</extracomment>
        <translation>HSP/HFP</translation>
    </message>
    <message>
        <source>Show tray icon</source>
        <translation>Symbol im Tray</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Default headsets profile:</source>
        <translation>Headset-Standardprofil:</translation>
    </message>
</context>
<context>
    <name>pairdesk</name>
    <message>
        <source>Bluetooth</source>
        <translation>Bluetooth</translation>
    </message>
    <message>
        <source>Bluetooth ON/OFF</source>
        <translation>Bluetooth EIN/AUS</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Paired and connected devices</source>
        <translation>Gekoppelte und verbundene Geräte</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Trennen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Options...</source>
        <translation>Optionen…</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Bluetooth Connect</source>
        <translation>Bluetooth-Verbindung</translation>
    </message>
    <message>
        <source>Audio test</source>
        <translation>Audiotest</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Verbunden</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Getrennt</translation>
    </message>
</context>
</TS>
