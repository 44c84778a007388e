#include "ui/settings/m420/m420_control_labels.h"

namespace tarvik {

using m420pane::Control;

namespace {
const QStringList kOnOff = {"켜짐", "꺼짐"};
const QStringList kQuality = {"낮음", "보통", "높음"};
const QStringList kResolution = {"VGA (640 x 480)", "HD (1280 x 720)", "FHD (1920 x 1080)"};
const QStringList kRearResolution = {"VGA (640 x 480)", "HD (1280 x 720)"};
}  // namespace

M420ControlLabels m420ControlLabels(Control c, const m420pane::PaneFeatures& f) {
    switch (c) {
    case Control::FrontBrightness: return {"전방 밝기", {}};
    case Control::AudioRecord: return {"음성 녹음", kOnOff};
    case Control::VoiceMent: return {"음성 안내", kOnOff};
    case Control::VoiceVolume: return {"음성 안내 볼륨", {}};
    case Control::TimeZone: return {"표준 시간대", {}};
    case Control::Dst: return {"서머타임", kOnOff};
    case Control::SpeedUnit: return {"속도 단위", {"km/h", "mph"}};
    case Control::DrivingGuide: return {"운전 가이드", kOnOff};
    case Control::Language: return {"언어", {}};
    case Control::LcdBrightness: return {"LCD 밝기", {}};
    case Control::ClockSetting: return {"날짜 / 시간 설정", {}};
    case Control::FrontResolution: return {"전방 해상도", kResolution};
    case Control::FrameRate: return {"프레임", {"15fps", "20fps", "30fps"}};
    case Control::FrontQuality: return {"전방 화질", kQuality};
    case Control::RearResolution: return {"후방 해상도", kRearResolution};
    case Control::RearQuality: return {"후방 화질", kQuality};
    case Control::ShockSensitivity: return {"충격 감도", {}};
    case Control::LdwsOnOff: return {"차선이탈 경보", kOnOff};
    case Control::LdwsSpeed: return {"차선이탈 경보 속도", {"50km", "60km", "80km", "100km"}};
    case Control::FcwsOnOff: return {"전방추돌 경보", kOnOff};
    case Control::FcmdOnOff: return {"앞차 출발 알림", kOnOff};
    case Control::ParkingMode:
        if (f.parkingTimeLapse) return {"주차모드", {"주차모션", "타임랩스", "사용 안 함"}};
        return {"주차모드", {"사용", "사용 안 함"}};
    case Control::ParkingFrontResolution: return {"전방 해상도", kResolution};
    case Control::ParkingFrameRate: return {"프레임", {"10fps", "15fps", "20fps"}};
    case Control::ParkingFrontQuality: return {"전방 화질", kQuality};
    case Control::ParkingRearResolution: return {"후방 해상도", kRearResolution};
    case Control::ParkingRearQuality: return {"후방 화질", kQuality};
    case Control::ParkingShock: return {"충격 감도", {}};
    case Control::ParkingMotion: return {"모션 감지", kOnOff};
    case Control::ParkingMotionSensitivity: return {"모션 감도", {}};
    case Control::ParkingTimeLimit: return {"주차 녹화 시간", {}};
    case Control::Battery12V: return {"배터리 차단 전압 12V", {}};
    case Control::Battery24V: return {"배터리 차단 전압 24V", {}};
    case Control::OverwriteAlwaysShock: return {"상시 충격 덮어쓰기", {}};
    case Control::OverwriteParkingMotion: return {"주차 모션 덮어쓰기", {}};
    case Control::OverwriteParkingShock: return {"주차 충격 덮어쓰기", {}};
    case Control::OverwriteManual: return {"수동 녹화 덮어쓰기", {}};
    case Control::SecurityLed: return {"보안 LED", {"모드 1", "모드 2", "모드 3", "꺼짐"}};
    case Control::Partition: return {"메모리 분할", {"기본", "수동 우선", "주차 우선"}};
    case Control::TouchCalibration: return {"화면 터치 초기화", {}};
    case Control::Format: return {"메모리 카드 포멧", {}};
    case Control::Count: break;
    }
    return {"", {}};
}

}  // namespace tarvik
