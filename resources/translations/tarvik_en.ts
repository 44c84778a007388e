<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="ko_KR">
<context>
    <name>Localizable_M420</name>
    <message>
        <source>영어</source>
        <translation>English</translation>
    </message>
    <message>
        <source>프랑스어</source>
        <translation>French</translation>
    </message>
    <message>
        <source>일본어</source>
        <translation>Japanese</translation>
    </message>
    <message>
        <source>언어</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>속도 단위</source>
        <translation>Speed unit</translation>
    </message>
    <message>
        <source>KM/H</source>
        <translation>km/h</translation>
    </message>
    <message>
        <source>MPH</source>
        <translation>mph</translation>
    </message>
    <message>
        <source>파일_전체</source>
        <translation>All</translation>
    </message>
    <message>
        <source>파일_상시</source>
        <translation>Continuous</translation>
    </message>
    <message>
        <source>파일_모션</source>
        <translation>Motion</translation>
    </message>
    <message>
        <source>파일_이벤트</source>
        <translation>Event</translation>
    </message>
    <message>
        <source>파일_수동</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>Unknown</translation>
    </message>
    <message>
        <source>열기</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>저장</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>취소</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>확인</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>아니오</source>
        <translation>No</translation>
    </message>
    <message>
        <source>예</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>메모리카드 오류</source>
        <translation>Memory card error</translation>
    </message>
    <message>
        <source>메모리카드를 확인하여 주시기 바랍니다.</source>
        <translation>Please check the memory card.</translation>
    </message>
    <message>
        <source>지원하지 않는 형식으로 인코딩된 동영상입니다.</source>
        <translation>This video is encoded in an unsupported format.</translation>
    </message>
    <message>
        <source>주차모드</source>
        <translation>Parking mode</translation>
    </message>
    <message>
        <source>주차모드를 사용하지 않는 경우,
차량 시동이 꺼지면 주차 중 녹화가 되지 않습니다.
주차모드 사용을 해제 하시겠습니까?</source>
        <translation>Without parking mode,
nothing is recorded while the vehicle is parked with the engine off.
Turn parking mode off?</translation>
    </message>
    <message>
        <source>주차모션 선택 시,
타임랩스 영상이 삭제되고 주차모션 영상이 저장됩니다.
적용하시겠습니까?</source>
        <translation>With parking motion detection,
time-lapse videos are deleted and parking motion videos are saved.
Apply?</translation>
    </message>
    <message>
        <source>타임랩스 선택 시 
주차모션 영상이 삭제되고 주차모드 및 주차충격 영상이 타임랩스로 저장됩니다.
적용하시겠습니까?</source>
        <translation>With time-lapse,
parking motion videos are deleted and parking and parking impact videos are saved as time-lapse.
Apply?</translation>
    </message>
    <message>
        <source>메모리 카드 포멧</source>
        <translation>Format memory card</translation>
    </message>
    <message>
        <source>주의 : 포맷 시 메모리 카드의 모든 데이터가 삭제됩니다.</source>
        <translation>Caution: formatting erases all data on the memory card.</translation>
    </message>
    <message>
        <source>주의 : 포맷 시 메모리 카드의 모든 데이터가 삭제됩니다. &#xd;
포맷하려면 (예)를, 취소하려면 (아니오)를 선택 하십시오.</source>
        <translation>Caution: formatting erases all data on the memory card. &#xd;
Choose (Yes) to format or (No) to cancel.</translation>
    </message>
    <message>
        <source>포맷 중 입니다.&#xd;
잠시만 기다려 주십시오.</source>
        <translation>Formatting...&#xd;
Please wait.</translation>
    </message>
    <message>
        <source>메모리 카드 포맷이 완료 되었습니다.</source>
        <translation>The memory card has been formatted.</translation>
    </message>
    <message>
        <source>메모리 카드를 포멧할 수 없습니다.</source>
        <translation>The memory card cannot be formatted.</translation>
    </message>
    <message>
        <source>메모리 카드를 포멧할 수 없습니다.&#xd;
