#include "ui/shell/main_window_texts.h"

#include <QSlider>

#include "ui/shell/main_window_views.h"
#include "ui/controls/image_button.h"
#include "ui/l10n/orvo_languages.h"
#include "ui/library/playback/fullscreen_control_bar.h"

namespace tarvik {

namespace {
QString withKey(const char* key, const char* shortcut) {
    return shortcut ? QString("%1 (%2)").arg(tr_k(key), QString::fromLatin1(shortcut)) : tr_k(key);
}
}  // namespace

void MainWindowTexts::applyToolTips(const MainWindowViews& v, FullscreenControlBar* bar) {
    struct Tip { QWidget* widget; const char* key; const char* shortcut; };
    const Tip tips[] = {
        {v.playPrevFileButton, "이전 파일", nullptr},
        {v.rewindButton, "이전 프레임", "\xE2\x86\x90"},
        {v.playPauseButton, "재생/일시정지", "Space"},
        {v.stopButton, "정지", nullptr},
        {v.fastForwardButton, "다음 프레임", "\xE2\x86\x92"},
        {v.playNextFileButton, "다음 파일", nullptr},
        {v.snapshotButton, "스냅샷 저장", nullptr},
        {v.printButton, "인쇄", nullptr},
        {v.videoScaleUpButton, "확대", nullptr},
        {v.videoScaleDownButton, "축소", nullptr},
        {v.resetVideoScaleButton, "원래 크기", nullptr},
        {v.videoRotateButton, "상하 반전", nullptr},
        {v.switchVideoButton, "전방/후방 전환", nullptr},
        {v.fullscreenButton, "전체 화면", nullptr},
        {v.muteButton, "음소거", nullptr},
        {v.volumeSliderView, "음량", "\xE2\x86\x91 \xE2\x86\x93"},
        {v.settingsButton, "블랙박스 설정", nullptr},
        {v.appMinimizeButton, "최소화", "Ctrl+M"},
        {v.appExitButton, "종료", "Ctrl+Q"},
        {v.selectFolderButton, "열기", "Ctrl+O"},
        {v.saveFileButton, "저장", nullptr},
        {v.fileListRemoveButton_OEM, "삭제", nullptr},
    };
    for (const Tip& t : tips)
        if (t.widget) t.widget->setToolTip(withKey(t.key, t.shortcut));
    if (!bar) return;
    bar->rewindButton()->setToolTip(withKey("이전 프레임", "\xE2\x86\x90"));
    bar->playPauseButton()->setToolTip(withKey("재생/일시정지", "Space"));
    bar->fastForwardButton()->setToolTip(withKey("다음 프레임", "\xE2\x86\x92"));
    bar->exitButton()->setToolTip(withKey("전체 화면 종료", "Esc"));
}

}  // namespace tarvik
