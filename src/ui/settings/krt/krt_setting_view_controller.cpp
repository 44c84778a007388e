#include "ui/settings/krt/krt_setting_view_controller.h"

#include <QComboBox>
#include <QDateTimeEdit>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QScrollArea>
#include <QScrollBar>

#include "core/settings/krt/krt_setting_manager.h"
#include "ui/controls/image_button.h"
#include "ui/l10n/orvo_languages.h"
#include "ui/settings/krt/guided_slider.h"
#include "ui/settings/krt/labelled_radio_button.h"
#include "ui/settings/krt/memory_partition_graph_view.h"

namespace tarvik {

namespace {

const QColor kEnabledDateText(Qt::black);
const QColor kDisabledDateText(0x80, 0x80, 0x80);

KRTSettingManager& lines() { return KRTSettingManager::SharedKRTSettingManager(); }

}  // namespace

KRTSettingViewController::KRTSettingViewController(QObject* parent) : OrvoViewController(nullptr, parent) {
    loadView();
}

KRTSettingViewController::~KRTSettingViewController() {
    if (view()) view()->removeEventFilter(this);
}

// ---- filling -----------------------------------------------------------------

void KRTSettingViewController::applyLanguageSettings() {
    OrvoLanguages& l10n = SharedOrvoLanguages();
    for (auto& [label, key] : labels_) label->setText(l10n.localized(key));
    for (auto& [button, key] : radioTexts_) {
        button->setText(l10n.localized(key));
        button->updateGeometry();
    }
    for (int i = 0; i < timeZone_->count(); ++i)
        timeZone_->setItemText(i, l10n.localized(QString::fromStdString(krtrules::timeZoneKeys()[std::size_t(i)])));
    okButton_->setText(l10n.localized("확인"));
    cancelButton_->setText(l10n.localized("취소"));
    resetButton_->setText(l10n.localized("설정값 초기화"));
    currentTimeButton_->setText(l10n.localized("현재 시간 가져오기"));
    sliders_[KrtControl::VoiceVolume]->setCaptions(l10n.localized("Q260 : 작게"), l10n.localized("Q260 : 크게"));
    for (KrtControl c : {KrtControl::ImpactSensitivity, KrtControl::MotionSensitivity})
        sliders_[c]->setCaptions(l10n.localized("Q260 : 둔감"), l10n.localized("Q260 : 민감"));
    refreshMemoryPartitionGraphWithRatio(graph_->percents());
    if (content_) content_->adjustSize();
}

void KRTSettingViewController::applyModelFeatures() {
    datePicker_->setLocale(QLocale(QLocale::English, QLocale::UnitedStates));
    datePicker_->setDateTime(QDateTime::currentDateTime());
    currentTimeButton_->setEnabled(false);
    clockCheckBox_->setIsSelected(false);
    setClockControls(false);
    // The Q260 is the family's one model and needs nothing further.
}

void KRTSettingViewController::applySettingData() {
    const KRTSettingManager& k = lines();
    for (auto& [control, group] : groups_) selectIn(group, krtrules::readControl(k, control));
    selectIn(partition_, krtrules::memoryPartitionColumn(k));
    refreshMemoryPartitionGraphWithRatio(krtrules::memoryPartitionPercents(k));
    timeZone_->setCurrentIndex(krtrules::readControl(k, KrtControl::TimeZone));
    for (auto& [control, s] : sliders_) s->setValue(krtrules::readControl(k, control));
    modelValue_->setText(QString::fromStdString(k.valueForKey("model=").value_or("")));
    versionValue_->setText(QString::fromStdString(k.valueForKey("version=").value_or("")));
    refreshDependentGroups();
}

void KRTSettingViewController::changeCurrentView(QWidget* view) {
    if (scroll_->widget() != view) {
        if (QWidget* old = scroll_->takeWidget(); old && old != content_) old->deleteLater();
        scroll_->setWidget(view);
    }
    scroll_->verticalScrollBar()->setValue(0);
}

// ---- radio groups ------------------------------------------------------------

int KRTSettingViewController::selectedIn(const RadioGroup& group) {
    for (std::size_t i = 0; i < group.buttons.size(); ++i)
        if (group.buttons[i]->isSelected()) return static_cast<int>(i);
    return -1;
}

void KRTSettingViewController::selectIn(RadioGroup& group, int index) {
    if (index >= 0 && index < static_cast<int>(group.buttons.size()))
        group.buttons[static_cast<std::size_t>(index)]->setIsSelected(true);
}

void KRTSettingViewController::enableGroup(RadioGroup& group, bool on) {
    for (LabelledRadioButton* b : group.buttons) {
        b->setEnabled(on);
        b->QWidget::setEnabled(on);  // greys the text beside the mark
    }
}

void KRTSettingViewController::radioTouched(KrtControl control, int index) {
    RadioGroup& g = groups_[control];
    // A disabled group reports the click but keeps its state.
    if (!g.buttons[static_cast<std::size_t>(index)]->isEnabled()) return;
    krtrules::writeControl(lines(), control, index);
    refreshDependentGroups();
}

void KRTSettingViewController::refreshDependentGroups() {
    enableGroup(groups_[KrtControl::PowerOffVoltage], selectedIndex(KrtControl::ParkMode) == 0);
    sliders_[KrtControl::VoiceVolume]->setEnabled(selectedIndex(KrtControl::VoiceGuidance) == 0);
}

int KRTSettingViewController::selectedIndex(KrtControl control) const {
    if (control == KrtControl::TimeZone) return timeZone_->currentIndex();
    if (auto s = sliders_.find(control); s != sliders_.end()) return s->second->value();
    auto g = groups_.find(control);
    return g == groups_.end() ? -1 : selectedIn(g->second);
}

LabelledRadioButton* KRTSettingViewController::memoryPartitionButton(int column) const {
    return column >= 0 && column < static_cast<int>(partition_.buttons.size())
               ? partition_.buttons[static_cast<std::size_t>(column)]
               : nullptr;
}

int KRTSettingViewController::selectedMemoryPartitionColumn() const { return selectedIn(partition_); }

void KRTSettingViewController::touchRadio(KrtControl control, int index) {
    auto g = groups_.find(control);
    if (g == groups_.end() || index < 0 || index >= static_cast<int>(g->second.buttons.size())) return;
    LabelledRadioButton* b = g->second.buttons[static_cast<std::size_t>(index)];
    if (b->isEnabled()) b->setIsSelected(true);
    radioTouched(control, index);
}

bool KRTSettingViewController::isGroupEnabled(KrtControl control) const {
    if (auto s = sliders_.find(control); s != sliders_.end()) return s->second->isEnabled();
    auto g = groups_.find(control);
    return g != groups_.end() && !g->second.buttons.empty() && g->second.buttons.front()->isEnabled();
}

GuidedSlider* KRTSettingViewController::slider(KrtControl control) const {
    auto s = sliders_.find(control);
    return s == sliders_.end() ? nullptr : s->second;
}

QString KRTSettingViewController::modelText() const { return modelValue_->text(); }
QString KRTSettingViewController::versionText() const { return versionValue_->text(); }

// ---- partition ---------------------------------------------------------------

void KRTSettingViewController::memoryPartitionRadioGroupTouched(int column) {
    const auto& presets = KRTSettingManager::memoryPartitionRatiosArray();
    if (column < 0 || column >= static_cast<int>(presets.size())) return;
    for (const auto& [kind, percent] : presets[static_cast<std::size_t>(column)])
        memoryPartitionSetValue(KRTSettingManager::memoryPartitionKeys().at(kind).c_str(), percent);
    refreshMemoryPartitionGraphWithRatio(krtrules::memoryPartitionPercents(lines()));
}

void KRTSettingViewController::memoryPartitionSetValue(const char* key, const std::string& value) {
    lines().setValueForKey(key, value);
}

void KRTSettingViewController::refreshMemoryPartitionGraphWithRatio(const std::array<int, 4>& percents) {
    graph_->setPercents(percents);
    OrvoLanguages& l10n = SharedOrvoLanguages();
    const char* kinds[4] = {"Q260 : 상시녹화", "Q260 : 이벤트녹화", "Q260 : 주차녹화", "Q260 : 수동녹화"};
    for (std::size_t i = 0; i < 4; ++i)
        legend_[i]->setText(QString("%1  %2%").arg(l10n.localized(kinds[i])).arg(percents[i]));
}

// ---- sliders -------------------------------------------------------------------

void KRTSettingViewController::sliderTouchedDown(GuidedSlider* s) {
    s->highlightGuide(s->slider()->value());
    s->setGuideVisible(true);
}

void KRTSettingViewController::sliderTouchedUp(GuidedSlider* s) { s->setGuideVisible(false); }

void KRTSettingViewController::hideSlidersGuide() {
    for (auto& [control, s] : sliders_) s->setGuideVisible(false);
}

void KRTSettingViewController::voiceGuidanceSliderChanged(int value) {
    krtrules::writeControl(lines(), KrtControl::VoiceVolume, value);
    sliders_[KrtControl::VoiceVolume]->highlightGuide((value - 1) / 2);
}

void KRTSettingViewController::impactSensitivitySliderChanged(int value) {
    krtrules::writeControl(lines(), KrtControl::ImpactSensitivity, value);
    // Its steps are 2-4, so the guide follows the slider's position.
    GuidedSlider* s = sliders_[KrtControl::ImpactSensitivity];
    s->highlightGuide(s->slider()->value());
}

void KRTSettingViewController::motionSensitivitySliderChanged(int value) {
    krtrules::writeControl(lines(), KrtControl::MotionSensitivity, value);
    sliders_[KrtControl::MotionSensitivity]->highlightGuide((value - 1) / 2);
}

// ---- clock -------------------------------------------------------------------

void KRTSettingViewController::setClockControls(bool on) {
    datePicker_->setEnabled(on);
    currentTimeButton_->setEnabled(on);
    QPalette p = datePicker_->palette();
    for (auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        p.setColor(group, QPalette::Text, on ? kEnabledDateText : kDisabledDateText);
    datePicker_->setPalette(p);
    currentTimeButton_->setTitleColor(on ? QColor(Qt::white) : kDisabledDateText);
}

bool KRTSettingViewController::isClockOn() const { return clockCheckBox_->isSelected(); }

void KRTSettingViewController::dateTimeCheckBoxTouched() {
    const bool on = clockCheckBox_->isSelected();
    setClockControls(on);
    krtrules::setClockEnabled(lines(), on);
}

void KRTSettingViewController::currentTimeButtonTouched() { datePicker_->setDateTime(QDateTime::currentDateTime()); }

// ---- ending --------------------------------------------------------------------

void KRTSettingViewController::saveData() {
    // The picker's date is local time, which is what the camera's clock keeps.
    const QDateTime t = datePicker_->dateTime();
    const krtrules::ClockDate date{t.date().year(),   t.date().month(),  t.date().day(),
                                   t.time().hour(),   t.time().minute(), t.time().second()};
    krtrules::commitSettings(lines(), isClockOn() ? &date : nullptr);
}

void KRTSettingViewController::okButtonTouched() {
    // A failed write has shown its alert; the pane closes either way.
    saveData();
    stopModalWithCode(1);
}

void KRTSettingViewController::cancelButtonTouched() { stopModalWithCode(0); }

void KRTSettingViewController::resetButtonTouched() {
    lines().loadDefaultValue();  // the factory file, for the Q260 only
    applySettingData();
}

void KRTSettingViewController::keyDown(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Escape: cancelButtonTouched(); break;
    case Qt::Key_Return:
    case Qt::Key_Enter: okButtonTouched(); break;
    default: break;
    }
}

bool KRTSettingViewController::eventFilter(QObject* watched, QEvent* event) {
    if (watched != view()) return OrvoViewController::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::KeyPress: {
        auto* k = static_cast<QKeyEvent*>(event);
        if (k->key() == Qt::Key_Return || k->key() == Qt::Key_Enter) {
            okButtonTouched();
            return true;
        }
        break;  // Escape goes on to the cancel view
    }
    case QEvent::MouseButtonPress: {
        // Presses no control took: the background drags the borderless window.
        auto* m = static_cast<QMouseEvent*>(event);
        if (m->button() != Qt::LeftButton) break;
        dragging_ = true;
        dragOffset_ = m->globalPosition().toPoint() - view()->window()->pos();
        return true;
    }
    case QEvent::MouseMove: {
        auto* m = static_cast<QMouseEvent*>(event);
        if (!dragging_ || !(m->buttons() & Qt::LeftButton)) break;
        view()->window()->move(m->globalPosition().toPoint() - dragOffset_);
        return true;
    }
    case QEvent::MouseButtonRelease: dragging_ = false; break;
    default: break;
    }
    return OrvoViewController::eventFilter(watched, event);
}

}  // namespace tarvik