&#xd;
TARVIK VIEWR에서 동영상을 재생 중이거나 GPS 데이터를 수집중인 경우&#xd;
TARVIK VIEWER를 종료하고 다시 포맷하십시오.&#xd;
메모리카드를 사용하고 있는 디스크 유틸리티나 다른 프로그램을 종료하고&#xd;
메모리카드의 내용을 표시하고 있는 창이 없는지 확인한 다음 다시 포맷하십시오.</source>
        <translation>The memory card cannot be formatted.&#xd;
&#xd;
If TARVIK VIEWER is playing a video or collecting GPS data,&#xd;
quit TARVIK VIEWER and format again.&#xd;
Quit any disk utility or other program using the memory card,&#xd;
make sure no window shows the contents of the memory card, then format again.</translation>
    </message>
    <message>
        <source>초기화하기</source>
        <translation>Reset</translation>
    </message>
    <message>
        <source>주의 : 현재 설정된 화면 터치 정확도 값이 초기화 됩니다.</source>
        <translation>Caution: the current touch screen calibration will be reset.</translation>
    </message>
    <message>
        <source>주의 : 현재 설정된 화면 터치 정확도 값이 초기화 됩니다. &#xd;
초기화하려면 (예)를, 취소하려면 (아니오)를 선택 하십시오.</source>
        <translation>Caution: the current touch screen calibration will be reset. &#xd;
Choose (Yes) to reset or (No) to cancel.</translation>
    </message>
    <message>
        <source>플래시 메모리를 선택해주세요.</source>
        <translation>Please select the flash memory.</translation>
    </message>
    <message>
        <source>Norvane 블랙박스 정보를 읽을 수 없습니다.
모델명을 선택하면 기본 설정 값을 적용 할 수 있습니다.</source>
        <translation>Cannot read the Norvane dashcam information.
