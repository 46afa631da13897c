<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>DeviceType</name>
    <message>
        <source>phone</source>
        <translation>手机</translation>
    </message>
    <message>
        <source>modem</source>
        <translation>调制解调器</translation>
    </message>
    <message>
        <source>computer</source>
        <translation>电脑</translation>
    </message>
    <message>
        <source>network</source>
        <translation>网络</translation>
    </message>
    <message>
        <source>headset</source>
        <translation>耳麦</translation>
    </message>
    <message>
        <source>headphones</source>
        <translation>耳机</translation>
    </message>
    <message>
        <source>audiovideo</source>
        <translation>音视频</translation>
    </message>
    <message>
        <source>keyboard</source>
        <translation>键盘</translation>
    </message>
    <message>
        <source>mouse</source>
        <translation>鼠标</translation>
    </message>
    <message>
        <source>joypad</source>
        <translation>游戏手柄</translation>
    </message>
    <message>
        <source>tablet</source>
        <translation>数位板</translation>
    </message>
    <message>
        <source>peripheral</source>
        <translation>外设</translation>
    </message>
    <message>
        <source>camera</source>
        <translation>相机</translation>
    </message>
    <message>
        <source>printer</source>
        <translation>打印机</translation>
    </message>
    <message>
        <source>imaging</source>
        <translation>图像设备</translation>
    </message>
    <message>
        <source>wearable</source>
        <translation>可穿戴</translation>
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
        <translation>蓝牙配对 PIN 码</translation>
    </message>
    <message>
        <source>Please anter following the PIN:</source>
        <translation>请在设备上输入此 PIN 码：</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>audiotest</name>
    <message>
        <source>Bluetooth Audio Test</source>
        <translation>蓝牙音频测试</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Audio Playback</source>
        <translation>音频播放</translation>
    </message>
    <message>
        <source>Test left</source>
        <translation>测试左声道</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>测试</translation>
    </message>
    <message>
        <source>Test right</source>
        <translation>测试右声道</translation>
    </message>
    <message>
        <source>Test mono</source>
        <translation>测试单声道</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左声道</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>单声道</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右声道</translation>
    </message>
    <message>
        <source>Audio Recording</source>
        <translation>音频录制</translation>
    </message>
    <message>
        <source>Record sample</source>
        <translation>录制样本</translation>
    </message>
    <message>
        <source>Playback sample</source>
        <translation>播放样本</translation>
    </message>
    <message>
        <source>Audio Profiles:</source>
        <translation>音频配置文件：</translation>
    </message>
    <message>
        <source>Bluetooth Audio Profile</source>
        <translation>蓝牙音频配置文件</translation>
    </message>
    <message>
        <source>An error occure while changing profile</source>
        <translation>更改配置文件时出错</translation>
    </message>
    <message>
        <source>Audio source name</source>
        <translation>音频源名称</translation>
    </message>
    <message>
        <source>An error occurred while getting the audio source name.</source>
        <translation>获取音频源名称时出错。</translation>
    </message>
    <message>
        <source>Sample Record</source>
        <translation>录制样本</translation>
    </message>
    <message>
        <source>An error occurred while reconding the audio sample.
The file is empty</source>
        <translation>录制音频样本时出错。
文件为空。</translation>
    </message>
</context>
<context>
    <name>btscan</name>
    <message>
        <source>Bluetooth Scan</source>
        <translation>搜索蓝牙设备</translation>
    </message>
    <message>
        <source>Devices found</source>
        <translation>找到的设备</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>正在处理</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>描述</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Bluetooth Connection</source>
        <translation>蓝牙连接</translation>
    </message>
    <message>
        <source>Authentication rejected. Remove the device and repeat pairing</source>
        <translation>身份验证被拒绝。请移除设备后重新配对。</translation>
    </message>
    <message>
        <source>Connection attempt failed</source>
        <translation>连接尝试失败</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; successfully connected.</source>
        <translation>设备“%1”已成功连接。</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; connection failure</source>
        <translation>设备“%1”连接失败</translation>
    </message>
    <message>
        <source>Bluetooth Pairing</source>
        <translation>蓝牙配对</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; pairing failure</source>
        <translation>设备“%1”配对失败</translation>
    </message>
    <message>
        <source>Bluetooth Scan</source>
        <comment>window title</comment>
        <translation>搜索蓝牙设备</translation>
    </message>
</context>
<context>
    <name>options</name>
    <message>
        <source>Bluetooth Options</source>
        <translation>蓝牙选项</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Debug log</source>
        <translation>调试日志</translation>
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
        <translation>显示托盘图标</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Default headsets profile:</source>
        <translation>耳麦默认配置文件：</translation>
    </message>
</context>
<context>
    <name>pairdesk</name>
    <message>
        <source>Bluetooth</source>
        <translation>蓝牙</translation>
    </message>
    <message>
        <source>Bluetooth ON/OFF</source>
        <translation>蓝牙开关</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Paired and connected devices</source>
        <translation>已配对和已连接的设备</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>断开</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Options...</source>
        <translation>选项…</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>描述</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Bluetooth Connect</source>
        <translation>蓝牙连接</translation>
    </message>
    <message>
        <source>Audio test</source>
        <translation>音频测试</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>已连接</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>未连接</translation>
    </message>
</context>
</TS>
