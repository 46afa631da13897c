<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>DeviceType</name>
    <message>
        <source>phone</source>
        <translation>휴대폰</translation>
    </message>
    <message>
        <source>modem</source>
        <translation>모뎀</translation>
    </message>
    <message>
        <source>computer</source>
        <translation>컴퓨터</translation>
    </message>
    <message>
        <source>network</source>
        <translation>네트워크</translation>
    </message>
    <message>
        <source>headset</source>
        <translation>헤드셋</translation>
    </message>
    <message>
        <source>headphones</source>
        <translation>헤드폰</translation>
    </message>
    <message>
        <source>audiovideo</source>
        <translation>오디오/비디오</translation>
    </message>
    <message>
        <source>keyboard</source>
        <translation>키보드</translation>
    </message>
    <message>
        <source>mouse</source>
        <translation>마우스</translation>
    </message>
    <message>
        <source>joypad</source>
        <translation>게임패드</translation>
    </message>
    <message>
        <source>tablet</source>
        <translation>태블릿</translation>
    </message>
    <message>
        <source>peripheral</source>
        <translation>주변 기기</translation>
    </message>
    <message>
        <source>camera</source>
        <translation>카메라</translation>
    </message>
    <message>
        <source>printer</source>
        <translation>프린터</translation>
    </message>
    <message>
        <source>imaging</source>
        <translation>이미지 기기</translation>
    </message>
    <message>
        <source>wearable</source>
        <translation>웨어러블</translation>
    </message>
    <message>
        <source>toy</source>
        <translation>장난감</translation>
    </message>
    <message>
        <source>health</source>
        <translation>건강</translation>
    </message>
</context>
<context>
    <name>Pin</name>
    <message>
        <source>Bluetooth Pairing PIN</source>
        <translation>블루투스 페어링 PIN</translation>
    </message>
    <message>
        <source>Please anter following the PIN:</source>
        <translation>기기에 이 PIN을 입력하세요:</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
</context>
<context>
    <name>audiotest</name>
    <message>
        <source>Bluetooth Audio Test</source>
        <translation>블루투스 오디오 테스트</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Audio Playback</source>
        <translation>오디오 재생</translation>
    </message>
    <message>
        <source>Test left</source>
        <translation>왼쪽 테스트</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>테스트</translation>
    </message>
    <message>
        <source>Test right</source>
        <translation>오른쪽 테스트</translation>
    </message>
    <message>
        <source>Test mono</source>
        <translation>모노 테스트</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>왼쪽</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>모노</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>오른쪽</translation>
    </message>
    <message>
        <source>Audio Recording</source>
        <translation>오디오 녹음</translation>
    </message>
    <message>
        <source>Record sample</source>
        <translation>샘플 녹음</translation>
    </message>
    <message>
        <source>Playback sample</source>
        <translation>샘플 재생</translation>
    </message>
    <message>
        <source>Audio Profiles:</source>
        <translation>오디오 프로필:</translation>
    </message>
    <message>
        <source>Bluetooth Audio Profile</source>
        <translation>블루투스 오디오 프로필</translation>
    </message>
    <message>
        <source>An error occure while changing profile</source>
        <translation>프로필을 바꾸는 중에 오류가 발생했습니다</translation>
    </message>
    <message>
        <source>Audio source name</source>
        <translation>오디오 소스 이름</translation>
    </message>
    <message>
        <source>An error occurred while getting the audio source name.</source>
        <translation>오디오 소스 이름을 가져오는 중에 오류가 발생했습니다.</translation>
    </message>
    <message>
        <source>Sample Record</source>
        <translation>샘플 녹음</translation>
    </message>
    <message>
        <source>An error occurred while reconding the audio sample.
The file is empty</source>
        <translation>오디오 샘플을 녹음하는 중에 오류가 발생했습니다.
파일이 비어 있습니다.</translation>
    </message>
</context>
<context>
    <name>btscan</name>
    <message>
        <source>Bluetooth Scan</source>
        <translation>블루투스 기기 검색</translation>
    </message>
    <message>
        <source>Devices found</source>
        <translation>찾은 기기</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>연결</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>작업 중</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>제거</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>설명</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>유형</translation>
    </message>
    <message>
        <source>Bluetooth Connection</source>
        <translation>블루투스 연결</translation>
    </message>
    <message>
        <source>Authentication rejected. Remove the device and repeat pairing</source>
        <translation>인증이 거부되었습니다. 기기를 제거하고 다시 페어링하세요.</translation>
    </message>
    <message>
        <source>Connection attempt failed</source>
        <translation>연결하지 못했습니다</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; successfully connected.</source>
        <translation>“%1” 기기를 연결했습니다.</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; connection failure</source>
        <translation>“%1” 기기를 연결하지 못했습니다</translation>
    </message>
    <message>
        <source>Bluetooth Pairing</source>
        <translation>블루투스 페어링</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; pairing failure</source>
        <translation>“%1” 기기와 페어링하지 못했습니다</translation>
    </message>
    <message>
        <source>Bluetooth Scan</source>
        <comment>window title</comment>
        <translation>블루투스 기기 검색</translation>
    </message>
</context>
<context>
    <name>options</name>
    <message>
        <source>Bluetooth Options</source>
        <translation>블루투스 옵션</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Debug log</source>
        <translation>디버그 로그</translation>
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
        <translation>트레이 아이콘 표시</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Default headsets profile:</source>
        <translation>헤드셋 기본 프로필:</translation>
    </message>
</context>
<context>
    <name>pairdesk</name>
    <message>
        <source>Bluetooth</source>
        <translation>블루투스</translation>
    </message>
    <message>
        <source>Bluetooth ON/OFF</source>
        <translation>블루투스 켜기/끄기</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>추가</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>제거</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>연결</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Paired and connected devices</source>
        <translation>페어링되었거나 연결된 기기</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>연결 끊기</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Options...</source>
        <translation>옵션…</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>설명</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>유형</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>Bluetooth Connect</source>
        <translation>블루투스 연결</translation>
    </message>
    <message>
        <source>Audio test</source>
        <translation>오디오 테스트</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>연결됨</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>연결 안 됨</translation>
    </message>
</context>
</TS>
