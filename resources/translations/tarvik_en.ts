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
        <source>이전 파일</source>
        <translation>Previous clip</translation>
    </message>
    <message>
        <source>이전 프레임</source>
        <translation>Previous frame</translation>
    </message>
    <message>
        <source>재생/일시정지</source>
        <translation>Play/Pause</translation>
    </message>
    <message>
        <source>정지</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>다음 프레임</source>
        <translation>Next frame</translation>
    </message>
    <message>
        <source>다음 파일</source>
        <translation>Next clip</translation>
    </message>
    <message>
        <source>스냅샷 저장</source>
        <translation>Save snapshot</translation>
    </message>
    <message>
        <source>인쇄</source>
        <translation>Print</translation>
    </message>
    <message>
        <source>확대</source>
        <translation>Zoom in</translation>
    </message>
    <message>
        <source>축소</source>
        <translation>Zoom out</translation>
    </message>
    <message>
        <source>원래 크기</source>
        <translation>Actual size</translation>
    </message>
    <message>
        <source>상하 반전</source>
        <translation>Turn upside down</translation>
    </message>
    <message>
        <source>전방/후방 전환</source>
        <translation>Swap front and rear</translation>
    </message>
    <message>
        <source>전체 화면</source>
        <translation>Full screen</translation>
    </message>
    <message>
        <source>전체 화면 종료</source>
        <translation>Exit full screen</translation>
    </message>
    <message>
        <source>음소거</source>
        <translation>Mute</translation>
    </message>
    <message>
        <source>음량</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>최소화</source>
        <translation>Minimise</translation>
    </message>
    <message>
        <source>종료</source>
        <translation>Quit</translation>
    </message>
    <message>
        <source>삭제</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>동영상 파일을 찾을 수 없습니다.</source>
        <translation>The video file cannot be found.</translation>
    </message>
    <message>
        <source>동영상 파일을 읽을 수 없습니다.</source>
        <translation>The video file cannot be read.</translation>
    </message>
    <message>
        <source>동영상 파일이 비어 있습니다.</source>
        <translation>The video file is empty.</translation>
    </message>
    <message>
        <source>동영상 파일이 중간에 잘려 있습니다.</source>
        <translation>The video file is cut short.</translation>
    </message>
    <message>
        <source>휴지통으로 옮길까요?</source>
        <translation>Move to the trash?</translation>
    </message>
    <message>
        <source>재생 중인 영상은 삭제할 수 없습니다.</source>
        <translation>A clip that is playing cannot be deleted.</translation>
    </message>
    <message>
        <source>휴지통으로 옮기지 못했습니다.</source>
        <translation>Could not move the clip to the trash.</translation>
    </message>
    <message>
        <source>공통</source>
        <translation>Common</translation>
    </message>
    <message>
        <source>상시녹화</source>
        <translation>Continuous</translation>
    </message>
    <message>
        <source>주차녹화</source>
        <translation>Parking</translation>
    </message>
    <message>
        <source>기타</source>
        <translation>Other</translation>
    </message>
    <message>
        <source>전방 밝기</source>
        <translation>Front brightness</translation>
    </message>
    <message>
        <source>음성 녹음</source>
        <translation>Audio recording</translation>
    </message>
    <message>
        <source>음성 안내</source>
        <translation>Voice guidance</translation>
    </message>
    <message>
        <source>음성 안내 볼륨</source>
        <translation>Voice volume</translation>
    </message>
    <message>
        <source>표준 시간대</source>
        <translation>Time zone</translation>
    </message>
    <message>
        <source>서머타임</source>
        <translation>Summer time</translation>
    </message>
    <message>
        <source>운전 가이드</source>
        <translation>Driving guide</translation>
    </message>
    <message>
        <source>LCD 밝기</source>
        <translation>LCD brightness</translation>
    </message>
    <message>
        <source>날짜 / 시간 설정</source>
        <translation>Set date and time</translation>
    </message>
    <message>
        <source>전방 해상도</source>
        <translation>Front resolution</translation>
    </message>
    <message>
        <source>프레임</source>
        <translation>Frame rate</translation>
    </message>
    <message>
        <source>전방 화질</source>
        <translation>Front quality</translation>
    </message>
    <message>
        <source>후방 해상도</source>
        <translation>Rear resolution</translation>
    </message>
    <message>
        <source>후방 화질</source>
        <translation>Rear quality</translation>
    </message>
    <message>
        <source>충격 감도</source>
        <translation>Impact sensitivity</translation>
    </message>
    <message>
        <source>차선이탈 경보</source>
        <translation>Lane departure warning</translation>
    </message>
    <message>
        <source>차선이탈 경보 속도</source>
        <translation>Lane departure speed</translation>
    </message>
    <message>
        <source>전방추돌 경보</source>
        <translation>Forward collision warning</translation>
    </message>
    <message>
        <source>앞차 출발 알림</source>
        <translation>Vehicle ahead departs</translation>
    </message>
    <message>
        <source>주차모션</source>
        <translation>Parking motion</translation>
    </message>
    <message>
        <source>타임랩스</source>
        <translation>Time-lapse</translation>
    </message>
    <message>
        <source>사용</source>
        <translation>On</translation>
    </message>
    <message>
        <source>사용 안 함</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>모션 감지</source>
        <translation>Motion detection</translation>
    </message>
    <message>
        <source>모션 감도</source>
        <translation>Motion sensitivity</translation>
    </message>
    <message>
        <source>주차 녹화 시간</source>
        <translation>Parking time limit</translation>
    </message>
    <message>
        <source>배터리 차단 전압 12V</source>
        <translation>Battery cut-off 12V</translation>
    </message>
    <message>
        <source>배터리 차단 전압 24V</source>
        <translation>Battery cut-off 24V</translation>
    </message>
    <message>
        <source>상시 충격 덮어쓰기</source>
        <translation>Overwrite continuous impact</translation>
    </message>
    <message>
        <source>주차 모션 덮어쓰기</source>
        <translation>Overwrite parking motion</translation>
    </message>
    <message>
        <source>주차 충격 덮어쓰기</source>
        <translation>Overwrite parking impact</translation>
    </message>
    <message>
        <source>수동 녹화 덮어쓰기</source>
        <translation>Overwrite manual recording</translation>
    </message>
    <message>
        <source>보안 LED</source>
        <translation>Security LED</translation>
    </message>
    <message>
        <source>모드 1</source>
        <translation>Mode 1</translation>
    </message>
    <message>
        <source>모드 2</source>
        <translation>Mode 2</translation>
    </message>
    <message>
        <source>모드 3</source>
        <translation>Mode 3</translation>
    </message>
    <message>
        <source>메모리 분할</source>
        <translation>Memory partition</translation>
    </message>
    <message>
        <source>기본</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>수동 우선</source>
        <translation>Manual first</translation>
    </message>
    <message>
        <source>주차 우선</source>
        <translation>Parking first</translation>
    </message>
    <message>
        <source>상시</source>
        <translation>Continuous</translation>
    </message>
    <message>
        <source>상시 충격</source>
        <translation>Cont. impact</translation>
    </message>
    <message>
        <source>주차 모션</source>
        <translation>Parking motion</translation>
    </message>
    <message>
        <source>주차 충격</source>
        <translation>Parking impact</translation>
    </message>
    <message>
        <source>수동</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>화면 터치 초기화</source>
        <translation>Reset touch calibration</translation>
    </message>
    <message>
        <source>켜짐</source>
        <translation>On</translation>
    </message>
    <message>
        <source>꺼짐</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>낮음</source>
        <translation>Low</translation>
    </message>
    <message>
        <source>보통</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>높음</source>
        <translation>High</translation>
    </message>
    <message>
        <source>Recording time</source>
        <translation>Recording time</translation>
    </message>
    <message>
        <source>Cannot be played</source>
        <translation>Cannot be played</translation>
    </message>
    <message>
        <source>Front without rear</source>
        <translation>Front without rear</translation>
    </message>
    <message>
        <source>Rear without front</source>
        <translation>Rear without front</translation>
    </message>
    <message>
        <source>No driving data</source>
        <translation>No driving data</translation>
    </message>
    <message>
        <source>Gap in the recording</source>
        <translation>Gap in the recording</translation>
    </message>
    <message>
        <source>Settings files</source>
        <translation>Settings files</translation>
    </message>
    <message>
        <source>Free space</source>
        <translation>Free space</translation>
    </message>
    <message>
        <source>Card report</source>
        <translation>Card report</translation>
    </message>
    <message>
        <source>Finding</source>
        <translation>Finding</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>Detail</translation>
    </message>
    <message>
        <source>Checking every clip on the card...</source>
        <translation>Checking every clip on the card...</translation>
    </message>
    <message>
        <source>no settings files</source>
        <translation>no settings files</translation>
    </message>
    <message>
        <source>settings file unreadable</source>
        <translation>settings file unreadable</translation>
    </message>
    <message>
        <source>settings readable</source>
        <translation>settings readable</translation>
    </message>
    <message>
        <source>, %1 bytes</source>
        <translation>, %1 bytes</translation>
    </message>
    <message>
        <source>All is well</source>
        <translation>All is well</translation>
    </message>
    <message>
        <source>Export route</source>
        <translation>Export route</translation>
    </message>
    <message>
        <source>Show clips</source>
        <translation>Show clips</translation>
    </message>
    <message>
        <source>Show trips</source>
        <translation>Show trips</translation>
    </message>
    <message>
        <source>Export route of the selected clips...</source>
        <translation>Export route of the selected clips...</translation>
    </message>
    <message>
        <source>Export route of the whole trip...</source>
        <translation>Export route of the whole trip...</translation>
    </message>
    <message>
        <source>Card report...</source>
        <translation>Card report...</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>End</source>
        <translation>End</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Time</translation>
    </message>
    <message numerus="yes">
        <source>%n clips</source>
        <translation>
            <numerusform>%n clip</numerusform>
            <numerusform>%n clips</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n trips</source>
        <translation>
            <numerusform>%n trip</numerusform>
            <numerusform>%n trips</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n things need attention</source>
        <translation>
            <numerusform>%n thing needs attention</numerusform>
            <numerusform>%n things need attention</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n notes</source>
        <translation>
            <numerusform>%n note</numerusform>
            <numerusform>%n notes</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing needs attention</source>
        <translation>Nothing needs attention</translation>
    </message>
    <message>
        <source>%1 in %2  ·  %3 of %4 GiB free  ·  %5</source>
        <translation>%1 in %2  ·  %3 of %4 GiB free  ·  %5</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>Folder not found</translation>
    </message>
    <message>
        <source>This folder does not exist.</source>
        <translation>This folder does not exist.</translation>
    </message>
    <message>
        <source>Trips</source>
        <translation>Trips</translation>
    </message>
    <message>
        <source>Export route of the playing trip...</source>
        <translation>Export route of the playing trip...</translation>
    </message>
    <message>
        <source>Export route of this trip...</source>
        <translation>Export route of this trip...</translation>
    </message>
    <message>
        <source>The disk service (UDisks2) does not answer.</source>
        <translation>The disk service (UDisks2) does not answer.</translation>
    </message>
    <message>
        <source>The disk service (UDisks2) does not know the device mounted here.</source>
        <translation>The disk service (UDisks2) does not know the device mounted here.</translation>
    </message>
    <message>
        <source>The disk service (UDisks2) finds no file system on the card.</source>
        <translation>The disk service (UDisks2) finds no file system on the card.</translation>
    </message>
    <message>
        <source>The disk service (UDisks2) says the card's drive is not removable.</source>
        <translation>The disk service (UDisks2) says the card's drive is not removable.</translation>
    </message>
    <message>
        <source>The disk service (UDisks2) said: %1</source>
        <translation>The disk service (UDisks2) said: %1</translation>
    </message>
    <message>
        <source>The card is in use by another program.</source>
        <translation>The card is in use by another program.</translation>
    </message>
    <message>
        <source>Formatting the card was not authorised.</source>
        <translation>Formatting the card was not authorised.</translation>
    </message>
    <message>
        <source>This folder is not where a card is mounted.</source>
        <translation>This folder is not where a card is mounted.</translation>
    </message>
    <message>
        <source>This volume holds the system or your home folder.</source>
        <translation>This volume holds the system or your home folder.</translation>
    </message>
    <message>
        <source>The card's drive is not removable.</source>
        <translation>The card's drive is not removable.</translation>
    </message>
    <message>
        <source>The card has no name of its own.</source>
        <translation>The card has no name of its own.</translation>
    </message>
    <message>
        <source>The folder %1 does not exist.</source>
        <translation>The folder %1 does not exist.</translation>
    </message>
    <message>
        <source>Incident</source>
        <translation>Incident</translation>
    </message>
    <message>
        <source>Mark the start of an incident</source>
        <translation>Mark the start of an incident</translation>
    </message>
    <message>
        <source>Mark the end of an incident</source>
        <translation>Mark the end of an incident</translation>
    </message>
    <message>
        <source>Clear the marks</source>
        <translation>Clear the marks</translation>
    </message>
    <message>
        <source>Export incident...</source>
        <translation>Export incident...</translation>
    </message>
    <message>
        <source>Export incident</source>
        <translation>Export incident</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Span</source>
        <translation>Span</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Layout</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>Overlay</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Quality</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destination</translation>
    </message>
    <message>
        <source>Choose...</source>
        <translation>Choose...</translation>
    </message>
    <message>
        <source>Front camera only</source>
        <translation>Front camera only</translation>
    </message>
    <message>
        <source>Rear camera only</source>
        <translation>Rear camera only</translation>
    </message>
    <message>
        <source>Front and rear side by side</source>
        <translation>Front and rear side by side</translation>
    </message>
    <message>
        <source>Rear in a corner of the front</source>
        <translation>Rear in a corner of the front</translation>
    </message>
    <message>
        <source>High (larger file)</source>
        <translation>High (larger file)</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Compact (smaller file)</source>
        <translation>Compact (smaller file)</translation>
    </message>
    <message>
        <source>Time, speed, G values and position over the picture</source>
        <translation>Time, speed, G values and position over the picture</translation>
    </message>
    <message>
        <source>Choose the folder the incident goes into.</source>
        <translation>Choose the folder the incident goes into.</translation>
    </message>
    <message>
        <source>This folder is on the memory card. Evidence is never written to the card it comes from: choose a folder on another disk.</source>
        <translation>This folder is on the memory card. Evidence is never written to the card it comes from: choose a folder on another disk.</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>Preparing</translation>
    </message>
    <message>
        <source>Copying %1</source>
        <translation>Copying %1</translation>
    </message>
    <message>
        <source>Making incident.mp4</source>
        <translation>Making incident.mp4</translation>
    </message>
    <message>
        <source>Writing the route and samples</source>
        <translation>Writing the route and samples</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Done</translation>
    </message>
    <message>
        <source>About %1 s left</source>
        <translation>About %1 s left</translation>
    </message>
    <message>
        <source>About %1 min %2 s left</source>
        <translation>About %1 min %2 s left</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation>Cancelling...</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Open folder</translation>
    </message>
    <message>
        <source>The incident is in %1</source>
        <translation>The incident is in %1</translation>
    </message>
    <message>
        <source>The export was cancelled. Nothing of it was kept.</source>
        <translation>The export was cancelled. Nothing of it was kept.</translation>
    </message>
    <message>
        <source>The destination is full. Nothing of the export was kept.</source>
        <translation>The destination is full. Nothing of the export was kept.</translation>
    </message>
    <message>
        <source>The incident could not be exported: %1</source>
        <translation>The incident could not be exported: %1</translation>
    </message>
    <message>
        <source>The marked span cannot be exported: %1</source>
        <translation>The marked span cannot be exported: %1</translation>
    </message>
    <message>
        <source>Play a clip, or mark the start and the end of an incident, first.</source>
        <translation>Play a clip, or mark the start and the end of an incident, first.</translation>
    </message>
    <message>
        <source>The selected clips are not one stretch of a drive, or their length is unknown.</source>
        <translation>The selected clips are not one stretch of a drive, or their length is unknown.</translation>
    </message>
    <message>
        <source>This drive cannot be exported: the length of its clips is unknown.</source>
        <translation>This drive cannot be exported: the length of its clips is unknown.</translation>
    </message>
    <message>
        <source>Save still of both cameras...</source>
        <translation>Save still of both cameras...</translation>
    </message>
    <message>
        <source>Save still of both cameras</source>
        <translation>Save still of both cameras</translation>
    </message>
    <message>
        <source>The still could not be saved: %1</source>
        <translation>The still could not be saved: %1</translation>
    </message>
    <message>
        <source>Play a clip first.</source>
        <translation>Play a clip first.</translation>
    </message>
    <message>
        <source>Drawing still.png</source>
        <translation>Drawing still.png</translation>
    </message>
    <message>
        <source>The route in a corner, with the car on it</source>
        <translation>The route in a corner, with the car on it</translation>
    </message>
</context>
</TS>
