<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
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
        <translation>Komputer</translation>
    </message>
    <message>
        <source>network</source>
        <translation>Sieć</translation>
    </message>
    <message>
        <source>headset</source>
        <translation>Headset</translation>
    </message>
    <message>
        <source>headphones</source>
        <translation>Słuchawki</translation>
    </message>
    <message>
        <source>audiovideo</source>
        <translation>Audio/wideo</translation>
    </message>
    <message>
        <source>keyboard</source>
        <translation>Klawiatura</translation>
    </message>
    <message>
        <source>mouse</source>
        <translation>Mysz</translation>
    </message>
    <message>
        <source>joypad</source>
        <translation>Kontroler</translation>
    </message>
    <message>
        <source>tablet</source>
        <translation>Tablet</translation>
    </message>
    <message>
        <source>peripheral</source>
        <translation>Peryferia</translation>
    </message>
    <message>
        <source>camera</source>
        <translation>Aparat</translation>
    </message>
    <message>
        <source>printer</source>
        <translation>Drukarka</translation>
    </message>
    <message>
        <source>imaging</source>
        <translation>Obrazy</translation>
    </message>
    <message>
        <source>wearable</source>
        <translation>Ubieralne</translation>
    </message>
    <message>
        <source>toy</source>
        <translation>Zabawka</translation>
    </message>
    <message>
        <source>health</source>
        <translation>Zdrowie</translation>
    </message>
</context>
<context>
    <name>Pin</name>
    <message>
        <source>Bluetooth Pairing PIN</source>
        <translation>PIN parowania Bluetooth</translation>
    </message>
    <message>
        <source>Please anter following the PIN:</source>
        <translation>Wpisz ten PIN na urządzeniu:</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
</context>
<context>
    <name>audiotest</name>
    <message>
        <source>Bluetooth Audio Test</source>
        <translation>Test dźwięku Bluetooth</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>Audio Playback</source>
        <translation>Odtwarzanie dźwięku</translation>
    </message>
    <message>
        <source>Test left</source>
        <translation>Test lewego kanału</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Test</translation>
    </message>
    <message>
        <source>Test right</source>
        <translation>Test prawego kanału</translation>
    </message>
    <message>
        <source>Test mono</source>
        <translation>Test mono</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Lewy</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>Mono</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Prawy</translation>
    </message>
    <message>
        <source>Audio Recording</source>
        <translation>Nagrywanie dźwięku</translation>
    </message>
    <message>
        <source>Record sample</source>
        <translation>Nagraj próbkę</translation>
    </message>
    <message>
        <source>Playback sample</source>
        <translation>Odtwórz próbkę</translation>
    </message>
    <message>
        <source>Audio Profiles:</source>
        <translation>Profile dźwięku:</translation>
    </message>
    <message>
        <source>Bluetooth Audio Profile</source>
        <translation>Profil dźwięku Bluetooth</translation>
    </message>
    <message>
        <source>An error occure while changing profile</source>
        <translation>Wystąpił błąd podczas zmiany profilu</translation>
    </message>
    <message>
        <source>Audio source name</source>
        <translation>Nazwa źródła dźwięku</translation>
    </message>
    <message>
        <source>An error occurred while getting the audio source name.</source>
        <translation>Wystąpił błąd podczas pobierania nazwy źródła dźwięku.</translation>
    </message>
    <message>
        <source>Sample Record</source>
        <translation>Nagrywanie próbki</translation>
    </message>
    <message>
        <source>An error occurred while reconding the audio sample.
The file is empty</source>
        <translation>Wystąpił błąd podczas nagrywania próbki dźwięku.
Plik jest pusty.</translation>
    </message>
</context>
<context>
    <name>btscan</name>
    <message>
        <source>Bluetooth Scan</source>
        <translation>Wyszukiwanie</translation>
    </message>
    <message>
        <source>Devices found</source>
        <translation>Znalezione urządzenia</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Połącz</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Trwa operacja</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Opis</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Bluetooth Connection</source>
        <translation>Połączenie Bluetooth</translation>
    </message>
    <message>
        <source>Authentication rejected. Remove the device and repeat pairing</source>
        <translation>Uwierzytelnianie odrzucone. Usuń urządzenie i powtórz parowanie.</translation>
    </message>
    <message>
        <source>Connection attempt failed</source>
        <translation>Próba połączenia nie powiodła się</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; successfully connected.</source>
        <translation>Urządzenie „%1” zostało połączone.</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; connection failure</source>
        <translation>Połączenie z urządzeniem „%1” nie powiodło się</translation>
    </message>
    <message>
        <source>Bluetooth Pairing</source>
        <translation>Parowanie Bluetooth</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; pairing failure</source>
        <translation>Parowanie z urządzeniem „%1” nie powiodło się</translation>
    </message>
    <message>
        <source>Bluetooth Scan</source>
        <comment>window title</comment>
        <translation>Wyszukiwanie urządzeń Bluetooth</translation>
    </message>
</context>
<context>
    <name>options</name>
    <message>
        <source>Bluetooth Options</source>
        <translation>Opcje Bluetooth</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Debug log</source>
        <translation>Log debugowania</translation>
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
        <translation>Ikona zasobnika</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Default headsets profile:</source>
        <translation>Domyślny profil słuchawek:</translation>
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
        <translation>Bluetooth WŁ./WYŁ.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Dodaj</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Połącz</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Paired and connected devices</source>
        <translation>Sparowane i połączone urządzenia</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Rozłącz</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Options...</source>
        <translation>Opcje…</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Opis</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stan</translation>
    </message>
    <message>
        <source>Bluetooth Connect</source>
        <translation>Połączenie Bluetooth</translation>
    </message>
    <message>
        <source>Audio test</source>
        <translation>Test dźwięku</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Połączone</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Rozłączone</translation>
    </message>
</context>
</TS>
