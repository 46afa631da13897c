<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr" sourcelanguage="en">
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
        <translation>Bilgisayar</translation>
    </message>
    <message>
        <source>network</source>
        <translation>Ağ</translation>
    </message>
    <message>
        <source>headset</source>
        <translation>Kulaklık</translation>
    </message>
    <message>
        <source>headphones</source>
        <translation>Kulaklık</translation>
    </message>
    <message>
        <source>audiovideo</source>
        <translation>Ses/görüntü</translation>
    </message>
    <message>
        <source>keyboard</source>
        <translation>Klavye</translation>
    </message>
    <message>
        <source>mouse</source>
        <translation>Fare</translation>
    </message>
    <message>
        <source>joypad</source>
        <translation>Oyun kolu</translation>
    </message>
    <message>
        <source>tablet</source>
        <translation>Tablet</translation>
    </message>
    <message>
        <source>peripheral</source>
        <translation>Çevre birimi</translation>
    </message>
    <message>
        <source>camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>printer</source>
        <translation>Yazıcı</translation>
    </message>
    <message>
        <source>imaging</source>
        <translation>Görüntüleme</translation>
    </message>
    <message>
        <source>wearable</source>
        <translation>Giyilebilir</translation>
    </message>
    <message>
        <source>toy</source>
        <translation>Oyuncak</translation>
    </message>
    <message>
        <source>health</source>
        <translation>Sağlık</translation>
    </message>
</context>
<context>
    <name>Pin</name>
    <message>
        <source>Bluetooth Pairing PIN</source>
        <translation>Bluetooth Eşleştirme PIN’i</translation>
    </message>
    <message>
        <source>Please anter following the PIN:</source>
        <translation>Bu PIN’i aygıta girin:</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
</context>
<context>
    <name>audiotest</name>
    <message>
        <source>Bluetooth Audio Test</source>
        <translation>Bluetooth Ses Sınaması</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
    <message>
        <source>Audio Playback</source>
        <translation>Ses Çalma</translation>
    </message>
    <message>
        <source>Test left</source>
        <translation>Solu sına</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Sına</translation>
    </message>
    <message>
        <source>Test right</source>
        <translation>Sağı sına</translation>
    </message>
    <message>
        <source>Test mono</source>
        <translation>Mono sına</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Sol</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>Mono</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Sağ</translation>
    </message>
    <message>
        <source>Audio Recording</source>
        <translation>Ses Kaydı</translation>
    </message>
    <message>
        <source>Record sample</source>
        <translation>Ses örneği al</translation>
    </message>
    <message>
        <source>Playback sample</source>
        <translation>Örneği çal</translation>
    </message>
    <message>
        <source>Audio Profiles:</source>
        <translation>Ses profilleri:</translation>
    </message>
    <message>
        <source>Bluetooth Audio Profile</source>
        <translation>Bluetooth Ses Profili</translation>
    </message>
    <message>
        <source>An error occure while changing profile</source>
        <translation>Profil değiştirilirken bir hata oluştu</translation>
    </message>
    <message>
        <source>Audio source name</source>
        <translation>Ses Kaynağının Adı</translation>
    </message>
    <message>
        <source>An error occurred while getting the audio source name.</source>
        <translation>Ses kaynağının adı alınırken bir hata oluştu.</translation>
    </message>
    <message>
        <source>Sample Record</source>
        <translation>Örnek Kaydı</translation>
    </message>
    <message>
        <source>An error occurred while reconding the audio sample.
The file is empty</source>
        <translation>Ses örneği kaydedilirken bir hata oluştu.
Dosya boş.</translation>
    </message>
</context>
<context>
    <name>btscan</name>
    <message>
        <source>Bluetooth Scan</source>
        <translation>Aygıt Arama</translation>
    </message>
    <message>
        <source>Devices found</source>
        <translation>Bulunan aygıtlar</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Bağlan</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>İşlem sürüyor</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Kaldır</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Açıklama</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tür</translation>
    </message>
    <message>
        <source>Bluetooth Connection</source>
        <translation>Bluetooth Bağlantısı</translation>
    </message>
    <message>
        <source>Authentication rejected. Remove the device and repeat pairing</source>
        <translation>Kimlik doğrulama reddedildi. Aygıtı kaldırıp yeniden eşleştirin.</translation>
    </message>
    <message>
        <source>Connection attempt failed</source>
        <translation>Bağlantı girişimi başarısız oldu</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; successfully connected.</source>
        <translation>“%1” aygıtı başarıyla bağlandı.</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; connection failure</source>
        <translation>“%1” aygıtı bağlanamadı</translation>
    </message>
    <message>
        <source>Bluetooth Pairing</source>
        <translation>Bluetooth Eşleştirme</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; pairing failure</source>
        <translation>“%1” aygıtı eşleştirilemedi</translation>
    </message>
    <message>
        <source>Bluetooth Scan</source>
        <comment>window title</comment>
        <translation>Aygıt Arama</translation>
    </message>
</context>
<context>
    <name>options</name>
    <message>
        <source>Bluetooth Options</source>
        <translation>Bluetooth Seçenekleri</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Debug log</source>
        <translation>Hata ayıklama</translation>
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
        <translation>Tepside göster</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Default headsets profile:</source>
        <translation>Varsayılan kulaklık profili:</translation>
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
        <translation>Bluetooth’u aç/kapat</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ekle</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Kaldır</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Bağlan</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Paired and connected devices</source>
        <translation>Eşleştirilmiş ve bağlı aygıtlar</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Bağlantı Kes</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Options...</source>
        <translation>Seçenekler…</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Açıklama</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tür</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Durum</translation>
    </message>
    <message>
        <source>Bluetooth Connect</source>
        <translation>Bluetooth Bağlantısı</translation>
    </message>
    <message>
        <source>Audio test</source>
        <translation>Ses sınaması</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Bağlı</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Bağlı değil</translation>
    </message>
</context>
</TS>
