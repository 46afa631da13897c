<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>DeviceType</name>
    <message>
        <source>phone</source>
        <translation>Телефон</translation>
    </message>
    <message>
        <source>modem</source>
        <translation>Модем</translation>
    </message>
    <message>
        <source>computer</source>
        <translation>Компьютер</translation>
    </message>
    <message>
        <source>network</source>
        <translation>Сеть</translation>
    </message>
    <message>
        <source>headset</source>
        <translation>Гарнитура</translation>
    </message>
    <message>
        <source>headphones</source>
        <translation>Наушники</translation>
    </message>
    <message>
        <source>audiovideo</source>
        <translation>Аудио/видео</translation>
    </message>
    <message>
        <source>keyboard</source>
        <translation>Клавиатура</translation>
    </message>
    <message>
        <source>mouse</source>
        <translation>Мышь</translation>
    </message>
    <message>
        <source>joypad</source>
        <translation>Геймпад</translation>
    </message>
    <message>
        <source>tablet</source>
        <translation>Планшет</translation>
    </message>
    <message>
        <source>peripheral</source>
        <translation>Периферия</translation>
    </message>
    <message>
        <source>camera</source>
        <translation>Камера</translation>
    </message>
    <message>
        <source>printer</source>
        <translation>Принтер</translation>
    </message>
    <message>
        <source>imaging</source>
        <translation>Сканер</translation>
    </message>
    <message>
        <source>wearable</source>
        <translation>Носимое</translation>
    </message>
    <message>
        <source>toy</source>
        <translation>Игрушка</translation>
    </message>
    <message>
        <source>health</source>
        <translation>Здоровье</translation>
    </message>
</context>
<context>
    <name>Pin</name>
    <message>
        <source>Bluetooth Pairing PIN</source>
        <translation>PIN-код сопряжения Bluetooth</translation>
    </message>
    <message>
        <source>Please anter following the PIN:</source>
        <translation>Введите PIN на устройстве:</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
</context>
<context>
    <name>audiotest</name>
    <message>
        <source>Bluetooth Audio Test</source>
        <translation>Проверка звука Bluetooth</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Audio Playback</source>
        <translation>Воспроизведение звука</translation>
    </message>
    <message>
        <source>Test left</source>
        <translation>Тест левого канала</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Тест</translation>
    </message>
    <message>
        <source>Test right</source>
        <translation>Тест правого канала</translation>
    </message>
    <message>
        <source>Test mono</source>
        <translation>Тест моно</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Лев.</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>Моно</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Прав.</translation>
    </message>
    <message>
        <source>Audio Recording</source>
        <translation>Запись звука</translation>
    </message>
    <message>
        <source>Record sample</source>
        <translation>Пробная запись</translation>
    </message>
    <message>
        <source>Playback sample</source>
        <translation>Прослушать</translation>
    </message>
    <message>
        <source>Audio Profiles:</source>
        <translation>Профили звука:</translation>
    </message>
    <message>
        <source>Bluetooth Audio Profile</source>
        <translation>Профиль звука Bluetooth</translation>
    </message>
    <message>
        <source>An error occure while changing profile</source>
        <translation>При смене профиля произошла ошибка</translation>
    </message>
    <message>
        <source>Audio source name</source>
        <translation>Имя источника звука</translation>
    </message>
    <message>
        <source>An error occurred while getting the audio source name.</source>
        <translation>При определении имени источника звука произошла ошибка.</translation>
    </message>
    <message>
        <source>Sample Record</source>
        <translation>Пробная запись</translation>
    </message>
    <message>
        <source>An error occurred while reconding the audio sample.
The file is empty</source>
        <translation>При пробной записи звука произошла ошибка.
Файл пуст.</translation>
    </message>
</context>
<context>
    <name>btscan</name>
    <message>
        <source>Bluetooth Scan</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>Devices found</source>
        <translation>Найденные устройства</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Подключить</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Выполняется</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Описание</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Тип</translation>
    </message>
    <message>
        <source>Bluetooth Connection</source>
        <translation>Подключение Bluetooth</translation>
    </message>
    <message>
        <source>Authentication rejected. Remove the device and repeat pairing</source>
        <translation>Аутентификация отклонена. Удалите устройство и повторите сопряжение.</translation>
    </message>
    <message>
        <source>Connection attempt failed</source>
        <translation>Не удалось установить соединение</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; successfully connected.</source>
        <translation>Устройство «%1» успешно подключено.</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; connection failure</source>
        <translation>Не удалось подключить устройство «%1»</translation>
    </message>
    <message>
        <source>Bluetooth Pairing</source>
        <translation>Сопряжение Bluetooth</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; pairing failure</source>
        <translation>Не удалось выполнить сопряжение с устройством «%1»</translation>
    </message>
    <message>
        <source>Bluetooth Scan</source>
        <comment>window title</comment>
        <translation>Поиск устройств Bluetooth</translation>
    </message>
</context>
<context>
    <name>options</name>
    <message>
        <source>Bluetooth Options</source>
        <translation>Настройки Bluetooth</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Debug log</source>
        <translation>Журнал отладки</translation>
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
        <translation>Значок в трее</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Default headsets profile:</source>
        <translation>Профиль для гарнитур:</translation>
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
        <translation>Bluetooth вкл./выкл.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Добавить</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Подключить</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Paired and connected devices</source>
        <translation>Сопряжённые и подключённые устройства</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Отключить</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Options...</source>
        <translation>Настройки…</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Описание</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Тип</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Состояние</translation>
    </message>
    <message>
        <source>Bluetooth Connect</source>
        <translation>Подключение Bluetooth</translation>
    </message>
    <message>
        <source>Audio test</source>
        <translation>Проверка звука</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Подключено</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Отключено</translation>
    </message>
</context>
</TS>
