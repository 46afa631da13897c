<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="uk" sourcelanguage="en">
<context>
    <name>Pin</name>
    <message>
        <source>Bluetooth Pairing PIN</source>
        <translation>PIN-код пов’язування Bluetooth</translation>
    </message>
    <message>
        <source>Please anter following the PIN:</source>
        <translation>Введіть цей PIN-код:</translation>
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
Файл порожній</translation>
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
        <translation>Зайнято</translation>
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
        <translation>Розпізнавання відхилено. Вилучіть пристрій і повторіть пов’язування</translation>
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
        <translation>Повний журнал</translation>
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
        <translation>Профіль гарнітур:</translation>
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
        <translation>Параметри...</translation>
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
