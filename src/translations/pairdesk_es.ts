<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>DeviceType</name>
    <message>
        <source>phone</source>
        <translation>Teléfono</translation>
    </message>
    <message>
        <source>modem</source>
        <translation>Módem</translation>
    </message>
    <message>
        <source>computer</source>
        <translation>Equipo</translation>
    </message>
    <message>
        <source>network</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>headset</source>
        <translation>Auriculares</translation>
    </message>
    <message>
        <source>headphones</source>
        <translation>Auriculares</translation>
    </message>
    <message>
        <source>audiovideo</source>
        <translation>Audio/vídeo</translation>
    </message>
    <message>
        <source>keyboard</source>
        <translation>Teclado</translation>
    </message>
    <message>
        <source>mouse</source>
        <translation>Ratón</translation>
    </message>
    <message>
        <source>joypad</source>
        <translation>Mando</translation>
    </message>
    <message>
        <source>tablet</source>
        <translation>Tableta</translation>
    </message>
    <message>
        <source>peripheral</source>
        <translation>Periférico</translation>
    </message>
    <message>
        <source>camera</source>
        <translation>Cámara</translation>
    </message>
    <message>
        <source>printer</source>
        <translation>Impresora</translation>
    </message>
    <message>
        <source>imaging</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>wearable</source>
        <translation>Ponible</translation>
    </message>
    <message>
        <source>toy</source>
        <translation>Juguete</translation>
    </message>
    <message>
        <source>health</source>
        <translation>Salud</translation>
    </message>
</context>
<context>
    <name>Pin</name>
    <message>
        <source>Bluetooth Pairing PIN</source>
        <translation>PIN de emparejamiento Bluetooth</translation>
    </message>
    <message>
        <source>Please anter following the PIN:</source>
        <translation>Introdúzcalo en el dispositivo:</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>audiotest</name>
    <message>
        <source>Bluetooth Audio Test</source>
        <translation>Prueba de audio Bluetooth</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Audio Playback</source>
        <translation>Reproducción de audio</translation>
    </message>
    <message>
        <source>Test left</source>
        <translation>Probar canal izquierdo</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Probar</translation>
    </message>
    <message>
        <source>Test right</source>
        <translation>Probar canal derecho</translation>
    </message>
    <message>
        <source>Test mono</source>
        <translation>Probar mono</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Izq.</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>Mono</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Der.</translation>
    </message>
    <message>
        <source>Audio Recording</source>
        <translation>Grabación de audio</translation>
    </message>
    <message>
        <source>Record sample</source>
        <translation>Grabar muestra</translation>
    </message>
    <message>
        <source>Playback sample</source>
        <translation>Escuchar muestra</translation>
    </message>
    <message>
        <source>Audio Profiles:</source>
        <translation>Perfiles de audio:</translation>
    </message>
    <message>
        <source>Bluetooth Audio Profile</source>
        <translation>Perfil de audio Bluetooth</translation>
    </message>
    <message>
        <source>An error occure while changing profile</source>
        <translation>Se produjo un error al cambiar de perfil</translation>
    </message>
    <message>
        <source>Audio source name</source>
        <translation>Nombre de la fuente de audio</translation>
    </message>
    <message>
        <source>An error occurred while getting the audio source name.</source>
        <translation>Se produjo un error al obtener el nombre de la fuente de audio.</translation>
    </message>
    <message>
        <source>Sample Record</source>
        <translation>Grabación de muestra</translation>
    </message>
    <message>
        <source>An error occurred while reconding the audio sample.
The file is empty</source>
        <translation>Se produjo un error al grabar la muestra de audio.
El archivo está vacío.</translation>
    </message>
</context>
<context>
    <name>btscan</name>
    <message>
        <source>Bluetooth Scan</source>
        <translation>Búsqueda</translation>
    </message>
    <message>
        <source>Devices found</source>
        <translation>Dispositivos encontrados</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Conectar</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Operación en curso</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Bluetooth Connection</source>
        <translation>Conexión Bluetooth</translation>
    </message>
    <message>
        <source>Authentication rejected. Remove the device and repeat pairing</source>
        <translation>Autenticación rechazada. Elimine el dispositivo y repita el emparejamiento.</translation>
    </message>
    <message>
        <source>Connection attempt failed</source>
        <translation>El intento de conexión falló</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; successfully connected.</source>
        <translation>El dispositivo «%1» se conectó correctamente.</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; connection failure</source>
        <translation>No se pudo conectar el dispositivo «%1»</translation>
    </message>
    <message>
        <source>Bluetooth Pairing</source>
        <translation>Emparejamiento Bluetooth</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; pairing failure</source>
        <translation>No se pudo emparejar el dispositivo «%1»</translation>
    </message>
    <message>
        <source>Bluetooth Scan</source>
        <comment>window title</comment>
        <translation>Búsqueda de dispositivos Bluetooth</translation>
    </message>
</context>
<context>
    <name>options</name>
    <message>
        <source>Bluetooth Options</source>
        <translation>Opciones de Bluetooth</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Debug log</source>
        <translation>Depuración (log)</translation>
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
        <translation>Icono de bandeja</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Default headsets profile:</source>
        <translation>Perfil predet. auriculares:</translation>
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
        <translation>Activar Bluetooth</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Conectar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Paired and connected devices</source>
        <translation>Dispositivos emparejados y conectados</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Desconectar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Options...</source>
        <translation>Opciones…</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Bluetooth Connect</source>
        <translation>Conexión Bluetooth</translation>
    </message>
    <message>
        <source>Audio test</source>
        <translation>Prueba de audio</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Conectado</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Desconectado</translation>
    </message>
</context>
</TS>
