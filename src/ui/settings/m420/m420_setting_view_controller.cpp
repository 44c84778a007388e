#include "ui/settings/m420/m420_setting_view_controller.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollArea>
#include <QTimeZone>
#include <QVBoxLayout>

#include "core/settings/m420/m420_factory_reset.h"
#include "core/settings/m420/m420_setting_manager.h"
#include "core/settings/m420/m420_time_zones.h"
#include "core/settings/m420/settings_alert_sink.h"
#include "core/util/atomic_file.h"
#include "ui/l10n/orvo_languages.h"
#include "ui/settings/m420/m420_control_labels.h"
#include "ui/settings/m420/m420_control_widget.h"
#include "ui/settings/m420/memory_partition_graph.h"

namespace tarvik {

using m420pane::Control;

namespace {

M420SettingManager& manager() { return M420SettingManager::SharedM420SettingManager(); }

constexpr const char* kParkingTitle = "주차모드";
constexpr const char* kParkingOffMessage =
    "주차모드를 사용하지 않는 경우,\n차량 시동이 꺼지면 주차 중 녹화가 되지 않습니다.\n주차모드 사용을 해제 하시겠습니까?";
constexpr const char* kParkingMotionMessage =
    "주차모션 선택 시,\n타임랩스 영상이 삭제되고 주차모션 영상이 저장됩니다.\n적용하시겠습니까?";
constexpr const char* kTimeLapseMessage =
    "타임랩스 선택 시 \n주차모션 영상이 삭제되고 주차모드 및 주차충격 영상이 타임랩스로 저장됩니다.\n적용하시겠습니까?";
constexpr const char* kTouchTitle = "초기화하기";
constexpr const char* kTouchMessage =
    "주의 : 현재 설정된 화면 터치 정확도 값이 초기화 됩니다. \r\n초기화하려면 (예)를, 취소하려면 (아니오)를 선택 하십시오.";

constexpr std::array<const char*, 4> kTabKeys = {"공통", "상시녹화", "주차녹화", "기타"};

constexpr QSize kPaneSize(680, 600);

QString languageName(const std::string& code) {
    const QLocale locale(QString::fromStdString(code));
    if (code.empty() || locale.language() == QLocale::C) return QString::fromStdString(code);
    return locale.nativeLanguageName();
}

SettingTime toSettingTime(const QDateTime& dt, int offsetMinutes) {
    const QDate d = dt.date();
    const QTime t = dt.time();
    return {d.year(), d.month(), d.day(), t.hour(), t.minute(), t.second(), offsetMinutes};
}

}  // namespace

M420SettingViewController::M420SettingViewController(QObject* parent) : OrvoViewController(nullptr, parent) {
    loadView();
}

M420SettingViewController::~M420SettingViewController() = default;

void M420SettingViewController::loadView() {
    features_ = m420pane::paneFeaturesFor(manager());
    const QString root = QString::fromStdString(manager().settingDirPath());
    hadSettingFolder_ = !root.isEmpty() && QFileInfo(root + "/SETTING").isDir();
    QWidget* v = view();
    v->setObjectName("m420SettingPane");
    v->setStyleSheet(
        "#m420SettingPane, QScrollArea, QScrollArea > QWidget > QWidget { background: #23272e; }"
        "QLabel, QRadioButton, QCheckBox { color: #e8eaed; }"
        "QPushButton { color: white; background: #3b424e; border: 1px solid #5b6474; border-radius: 4px;"
        " padding: 5px 14px; } QPushButton:checked { background: #2f6fd6; border-color: #5b95f0; }"
        "QLabel#paneModel { color: #9fb4d8; font-weight: bold; }"
        "QRadioButton::indicator, QCheckBox::indicator { width: 12px; height: 12px; border: 1px solid #8a93a3;"
        " background: #1b1e23; } QRadioButton::indicator { border-radius: 7px; }"
        "QRadioButton::indicator:checked, QCheckBox::indicator:checked { background: #3d8bfd; border-color: #e8eaed; }");
    v->resize(kPaneSize);

    auto* top = new QHBoxLayout;
    modelLabel_ = new QLabel(v);
    modelLabel_->setObjectName("paneModel");
    top->addWidget(modelLabel_);
    top->addStretch();
    static constexpr std::array<const char*, 4> kTabNames = {"commonTabButton", "alwaysTabButton",
                                                             "parkingTabButton", "etcTabButton"};
    for (int i = 0; i < 4; ++i) {
        tabButtons_[i] = new QPushButton(v);
        tabButtons_[i]->setObjectName(kTabNames[i]);
        tabButtons_[i]->setCheckable(true);
        tabButtons_[i]->setMinimumWidth(110);
        top->addWidget(tabButtons_[i]);
        connect(tabButtons_[i], &QPushButton::clicked, this, [this, i] { tabButtonTouched(i); });
    }

    scrollView_ = new QScrollArea(v);
    scrollView_->setWidgetResizable(true);
    scrollView_->setFrameShape(QFrame::NoFrame);

    resetButton_ = new QPushButton(v);
    okButton_ = new QPushButton(v);
    cancelButton_ = new QPushButton(v);
    okButton_->setObjectName("okButton");
    cancelButton_->setObjectName("cancelButton");
    auto* bottom = new QHBoxLayout;
    bottom->addWidget(resetButton_);
    bottom->addStretch();
    bottom->addWidget(okButton_);
    bottom->addWidget(cancelButton_);
    connect(resetButton_, &QPushButton::clicked, this, &M420SettingViewController::resetButtonTouched);
    connect(okButton_, &QPushButton::clicked, this, &M420SettingViewController::okButtonTouched);
    connect(cancelButton_, &QPushButton::clicked, this, &M420SettingViewController::cancelButtonTouched);

    auto* layout = new QVBoxLayout(v);
    layout->setContentsMargins(16, 12, 16, 12);
    layout->addLayout(top);
    layout->addWidget(scrollView_, 1);
    layout->addLayout(bottom);

    buildControls();
    for (int t = 0; t < 4; ++t) pages_[t] = buildPage(static_cast<Tab>(t));
    tabButtonTouched(CommonTab);
    applyModelFeatures();
    applySettingData();
    applySettingTime();
    applyLanguageSettings();
}

void M420SettingViewController::buildControls() {
    const auto& m = manager();
    for (int i = 0; i < m420pane::kControlCount; ++i) {
        const auto c = static_cast<Control>(i);
        const m420pane::ControlSpec& spec = m420pane::controlSpec(c);
        if (!features_.isShown(c) || spec.widget == m420pane::Widget::Button ||
            spec.widget == m420pane::Widget::Clock)
            continue;
        QStringList choices = m420ControlLabels(c, features_).choiceKeys;
        for (QString& k : choices) k = tr_k(k);
        if (c == Control::TimeZone) {
            choices.clear();
            for (const auto& d : m420pane::gmtDescList()) choices << QString::fromStdString(d);
        } else if (c == Control::Language) {
            for (const auto& [index, code] : m.languages()) choices << languageName(code);
        }
        auto* w = new M420ControlWidget(spec, features_.sliderMinimum(c), features_.sliderMaximum(c), choices);
        if (c == Control::ParkingTimeLimit) {
            const bool with36 = features_.timeLimitWith36Hours;
            w->setValueText([with36](int step) {
                const auto hours = m420pane::timeLimitHours(with36, step);
                return hours ? QString("%1h").arg(*hours) : QString("-");
            });
        }
        controls_[static_cast<std::size_t>(i)] = w;
        captions_[static_cast<std::size_t>(i)] = new QLabel;
        connect(w, &M420ControlWidget::positionChanged, this, &M420SettingViewController::controlChanged);
    }
}

QWidget* M420SettingViewController::buildPage(Tab tab) {
    auto* page = new QWidget;
    auto* form = new QFormLayout(page);
    form->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
    form->setHorizontalSpacing(18);
    form->setVerticalSpacing(10);
    for (int i = 0; i < m420pane::kControlCount; ++i) {
        const auto c = static_cast<Control>(i);
        if (static_cast<int>(m420pane::controlSpec(c).tab) != tab || !features_.isShown(c)) continue;
        if (auto* w = controls_[static_cast<std::size_t>(i)]) form->addRow(captions_[static_cast<std::size_t>(i)], w);
        if (c == Control::ClockSetting) {
            clockRow_ = new QWidget;
            auto* row = new QHBoxLayout(clockRow_);
            row->setContentsMargins(0, 0, 0, 0);
            timeCheckBox_ = new QCheckBox(clockRow_);
            timeCheckBox_->setObjectName("commonTimeSettingCheckBox");
            datePicker_ = new QDateTimeEdit(clockRow_);
            datePicker_->setObjectName("commonDatePicker");
            datePicker_->setDisplayFormat("yyyy-MM-dd HH:mm:ss");
            datePicker_->setCalendarPopup(true);
            row->addWidget(timeCheckBox_);
            row->addWidget(datePicker_, 1);
            connect(datePicker_, &QDateTimeEdit::dateTimeChanged, this, [this](const QDateTime& dt) {
                // A time the user typed is a time of this computer's zone.
                clockOffsetMinutes_ = dt.offsetFromUtc() / 60;
            });
            captions_[static_cast<std::size_t>(i)] = new QLabel;
            form->addRow(captions_[static_cast<std::size_t>(i)], clockRow_);
        }
        if (c == Control::Partition) {
            graph_ = new MemoryPartitionGraph;
            form->addRow(QString(), graph_);
        }
        if (c == Control::Format || c == Control::TouchCalibration) {
            auto* b = new QPushButton;
            b->setObjectName(m420pane::controlSpec(c).name);
            (c == Control::Format ? formatButton_ : touchButton_) = b;
            connect(b, &QPushButton::clicked, this,
                    c == Control::Format ? &M420SettingViewController::memoryCardFormatButtonTouched
                                         : &M420SettingViewController::initializeTouchButtonTouched);
            auto* row = new QWidget;
            auto* h = new QHBoxLayout(row);
            h->setContentsMargins(0, 0, 0, 0);
            h->addWidget(b);
            h->addStretch();
            form->addRow(QString(), row);
        }
    }
    return page;
}

void M420SettingViewController::applyModelFeatures() {
    // Which controls exist was decided when they were built; what is left is
    // what depends on other settings.
    relabelSpeedPresets();
    refreshMemoryPartitionGraph();
}

void M420SettingViewController::applySettingData() {
    if (features_.group == m420pane::ModelGroup::None) return;
    state_ = m420pane::applySettingData(manager(), features_);
    for (int i = 0; i < m420pane::kControlCount; ++i)
        if (controls_[static_cast<std::size_t>(i)]) controls_[static_cast<std::size_t>(i)]->setPosition(state_.pos[i]);
    enableParkingControls(state_[Control::ParkingMode]);
    relabelSpeedPresets();
    refreshMemoryPartitionGraph();
}

void M420SettingViewController::applySettingTime() {
    if (!timeCheckBox_) return;
    const QDateTime now = QDateTime::currentDateTime();
    timeCheckBox_->setChecked(false);
    datePicker_->setDateTime(now);
    clockOffsetMinutes_ = now.offsetFromUtc() / 60;
    const auto t = readSettingTimeFile(manager().settingDirPath());
    if (!t) return;
    datePicker_->setDateTime(QDateTime(QDate(t->year, t->month, t->day), QTime(t->hour, t->minute, t->second)));
    clockOffsetMinutes_ = t->utcOffsetMinutes;  // kept unless the user changes the time
    timeCheckBox_->setChecked(true);
}

bool M420SettingViewController::saveData() {
    M420SettingManager& m = manager();
    if (features_.group == m420pane::ModelGroup::None) return true;
    // A card pulled while the pane was open leaves its empty mount folder
    // behind; writing there would put the settings on this computer's disk.
    const QString root = QString::fromStdString(m.settingDirPath());
    if (hadSettingFolder_ && !QFileInfo(root + "/SETTING").isDir()) {
        raiseMemoryCardAlert();
        return false;
    }
    m420pane::saveSettingData(state_, features_, m);
    return m.saveData();
}

void M420SettingViewController::saveSettingTime() {
    if (!timeCheckBox_) return;
    const std::string root = manager().settingDirPath();
    if (root.empty()) return;
    if (timeCheckBox_->isChecked()) {
        if (!writeSettingTimeFile(root, toSettingTime(datePicker_->dateTime(), clockOffsetMinutes_)))
            raiseMemoryCardAlert();
    } else {
        removeSettingTimeFile(root);
    }
}

void M420SettingViewController::refreshMemoryPartitionGraph() {
    if (!graph_) return;
    graph_->setShares(m420pane::partitionShares(manager().modelType(), state_[Control::Partition]));
}

void M420SettingViewController::okButtonTouched() {
    // A card that refuses setup.cfg has had its alert; its clock file is left
    // alone too, and the pane closes all the same.
    if (saveData()) saveSettingTime();
    stopModalWithCode(1);
}

void M420SettingViewController::cancelButtonTouched() { stopModalWithCode(0); }

void M420SettingViewController::keyDown(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) okButtonTouched();
    else if (event->key() == Qt::Key_Escape) cancelButtonTouched();
}

