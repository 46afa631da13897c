<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>DeviceType</name>
    <message>
        <source>phone</source>
        <translation>Telefone</translation>
    </message>
    <message>
        <source>modem</source>
        <translation>Modem</translation>
    </message>
    <message>
        <source>computer</source>
        <translation>Computador</translation>
    </message>
    <message>
        <source>network</source>
        <translation>Rede</translation>
    </message>
    <message>
        <source>headset</source>
        <translation>Headset</translation>
    </message>
    <message>
        <source>headphones</source>
        <translation>Fones</translation>
    </message>
    <message>
        <source>audiovideo</source>
        <translation>Áudio/vídeo</translation>
    </message>
    <message>
        <source>keyboard</source>
        <translation>Teclado</translation>
    </message>
    <message>
        <source>mouse</source>
        <translation>Mouse</translation>
    </message>
    <message>
        <source>joypad</source>
        <translation>Joystick</translation>
    </message>
    <message>
        <source>tablet</source>
        <translation>Mesa gráfica</translation>
    </message>
    <message>
        <source>peripheral</source>
        <translation>Periférico</translation>
    </message>
    <message>
        <source>camera</source>
        <translation>Câmera</translation>
    </message>
    <message>
        <source>printer</source>
        <translation>Impressora</translation>
    </message>
    <message>
        <source>imaging</source>
        <translation>Imagem</translation>
    </message>
    <message>
        <source>wearable</source>
        <translation>Vestível</translation>
    </message>
    <message>
        <source>toy</source>
        <translation>Brinquedo</translation>
    </message>
    <message>
        <source>health</source>
        <translation>Saúde</translation>
    </message>
</context>
<context>
    <name>Pin</name>
    <message>
        <source>Bluetooth Pairing PIN</source>
        <translation>PIN de pareamento Bluetooth</translation>
    </message>
    <message>
        <source>Please anter following the PIN:</source>
        <translation>Digite no dispositivo:</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>audiotest</name>
    <message>
        <source>Bluetooth Audio Test</source>
        <translation>Teste de áudio Bluetooth</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Audio Playback</source>
        <translation>Reprodução de áudio</translation>
    </message>
    <message>
        <source>Test left</source>
        <translation>Testar canal esquerdo</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Testar</translation>
    </message>
    <message>
        <source>Test right</source>
        <translation>Testar canal direito</translation>
    </message>
    <message>
        <source>Test mono</source>
        <translation>Testar mono</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Esq.</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>Mono</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Dir.</translation>
    </message>
    <message>
        <source>Audio Recording</source>
        <translation>Gravação de áudio</translation>
    </message>
    <message>
        <source>Record sample</source>
        <translation>Gravar amostra</translation>
    </message>
    <message>
        <source>Playback sample</source>
        <translation>Ouvir amostra</translation>
    </message>
    <message>
        <source>Audio Profiles:</source>
        <translation>Perfis de áudio:</translation>
    </message>
    <message>
        <source>Bluetooth Audio Profile</source>
        <translation>Perfil de áudio Bluetooth</translation>
    </message>
    <message>
        <source>An error occure while changing profile</source>
        <translation>Ocorreu um erro ao mudar de perfil</translation>
    </message>
    <message>
        <source>Audio source name</source>
        <translation>Nome da fonte de áudio</translation>
    </message>
    <message>
        <source>An error occurred while getting the audio source name.</source>
        <translation>Ocorreu um erro ao obter o nome da fonte de áudio.</translation>
    </message>
    <message>
        <source>Sample Record</source>
        <translation>Gravação de amostra</translation>
    </message>
    <message>
        <source>An error occurred while reconding the audio sample.
The file is empty</source>
        <translation>Ocorreu um erro ao gravar a amostra de áudio.
O arquivo está vazio.</translation>
    </message>
</context>
<context>
    <name>btscan</name>
    <message>
        <source>Bluetooth Scan</source>
        <translation>Busca</translation>
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
        <translation>Operação em andamento</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descrição</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Bluetooth Connection</source>
        <translation>Conexão Bluetooth</translation>
    </message>
    <message>
        <source>Authentication rejected. Remove the device and repeat pairing</source>
        <translation>Autenticação rejeitada. Remova o dispositivo e repita o pareamento.</translation>
    </message>
    <message>
        <source>Connection attempt failed</source>
        <translation>A tentativa de conexão falhou</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; successfully connected.</source>
        <translation>O dispositivo “%1” foi conectado.</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; connection failure</source>
        <translation>Não foi possível conectar o dispositivo “%1”</translation>
    </message>
    <message>
        <source>Bluetooth Pairing</source>
        <translation>Pareamento Bluetooth</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; pairing failure</source>
        <translation>Não foi possível parear o dispositivo “%1”</translation>
    </message>
    <message>
        <source>Bluetooth Scan</source>
        <comment>window title</comment>
        <translation>Busca de dispositivos Bluetooth</translation>
    </message>
</context>
<context>
    <name>options</name>
    <message>
        <source>Bluetooth Options</source>
        <translation>Opções do Bluetooth</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Debug log</source>
        <translation>Log de debug</translation>
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
        <translation>Ícone na bandeja</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Default headsets profile:</source>
        <translation>Perfil padrão dos fones:</translation>
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
        <translation>Ativar o Bluetooth</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Adicionar</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
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
        <translation>Dispositivos pareados e conectados</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Desconectar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Options...</source>
        <translation>Opções…</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descrição</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Bluetooth Connect</source>
        <translation>Conexão Bluetooth</translation>
    </message>
    <message>
        <source>Audio test</source>
        <translation>Teste de áudio</translation>
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
