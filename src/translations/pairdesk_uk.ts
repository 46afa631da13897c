<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="uk" sourcelanguage="en">
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
        <translation>Комп’ютер</translation>
    </message>
    <message>
        <source>network</source>
        <translation>Мережа</translation>
    </message>
    <message>
        <source>headset</source>
        <translation>Гарнітура</translation>
    </message>
    <message>
        <source>headphones</source>
        <translation>Навушники</translation>
    </message>
    <message>
        <source>audiovideo</source>
        <translation>Аудіо/відео</translation>
    </message>
    <message>
        <source>keyboard</source>
        <translation>Клавіатура</translation>
    </message>
    <message>
        <source>mouse</source>
        <translation>Миша</translation>
    </message>
    <message>
        <source>joypad</source>
        <translation>Джойстик</translation>
    </message>
    <message>
        <source>tablet</source>
        <translation>Планшет</translation>
    </message>
    <message>
        <source>peripheral</source>
        <translation>Периферія</translation>
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
        <translation>Зображення</translation>
    </message>
    <message>
        <source>wearable</source>
        <translation>Переносний</translation>
    </message>
    <message>
        <source>toy</source>
        <translation>Іграшка</translation>
    </message>
    <message>
        <source>health</source>
        <translation>Здоров’я</translation>
    </message>
</context>
<context>
    <name>Pin</name>
    <message>
        <source>Bluetooth Pairing PIN</source>
        <translation>PIN-код пов’язування Bluetooth</translation>
    </message>
    <message>
        <source>Please anter following the PIN:</source>
        <translation>Введіть PIN-код на пристрої:</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрити</translation>
    </message>
</context>
<context>
    <name>audiotest</name>
    <message>
        <source>Bluetooth Audio Test</source>
        <translation>Перевірка звуку Bluetooth</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрити</translation>
    </message>
    <message>
        <source>Audio Playback</source>
        <translation>Відтворення звуку</translation>
    </message>
    <message>
        <source>Test left</source>
        <translation>Тест лівого каналу</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Тест</translation>
    </message>
    <message>
        <source>Test right</source>
        <translation>Тест правого каналу</translation>
    </message>
    <message>
        <source>Test mono</source>
        <translation>Тест моно</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Лів.</translation>
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
        <translation>Запис звуку</translation>
    </message>
    <message>
        <source>Record sample</source>
        <translation>Записати зразок</translation>
    </message>
    <message>
        <source>Playback sample</source>
        <translation>Прослухати</translation>
    </message>
    <message>
        <source>Audio Profiles:</source>
        <translation>Профілі звуку:</translation>
    </message>
    <message>
        <source>Bluetooth Audio Profile</source>
        <translation>Профіль звуку Bluetooth</translation>
    </message>
    <message>
        <source>An error occure while changing profile</source>
        <translation>Під час зміни профілю сталася помилка</translation>
    </message>
    <message>
        <source>Audio source name</source>
        <translation>Назва джерела звуку</translation>
    </message>
    <message>
        <source>An error occurred while getting the audio source name.</source>
        <translation>Під час визначення назви джерела звуку сталася помилка.</translation>
    </message>
    <message>
        <source>Sample Record</source>
        <translation>Запис зразка</translation>
    </message>
    <message>
        <source>An error occurred while reconding the audio sample.
The file is empty</source>
        <translation>Під час запису зразка звуку сталася помилка.
Файл порожній.</translation>
    </message>
</context>
<context>
    <name>btscan</name>
    <message>
        <source>Bluetooth Scan</source>
        <translation>Пошук</translation>
    </message>
    <message>
        <source>Devices found</source>
        <translation>Знайдені пристрої</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>З’єднати</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Триває операція</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрити</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Вилучити</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Опис</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Тип</translation>
    </message>
    <message>
        <source>Bluetooth Connection</source>
        <translation>З’єднання Bluetooth</translation>
    </message>
    <message>
        <source>Authentication rejected. Remove the device and repeat pairing</source>
        <translation>Розпізнавання відхилено. Вилучіть пристрій і повторіть пов’язування.</translation>
    </message>
    <message>
        <source>Connection attempt failed</source>
        <translation>Не вдалося встановити з’єднання</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; successfully connected.</source>
        <translation>Пристрій «%1» успішно з’єднано.</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; connection failure</source>
        <translation>Не вдалося з’єднати пристрій «%1»</translation>
    </message>
    <message>
        <source>Bluetooth Pairing</source>
        <translation>Пов’язування Bluetooth</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; pairing failure</source>
        <translation>Не вдалося пов’язати пристрій «%1»</translation>
    </message>
    <message>
        <source>Bluetooth Scan</source>
        <comment>window title</comment>
        <translation>Пошук пристроїв Bluetooth</translation>
    </message>
</context>
<context>
    <name>options</name>
    <message>
        <source>Bluetooth Options</source>
        <translation>Параметри Bluetooth</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Debug log</source>
        <translation>Зневаджування</translation>
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
        <translation>Значок у лотку</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Скасувати</translation>
    </message>
    <message>
        <source>Default headsets profile:</source>
        <translation>Типово для гарнітур:</translation>
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
        <translation>Увімкнути Bluetooth</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Додати</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Вилучити</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>З’єднати</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Скасувати</translation>
    </message>
    <message>
        <source>Paired and connected devices</source>
        <translation>Пов’язані та з’єднані пристрої</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Роз’єднати</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Options...</source>
        <translation>Параметри…</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Опис</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Тип</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Стан</translation>
    </message>
    <message>
        <source>Bluetooth Connect</source>
        <translation>З’єднання Bluetooth</translation>
    </message>
    <message>
        <source>Audio test</source>
        <translation>Перевірка звуку</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>З’єднано</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Роз’єднано</translation>
    </message>
</context>
</TS>
