<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>DeviceType</name>
    <message>
        <source>phone</source>
        <translation>Telefono</translation>
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
        <translation>Rete</translation>
    </message>
    <message>
        <source>headset</source>
        <translation>Auricolare</translation>
    </message>
    <message>
        <source>headphones</source>
        <translation>Cuffie</translation>
    </message>
    <message>
        <source>audiovideo</source>
        <translation>Audio/video</translation>
    </message>
    <message>
        <source>keyboard</source>
        <translation>Tastiera</translation>
    </message>
    <message>
        <source>mouse</source>
        <translation>Mouse</translation>
    </message>
    <message>
        <source>joypad</source>
        <translation>Gamepad</translation>
    </message>
    <message>
        <source>tablet</source>
        <translation>Tavoletta</translation>
    </message>
    <message>
        <source>peripheral</source>
        <translation>Periferica</translation>
    </message>
    <message>
        <source>camera</source>
        <translation>Fotocamera</translation>
    </message>
    <message>
        <source>printer</source>
        <translation>Stampante</translation>
    </message>
    <message>
        <source>imaging</source>
        <translation>Immagini</translation>
    </message>
    <message>
        <source>wearable</source>
        <translation>Indossabile</translation>
    </message>
    <message>
        <source>toy</source>
        <translation>Giocattolo</translation>
    </message>
    <message>
        <source>health</source>
        <translation>Salute</translation>
    </message>
</context>
<context>
    <name>Pin</name>
    <message>
        <source>Bluetooth Pairing PIN</source>
        <translation>PIN di associazione Bluetooth</translation>
    </message>
    <message>
        <source>Please anter following the PIN:</source>
        <translation>Inserire il PIN sul dispositivo:</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>audiotest</name>
    <message>
        <source>Bluetooth Audio Test</source>
        <translation>Prova audio Bluetooth</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Audio Playback</source>
        <translation>Riproduzione audio</translation>
    </message>
    <message>
        <source>Test left</source>
        <translation>Prova a sinistra</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Prova</translation>
    </message>
    <message>
        <source>Test right</source>
        <translation>Prova a destra</translation>
    </message>
    <message>
        <source>Test mono</source>
        <translation>Prova mono</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>SX</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>Mono</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>DX</translation>
    </message>
    <message>
        <source>Audio Recording</source>
        <translation>Registrazione audio</translation>
    </message>
    <message>
        <source>Record sample</source>
        <translation>Registra prova</translation>
    </message>
    <message>
        <source>Playback sample</source>
        <translation>Ascolta prova</translation>
    </message>
    <message>
        <source>Audio Profiles:</source>
        <translation>Profili audio:</translation>
    </message>
    <message>
        <source>Bluetooth Audio Profile</source>
        <translation>Profilo audio Bluetooth</translation>
    </message>
    <message>
        <source>An error occure while changing profile</source>
        <translation>Si è verificato un errore durante il cambio di profilo</translation>
    </message>
    <message>
        <source>Audio source name</source>
        <translation>Nome della sorgente audio</translation>
    </message>
    <message>
        <source>An error occurred while getting the audio source name.</source>
        <translation>Si è verificato un errore durante la ricerca del nome della sorgente audio.</translation>
    </message>
    <message>
        <source>Sample Record</source>
        <translation>Registrazione di prova</translation>
    </message>
    <message>
        <source>An error occurred while reconding the audio sample.
The file is empty</source>
        <translation>Si è verificato un errore durante la registrazione di prova.
Il file è vuoto.</translation>
    </message>
</context>
<context>
    <name>btscan</name>
    <message>
        <source>Bluetooth Scan</source>
        <translation>Ricerca</translation>
    </message>
    <message>
        <source>Devices found</source>
        <translation>Dispositivi trovati</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Connetti</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Operazione in corso</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descrizione</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Bluetooth Connection</source>
        <translation>Connessione Bluetooth</translation>
    </message>
    <message>
        <source>Authentication rejected. Remove the device and repeat pairing</source>
        <translation>Autenticazione rifiutata. Rimuovere il dispositivo e ripetere l’associazione.</translation>
    </message>
    <message>
        <source>Connection attempt failed</source>
        <translation>Tentativo di connessione non riuscito</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; successfully connected.</source>
        <translation>Il dispositivo «%1» è stato connesso.</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; connection failure</source>
        <translation>Connessione del dispositivo «%1» non riuscita</translation>
    </message>
    <message>
        <source>Bluetooth Pairing</source>
        <translation>Associazione Bluetooth</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; pairing failure</source>
        <translation>Associazione del dispositivo «%1» non riuscita</translation>
    </message>
    <message>
        <source>Bluetooth Scan</source>
        <comment>window title</comment>
        <translation>Ricerca di dispositivi Bluetooth</translation>
    </message>
</context>
<context>
    <name>options</name>
    <message>
        <source>Bluetooth Options</source>
        <translation>Opzioni Bluetooth</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Debug log</source>
        <translation>Registro di debug</translation>
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
        <translation>Icona nel vassoio</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Default headsets profile:</source>
        <translation>Profilo cuffie predefinito:</translation>
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
        <translation>Attiva il Bluetooth</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Aggiungi</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Connetti</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Paired and connected devices</source>
        <translation>Dispositivi associati e connessi</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Disconnetti</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Options...</source>
        <translation>Opzioni…</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descrizione</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Bluetooth Connect</source>
        <translation>Connessione Bluetooth</translation>
    </message>
    <message>
        <source>Audio test</source>
        <translation>Prova audio</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Connesso</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Disconnesso</translation>
    </message>
</context>
</TS>