void M420SettingViewController::resetButtonTouched() {
    resetM420SettingsToFactory();
    applySettingData();
}

void M420SettingViewController::tabButtonTouched(int tab) {
    if (tab < 0 || tab > 3) return;
    for (int i = 0; i < 4; ++i) tabButtons_[i]->setChecked(i == tab);
    if (QWidget* old = scrollView_->takeWidget()) old->hide();
    scrollView_->setWidget(pages_[tab]);
    pages_[tab]->show();
    currentTab_ = tab;
}

void M420SettingViewController::memoryCardFormatButtonTouched() { emit formatRequested(); }

void M420SettingViewController::initializeTouchButtonTouched() {
    if (ask(kTouchTitle, kTouchMessage) != kAlertYes) return;
    const std::string root = manager().settingDirPath();
    if (root.empty() || !writeFileAtomically(root + "/Set_touch_cal.txt", "", 0)) raiseMemoryCardAlert();
}

void M420SettingViewController::controlChanged(Control c, int position) {
    if (c == Control::ParkingMode) {
        parkingModeChanged(position);
        return;
    }
    state_[c] = position;
    if (c == Control::SpeedUnit) relabelSpeedPresets();
    if (c == Control::Partition) refreshMemoryPartitionGraph();
}

void M420SettingViewController::parkingModeChanged(int position) {
    const char* message = nullptr;
    if (features_.parkingTimeLapse)
        message = position == 0 ? kParkingMotionMessage : position == 1 ? kTimeLapseMessage : kParkingOffMessage;
    else if (position == 1)
        message = kParkingOffMessage;
    if (message && position != state_[Control::ParkingMode] && ask(kParkingTitle, message) == kAlertNo) {
        control(Control::ParkingMode)->setPosition(state_[Control::ParkingMode]);
        return;
    }
    state_[Control::ParkingMode] = position;
    enableParkingControls(position);
}