Select a model name to apply its default settings.</translation>
    </message>
    <message>
        <source>블랙박스 설정</source>
        <translation>Dashcam settings</translation>
    </message>
    <message>
        <source>설정값 초기화</source>
        <translation>Reset settings</translation>
    </message>
    <message>
        <source>Q260 : 메모리 파티션</source>
        <translation>Memory partition</translation>
    </message>
    <message>
        <source>A Type(권장)</source>
        <translation>Type A (recommended)</translation>
    </message>
    <message>
        <source>B Type</source>
        <translation>Type B</translation>
    </message>
    <message>
        <source>C Type</source>
        <translation>Type C</translation>
    </message>
    <message>
        <source>Q260 : 상시녹화</source>
        <translation>Continuous</translation>
    </message>
    <message>
        <source>Q260 : 주차녹화</source>
        <translation>Parking</translation>
    </message>
    <message>
        <source>Q260 : 이벤트녹화</source>
        <translation>Event</translation>
    </message>
    <message>
        <source>Q260 : 수동녹화</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Q260 : 자동주차모드</source>
        <translation>Auto parking mode</translation>
    </message>
    <message>
        <source>Q260 : 사용 함</source>
        <translation>On</translation>
    </message>
    <message>
        <source>Q260 : 사용 안 함</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>(시동이 꺼지면 주차 녹화 모드로 전환합니다</source>
        <translation>(switches to parking recording when the engine is off</translation>
    </message>
    <message>
        <source>(시동이 꺼지면 블랙박스를 종료합니다</source>
        <translation>(shuts the dashcam down when the engine is off</translation>
    </message>
    <message>
        <source>Q260 : 녹화종료전압</source>
        <translation>Cut-off voltage</translation>
    </message>
    <message>
        <source>Q260 : 날짜 / 시간</source>
        <translation>Date / Time</translation>
    </message>
    <message>
        <source>현재 시간 가져오기</source>
        <translation>Use current time</translation>
    </message>
    <message>
        <source>Q260 : 표준 시간대</source>
        <translation>Time zone</translation>
    </message>
    <message>
        <source>Q260 : Daylight Saving Time</source>
        <translation>Daylight saving time</translation>
    </message>
    <message>
        <source>속도표시</source>
        <translation>Speed display</translation>
    </message>
    <message>
        <source>kph</source>
        <translation>km/h</translation>
    </message>
    <message>
        <source>mph</source>
        <translation>mph</translation>
    </message>
    <message>
        <source>Q260 : 음성녹음</source>
        <translation>Sound recording</translation>
    </message>
    <message>
        <source>Q260 : 음성안내</source>
        <translation>Voice guidance</translation>
    </message>
    <message>
        <source>Q260 : 작게</source>
        <translation>Low</translation>
    </message>
    <message>
        <source>Q260 : 크게</source>
        <translation>High</translation>
    </message>
    <message>
        <source>Q260 : 충격감도</source>
        <translation>Impact sensitivity</translation>
    </message>
    <message>
        <source>Q260 : 둔감</source>
        <translation>Low</translation>
    </message>
    <message>
        <source>Q260 : 민감</source>
        <translation>High</translation>
    </message>
    <message>
        <source>Q260 : 모션인식감도</source>
        <translation>Motion sensitivity</translation>
    </message>
    <message>
        <source>시큐리티 LED</source>
        <translation>Security LED</translation>
    </message>
    <message>
        <source>Q260 : 펌웨어 버전</source>
        <translation>Firmware version</translation>
    </message>
    <message>
        <source>Q260 : Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Q260 : Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>(UTC-10:00) Hawaii</source>
        <translation>(UTC-10:00) Hawaii</translation>
    </message>
    <message>
        <source>(UTC-09:00) Alaska</source>
        <translation>(UTC-09:00) Alaska</translation>
    </message>
    <message>
        <source>(UTC-08:00) Pacific Standard Time (U.S.A and Canada)</source>
        <translation>(UTC-08:00) Pacific Standard Time (US and Canada)</translation>
    </message>
    <message>
        <source>(UTC-07:00) Mountain Standard Time (U.S.A and Canada)</source>
        <translation>(UTC-07:00) Mountain Standard Time (US and Canada)</translation>
    </message>
    <message>
        <source>(UTC-06:00) Central Standard Time (U.S.A and Canada)</source>
        <translation>(UTC-06:00) Central Standard Time (US and Canada)</translation>
    </message>
    <message>
        <source>(UTC-05:00) Eastern Standard Time (U.S.A and Canada)</source>
        <translation>(UTC-05:00) Eastern Standard Time (US and Canada)</translation>
    </message>
    <message>
        <source>(UTC-04:00) Atlantic  Standard Time (Canada)</source>
        <translation>(UTC-04:00) Atlantic Standard Time (Canada)</translation>
    </message>
    <message>
        <source>(UTC) Greenwich</source>
        <translation>(UTC) Greenwich</translation>
    </message>
    <message>
        <source>(UTC+01:00) Brussels, Copenhagen, Madrid, Paris</source>
        <translation>(UTC+01:00) Brussels, Copenhagen, Madrid, Paris</translation>
    </message>
    <message>
        <source>(UTC+08:00) Kuala Lumpur, Singapore</source>
        <translation>(UTC+08:00) Kuala Lumpur, Singapore</translation>
    </message>
    <message>
        <source>(UTC+09:30) Adelaide</source>
        <translation>(UTC+09:30) Adelaide</translation>
    </message>
    <message>
        <source>(UTC+10:00) Canberra, Melbourne, Sidney</source>
        <translation>(UTC+10:00) Canberra, Melbourne, Sydney</translation>
    </message>
    <message>
        <source>휴지통으로 옮길까요?</source>
        <translation>Move to the trash?</translation>
    </message>
    <message>
        <source>삭제</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>재생 중인 영상은 삭제할 수 없습니다.</source>
        <translation>A clip that is playing cannot be deleted.</translation>
    </message>
    <message>
        <source>휴지통으로 옮기지 못했습니다.</source>
        <translation>Could not move the clip to the trash.</translation>
    </message>
</context>
</TS>
