#pragma once
// Localisation keys that are easy to get wrong by hand: long messages with
// line breaks, blanks before them and unbalanced parentheses. The tables are
// looked up by exact text, so a pane should take these rather than retype
// them. Short keys ("취소", "확인", ...) are written where they are used.

namespace tarvik::keys {

// Card formatting.
inline constexpr const char* kFormatTitle = "메모리 카드 포멧";
inline constexpr const char* kFormatConfirm =
    "주의 : 포맷 시 메모리 카드의 모든 데이터가 삭제됩니다. \r\n"
    "포맷하려면 (예)를, 취소하려면 (아니오)를 선택 하십시오.";
inline constexpr const char* kFormatInProgress = "포맷 중 입니다.\r\n잠시만 기다려 주십시오.";
inline constexpr const char* kFormatCompleted = "메모리 카드 포맷이 완료 되었습니다.";
inline constexpr const char* kFormatRefused = "메모리 카드를 포멧할 수 없습니다.";
inline constexpr const char* kFormatFailed =
    "메모리 카드를 포멧할 수 없습니다.\r\n\r\n"
    "TARVIK VIEWR에서 동영상을 재생 중이거나 GPS 데이터를 수집중인 경우\r\n"
    "TARVIK VIEWER를 종료하고 다시 포맷하십시오.\r\n"
    "메모리카드를 사용하고 있는 디스크 유틸리티나 다른 프로그램을 종료하고\r\n"
    "메모리카드의 내용을 표시하고 있는 창이 없는지 확인한 다음 다시 포맷하십시오.";

// Touch-screen calibration reset (same shape as the format confirmation).
inline constexpr const char* kTouchResetTitle = "초기화하기";
inline constexpr const char* kTouchResetConfirm =
    "주의 : 현재 설정된 화면 터치 정확도 값이 초기화 됩니다. \r\n"
    "초기화하려면 (예)를, 취소하려면 (아니오)를 선택 하십시오.";

// Parking-mode confirmations of the M420 pane.
inline constexpr const char* kParkingModeTitle = "주차모드";
inline constexpr const char* kParkingModeOff =
    "주차모드를 사용하지 않는 경우,\n차량 시동이 꺼지면 주차 중 녹화가 되지 않습니다.\n"
    "주차모드 사용을 해제 하시겠습니까?";
inline constexpr const char* kParkingMotionChosen =
    "주차모션 선택 시,\n타임랩스 영상이 삭제되고 주차모션 영상이 저장됩니다.\n적용하시겠습니까?";
inline constexpr const char* kTimeLapseChosen =
    "타임랩스 선택 시 \n주차모션 영상이 삭제되고 주차모드 및 주차충격 영상이 타임랩스로 저장됩니다.\n"
    "적용하시겠습니까?";

// Model picker title.
inline constexpr const char* kModelUnreadable =
    "Norvane 블랙박스 정보를 읽을 수 없습니다.\n모델명을 선택하면 기본 설정 값을 적용 할 수 있습니다.";

// KRT pane: these two open a parenthesis and never close it.
inline constexpr const char* kEngineOffParking = "(시동이 꺼지면 주차 녹화 모드로 전환합니다";
inline constexpr const char* kEngineOffShutdown = "(시동이 꺼지면 블랙박스를 종료합니다";

// Card errors.
inline constexpr const char* kCardErrorTitle = "메모리카드 오류";
inline constexpr const char* kCardCheckMessage = "메모리카드를 확인하여 주시기 바랍니다.";
inline constexpr const char* kUnsupportedVideo = "지원하지 않는 형식으로 인코딩된 동영상입니다.";

}  // namespace tarvik::keys