void M420SettingViewController::enableParkingControls(int p) {
    // Off turns every parking control but the mode itself grey; time-lapse
    // keeps all but motion.
    const bool on = p == 0;
    const bool timeLapse = features_.parkingTimeLapse && p == 1;
    for (Control c : {Control::ParkingShock, Control::ParkingTimeLimit, Control::Battery12V, Control::Battery24V})
        if (auto* w = control(c)) w->setControlEnabled(on || timeLapse);
    if (auto* w = control(Control::ParkingMotionSensitivity)) w->setControlEnabled(on);
}

void M420SettingViewController::relabelSpeedPresets() {
    auto* w = control(Control::LdwsSpeed);
    const auto labels = m420pane::ldwsSpeedLabels(manager().modelType(), state_[Control::SpeedUnit] == 1);
    if (!w || !labels) return;
    w->setChoiceLabels({(*labels)[0], (*labels)[1], (*labels)[2], (*labels)[3]});
}

int M420SettingViewController::ask(const char* titleKey, const char* messageKey) {
    if (alert_) return alert_(QString::fromUtf8(titleKey), QString::fromUtf8(messageKey));
    QMessageBox box(QMessageBox::Warning, tr_k(titleKey), tr_k(messageKey), QMessageBox::NoButton, view());
    QPushButton* no = box.addButton(tr_k("아니오"), QMessageBox::NoRole);
    box.addButton(tr_k("예"), QMessageBox::YesRole);
    box.setWindowModality(Qt::WindowModal);
    box.exec();
    return box.clickedButton() == no || !box.clickedButton() ? kAlertNo : kAlertYes;
}

