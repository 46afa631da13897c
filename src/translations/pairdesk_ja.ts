<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>DeviceType</name>
    <message>
        <source>phone</source>
        <translation>電話</translation>
    </message>
    <message>
        <source>modem</source>
        <translation>モデム</translation>
    </message>
    <message>
        <source>computer</source>
        <translation>コンピューター</translation>
    </message>
    <message>
        <source>network</source>
        <translation>ネットワーク</translation>
    </message>
    <message>
        <source>headset</source>
        <translation>ヘッドセット</translation>
    </message>
    <message>
        <source>headphones</source>
        <translation>ヘッドホン</translation>
    </message>
    <message>
        <source>audiovideo</source>
        <translation>音声/映像</translation>
    </message>
    <message>
        <source>keyboard</source>
        <translation>キーボード</translation>
    </message>
    <message>
        <source>mouse</source>
        <translation>マウス</translation>
    </message>
    <message>
        <source>joypad</source>
        <translation>ゲームパッド</translation>
    </message>
    <message>
        <source>tablet</source>
        <translation>ペンタブレット</translation>
    </message>
    <message>
        <source>peripheral</source>
        <translation>周辺機器</translation>
    </message>
    <message>
        <source>camera</source>
        <translation>カメラ</translation>
    </message>
    <message>
        <source>printer</source>
        <translation>プリンター</translation>
    </message>
    <message>
        <source>imaging</source>
        <translation>画像機器</translation>
    </message>
    <message>
        <source>wearable</source>
        <translation>ウェアラブル</translation>
    </message>
    <message>
        <source>toy</source>
        <translation>玩具</translation>
    </message>
    <message>
        <source>health</source>
        <translation>健康</translation>
    </message>
</context>
<context>
    <name>Pin</name>
    <message>
        <source>Bluetooth Pairing PIN</source>
        <translation>Bluetooth ペアリングの PIN</translation>
    </message>
    <message>
        <source>Please anter following the PIN:</source>
        <translation>デバイスで次の PIN を入力:</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>audiotest</name>
    <message>
        <source>Bluetooth Audio Test</source>
        <translation>Bluetooth オーディオテスト</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Audio Playback</source>
        <translation>オーディオ再生</translation>
    </message>
    <message>
        <source>Test left</source>
        <translation>左をテスト</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>テスト</translation>
    </message>
    <message>
        <source>Test right</source>
        <translation>右をテスト</translation>
    </message>
    <message>
        <source>Test mono</source>
        <translation>モノラルをテスト</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>モノ</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>Audio Recording</source>
        <translation>オーディオ録音</translation>
    </message>
    <message>
        <source>Record sample</source>
        <translation>サンプルを録音</translation>
    </message>
    <message>
        <source>Playback sample</source>
        <translation>サンプルを再生</translation>
    </message>
    <message>
        <source>Audio Profiles:</source>
        <translation>オーディオプロファイル:</translation>
    </message>
    <message>
        <source>Bluetooth Audio Profile</source>
        <translation>Bluetooth オーディオプロファイル</translation>
    </message>
    <message>
        <source>An error occure while changing profile</source>
        <translation>プロファイルの変更中にエラーが発生しました</translation>
    </message>
    <message>
        <source>Audio source name</source>
        <translation>オーディオソース名</translation>
    </message>
    <message>
        <source>An error occurred while getting the audio source name.</source>
        <translation>オーディオソース名の取得中にエラーが発生しました。</translation>
    </message>
    <message>
        <source>Sample Record</source>
        <translation>サンプルの録音</translation>
    </message>
    <message>
        <source>An error occurred while reconding the audio sample.
The file is empty</source>
        <translation>オーディオサンプルの録音中にエラーが発生しました。
ファイルが空です。</translation>
    </message>
</context>
<context>
    <name>btscan</name>
    <message>
        <source>Bluetooth Scan</source>
        <translation>デバイスの検索</translation>
    </message>
    <message>
        <source>Devices found</source>
        <translation>見つかったデバイス</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>処理中</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>説明</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Bluetooth Connection</source>
        <translation>Bluetooth 接続</translation>
    </message>
    <message>
        <source>Authentication rejected. Remove the device and repeat pairing</source>
        <translation>認証が拒否されました。デバイスを削除して、もう一度ペアリングしてください。</translation>
    </message>
    <message>
        <source>Connection attempt failed</source>
        <translation>接続に失敗しました</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; successfully connected.</source>
        <translation>デバイス「%1」に接続しました。</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; connection failure</source>
        <translation>デバイス「%1」に接続できませんでした</translation>
    </message>
    <message>
        <source>Bluetooth Pairing</source>
        <translation>Bluetooth ペアリング</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; pairing failure</source>
        <translation>デバイス「%1」とペアリングできませんでした</translation>
    </message>
    <message>
        <source>Bluetooth Scan</source>
        <comment>window title</comment>
        <translation>デバイスの検索</translation>
    </message>
</context>
<context>
    <name>options</name>
    <message>
        <source>Bluetooth Options</source>
        <translation>Bluetooth オプション</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Debug log</source>
        <translation>デバッグログ</translation>
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
        <translation>トレイに表示</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Default headsets profile:</source>
        <translation>ヘッドセットのプロファイル:</translation>
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
        <translation>Bluetooth オン/オフ</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Paired and connected devices</source>
        <translation>ペアリング済みおよび接続済みのデバイス</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>切断</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Options...</source>
        <translation>オプション…</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>説明</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Bluetooth Connect</source>
        <translation>Bluetooth 接続</translation>
    </message>
    <message>
        <source>Audio test</source>
        <translation>オーディオテスト</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>接続済み</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>未接続</translation>
    </message>
</context>
</TS>