void M420SettingViewController::applyLanguageSettings() {
    const auto& m = manager();
    modelLabel_->setText(QString::fromStdString(m.modelName().empty() ? std::string(m420pane::modelGroupName(features_.group))
                                                                      : m.modelName()));
    for (int i = 0; i < 4; ++i) tabButtons_[i]->setText(tr_k(kTabKeys[i]));
    for (int i = 0; i < m420pane::kControlCount; ++i) {
        const auto c = static_cast<Control>(i);
        const M420ControlLabels labels = m420ControlLabels(c, features_);
        if (auto* cap = captions_[static_cast<std::size_t>(i)]) cap->setText(tr_k(labels.captionKey));
        auto* w = controls_[static_cast<std::size_t>(i)];
        if (w && !labels.choiceKeys.isEmpty() && c != Control::LdwsSpeed) {
            QStringList texts;
            for (const QString& k : labels.choiceKeys) texts << tr_k(k);
            w->setChoiceLabels(texts);
        }
    }
    relabelSpeedPresets();
    if (formatButton_) formatButton_->setText(tr_k(m420ControlLabels(Control::Format, features_).captionKey));
    if (touchButton_) touchButton_->setText(tr_k(m420ControlLabels(Control::TouchCalibration, features_).captionKey));
    resetButton_->setText(tr_k("설정값 초기화"));
    okButton_->setText("OK");
    cancelButton_->setText(tr_k("취소"));
    if (graph_) graph_->update();
}

}  // namespace tarvik
