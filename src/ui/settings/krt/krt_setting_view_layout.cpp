// How the KRT pane is put together: its frame, and one section per setting
// with the controls that edit it. What the controls do is in
// krt_setting_view_controller.cpp.
#include "ui/settings/krt/krt_setting_view_controller.h"

#include <QComboBox>
#include <QDateTimeEdit>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include "core/settings/krt/krt_setting_manager.h"
#include "ui/controls/image_button.h"
#include "ui/controls/image_names.h"
#include "ui/l10n/orvo_languages.h"
#include "ui/settings/krt/guided_slider.h"
#include "ui/settings/krt/labelled_radio_button.h"
#include "ui/settings/krt/memory_partition_graph_view.h"

namespace tarvik {

namespace {

constexpr QSize kPaneSize(760, 640);
constexpr int kTitleHeight = 48;
constexpr int kButtonBarHeight = 56;
constexpr int kSectionTitleWidth = 190;
const QColor kTitleColor(0xd6, 0xdf, 0xe9);

constexpr const char* kOn = "Q260 : 사용 함";
constexpr const char* kOff = "Q260 : 사용 안 함";

KRTSettingManager& lines() { return KRTSettingManager::SharedKRTSettingManager(); }

// Radio groups live in a process-wide registry: every pane takes fresh ids so
// two panes (or a pane and the one it replaces) never share a group.
int nextGroupID() {
    static int next = 0x6B00;
    return ++next;
}

QPalette panePalette() {
    QPalette p;
    const QColor window(0x17, 0x19, 0x1d), text(0xe6, 0xe8, 0xeb), dim(0x6a, 0x6e, 0x75);
    p.setColor(QPalette::Window, window);
    p.setColor(QPalette::WindowText, text);
    p.setColor(QPalette::Base, QColor(0xf4, 0xf5, 0xf7));
    p.setColor(QPalette::Text, Qt::black);
    p.setColor(QPalette::Button, QColor(0x24, 0x27, 0x2d));
    p.setColor(QPalette::ButtonText, text);
    p.setColor(QPalette::Highlight, QColor(0x8a, 0x5a, 0x1c));
    p.setColor(QPalette::HighlightedText, Qt::white);
    for (auto role : {QPalette::WindowText, QPalette::ButtonText}) p.setColor(QPalette::Disabled, role, dim);
    p.setColor(QPalette::Disabled, QPalette::Text, QColor(0x80, 0x80, 0x80));
    p.setColor(QPalette::Disabled, QPalette::Base, QColor(0xd0, 0xd3, 0xd8));
    return p;
}

ImageButton* textButton(const char* image, QWidget* parent) {
    auto* b = new ImageButton(image, parent);
    b->setFixedSize(120, 28);
    b->setFocusPolicy(Qt::StrongFocus);
    return b;
}

}  // namespace

// ---- building --------------------------------------------------------------

void KRTSettingViewController::loadView() {
    QWidget* root = view();
    root->setObjectName("KRTSettingView");
    root->setFixedSize(kPaneSize);
    root->setPalette(panePalette());
    root->setAutoFillBackground(true);
    root->installEventFilter(this);

    auto* column = new QVBoxLayout(root);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);

    title_ = new QLabel(root);
    title_->setFixedHeight(kTitleHeight);
    title_->setContentsMargins(20, 0, 20, 0);
    QFont tf = title_->font();
    tf.setPointSizeF(tf.pointSizeF() * 1.35);
    tf.setBold(true);
    title_->setFont(tf);
    QPalette tp = title_->palette();
    tp.setColor(QPalette::WindowText, kTitleColor);
    title_->setPalette(tp);
    labels_.emplace_back(title_, "블랙박스 설정");
    column->addWidget(title_);

    scroll_ = new QScrollArea(root);
    scroll_->setFrameShape(QFrame::NoFrame);
    scroll_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    scroll_->setWidgetResizable(false);
    scroll_->viewport()->setAutoFillBackground(false);
    scroll_->setStyleSheet("QScrollArea { background: transparent; border: none; }");
    column->addWidget(scroll_, 1);

    auto* bar = new QWidget(root);
    bar->setFixedHeight(kButtonBarHeight);
    auto* buttons = new QHBoxLayout(bar);
    buttons->setContentsMargins(20, 0, 20, 0);
    buttons->setSpacing(10);
    resetButton_ = textButton(images::kCancelButton, bar);
    okButton_ = textButton(images::kOkButton, bar);
    cancelButton_ = textButton(images::kCancelButton, bar);
    buttons->addWidget(resetButton_);
    buttons->addStretch(1);
    buttons->addWidget(okButton_);
    buttons->addWidget(cancelButton_);
    column->addWidget(bar);
    connect(resetButton_, &QAbstractButton::clicked, this, &KRTSettingViewController::resetButtonTouched);
    connect(okButton_, &QAbstractButton::clicked, this, &KRTSettingViewController::okButtonTouched);
    connect(cancelButton_, &QAbstractButton::clicked, this, &KRTSettingViewController::cancelButtonTouched);

    content_ = buildContent();
    applyModelFeatures();
    applySettingData();
    changeCurrentView(content_);
    hideSlidersGuide();
    applyLanguageSettings();
}

QLabel* KRTSettingViewController::sectionTitle(const char* key) {
    auto* l = new QLabel;
    l->setFixedWidth(kSectionTitleWidth);
    l->setWordWrap(true);
    l->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    QFont f = l->font();
    f.setBold(true);
    l->setFont(f);
    labels_.emplace_back(l, key);
    return l;
}

KRTSettingViewController::RadioGroup KRTSettingViewController::makeRawGroup(int count, QWidget* parent) {
    RadioGroup g;
    g.groupID = nextGroupID();
    for (int i = 0; i < count; ++i) {
        auto* b = new LabelledRadioButton(parent);
        b->setRadioGroupID(g.groupID);
        g.buttons.push_back(b);
    }
    return g;
}

KRTSettingViewController::RadioGroup& KRTSettingViewController::makeGroup(KrtControl control, int count,
                                                                          QWidget* parent) {
    RadioGroup& g = groups_[control] = makeRawGroup(count, parent);
    for (int i = 0; i < count; ++i)
        connect(g.buttons[static_cast<std::size_t>(i)], &QAbstractButton::clicked, this,
                [this, control, i] { radioTouched(control, i); });
    return g;
}

QWidget* KRTSettingViewController::buildContent() {
    auto* content = new QWidget;
    content->setPalette(panePalette());
    content->setStyleSheet("QLabel { color: #e6e8eb; } QLabel:disabled { color: #6a6e75; }");
    auto* grid = new QGridLayout(content);
    grid->setContentsMargins(24, 14, 24, 18);
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(16);
    int row = 0;
    auto addSection = [&](const char* key, QLayout* controls) {
        grid->addWidget(sectionTitle(key), row, 0, Qt::AlignTop);
        grid->addLayout(controls, row++, 1, Qt::AlignTop);
    };
    auto hbox = [] {
        auto* h = new QHBoxLayout;
        h->setSpacing(22);
        h->setContentsMargins(0, 0, 0, 0);
        return h;
    };
    auto radioRow = [&](KrtControl c, std::initializer_list<const char*> keys) {
        RadioGroup& g = makeGroup(c, static_cast<int>(keys.size()), content);
        auto* h = hbox();
        std::size_t i = 0;
        for (const char* key : keys) {
            radioTexts_.emplace_back(g.buttons[i], key);
            h->addWidget(g.buttons[i++]);
        }
        h->addStretch(1);
        return h;
    };

    // Memory partition: the three presets, then the graph with its legend.
    {
        auto* v = new QVBoxLayout;
        v->setSpacing(8);
        partition_ = makeRawGroup(3, content);
        auto* h = hbox();
        const char* columns[3] = {"A Type(권장)", "B Type", "C Type"};
        for (int i = 0; i < 3; ++i) {
            LabelledRadioButton* b = partition_.buttons[static_cast<std::size_t>(i)];
            radioTexts_.emplace_back(b, columns[i]);
            connect(b, &QAbstractButton::clicked, this, [this, i] { memoryPartitionRadioGroupTouched(i); });
            h->addWidget(b);
        }
        h->addStretch(1);
        v->addLayout(h);
        graph_ = new MemoryPartitionGraphView(content);
        graph_->setFixedSize(440, 22);
        v->addWidget(graph_);
        auto* legend = new QGridLayout;
        legend->setHorizontalSpacing(8);
        for (int i = 0; i < 4; ++i) {
            auto* swatch = new QLabel(content);
            swatch->setFixedSize(12, 12);
            swatch->setStyleSheet(
                QString("background: %1; border-radius: 2px;").arg(MemoryPartitionGraphView::barColor(i).name()));
            legend_[static_cast<std::size_t>(i)] = new QLabel(content);
            legend->addWidget(swatch, i / 2, (i % 2) * 2);
            legend->addWidget(legend_[static_cast<std::size_t>(i)], i / 2, (i % 2) * 2 + 1);
        }
        legend->setColumnStretch(1, 1);
        legend->setColumnStretch(3, 1);
        v->addLayout(legend);
        addSection("Q260 : 메모리 파티션", v);
    }

    // Automatic parking mode: each choice with what it does when the engine stops.
    {
        auto* v = new QVBoxLayout;
        v->setSpacing(6);
        RadioGroup& g = makeGroup(KrtControl::ParkMode, 2, content);
        const char* keys[2] = {kOn, kOff};
        const char* notes[2] = {"(시동이 꺼지면 주차 녹화 모드로 전환합니다", "(시동이 꺼지면 블랙박스를 종료합니다"};
        for (std::size_t i = 0; i < 2; ++i) {
            auto* h = hbox();
            h->setSpacing(10);
            radioTexts_.emplace_back(g.buttons[i], keys[i]);
            h->addWidget(g.buttons[i]);
            auto* note = new QLabel(content);
            note->setStyleSheet("QLabel { color: #9aa0a8; }");
            labels_.emplace_back(note, notes[i]);
            h->addWidget(note);
            h->addStretch(1);
            v->addLayout(h);
        }
        addSection("Q260 : 자동주차모드", v);
    }
    addSection("Q260 : 녹화종료전압", radioRow(KrtControl::PowerOffVoltage, {kOff, "11.8V", "12.0V", "12.2V"}));

    // Clock: off until the box is ticked, whatever the file says.
    {
        auto* h = hbox();
        h->setSpacing(12);
        clockCheckBox_ = new LabelledRadioButton(content);
        clockCheckBox_->setRadioGroupID(nextGroupID());
        clockCheckBox_->setIsCheckBoxMode(true);
        clockCheckBox_->setIsToggleMode(true);
        connect(clockCheckBox_, &QAbstractButton::clicked, this, &KRTSettingViewController::dateTimeCheckBoxTouched);
        datePicker_ = new QDateTimeEdit(content);
        datePicker_->setDisplayFormat("yyyy-MM-dd  HH:mm:ss");
        datePicker_->setFixedWidth(200);
        currentTimeButton_ = textButton(images::kCancelButton, content);
        currentTimeButton_->setFixedWidth(170);
        connect(currentTimeButton_, &QAbstractButton::clicked, this,
                &KRTSettingViewController::currentTimeButtonTouched);
        h->addWidget(clockCheckBox_);
        h->addWidget(datePicker_);
        h->addWidget(currentTimeButton_);
        h->addStretch(1);
        addSection("Q260 : 날짜 / 시간", h);
    }
    {
        auto* h = hbox();
        timeZone_ = new QComboBox(content);
        timeZone_->setFixedWidth(430);
        for (std::size_t i = 0; i < krtrules::timeZoneKeys().size(); ++i) timeZone_->addItem(QString());
        connect(timeZone_, &QComboBox::activated, this,
                [this](int item) { krtrules::writeControl(lines(), KrtControl::TimeZone, item); });
        h->addWidget(timeZone_);
        h->addStretch(1);
        addSection("Q260 : 표준 시간대", h);
    }
    addSection("Q260 : Daylight Saving Time", radioRow(KrtControl::SummerTime, {kOn, kOff}));
    addSection("언어", radioRow(KrtControl::Language, {"영어", "프랑스어"}));
    addSection("속도표시", radioRow(KrtControl::SpeedUnit, {"kph", "mph"}));
    addSection("Q260 : 음성녹음", radioRow(KrtControl::SoundRecording, {kOn, kOff}));

    auto makeSlider = [&](KrtControl c, void (KRTSettingViewController::*changed)(int)) {
        auto* s = new GuidedSlider(krtrules::sliderSteps(c), content);
        sliders_[c] = s;
        connect(s, &GuidedSlider::touchedDown, this, [this, s] { sliderTouchedDown(s); });
        connect(s, &GuidedSlider::touchedUp, this, [this, s] { sliderTouchedUp(s); });
        connect(s, &GuidedSlider::valueChanged, this, changed);
        return s;
    };
    {
        auto* v = new QVBoxLayout;
        v->setSpacing(6);
        v->addLayout(radioRow(KrtControl::VoiceGuidance, {kOn, kOff}));
        v->addWidget(makeSlider(KrtControl::VoiceVolume, &KRTSettingViewController::voiceGuidanceSliderChanged));
        addSection("Q260 : 음성안내", v);
    }
    {
        auto* v = new QVBoxLayout;
        v->addWidget(
            makeSlider(KrtControl::ImpactSensitivity, &KRTSettingViewController::impactSensitivitySliderChanged));
        addSection("Q260 : 충격감도", v);
    }
    {
        auto* v = new QVBoxLayout;
        v->addWidget(
            makeSlider(KrtControl::MotionSensitivity, &KRTSettingViewController::motionSensitivitySliderChanged));
        addSection("Q260 : 모션인식감도", v);
    }
    addSection("시큐리티 LED", radioRow(KrtControl::SecurityLed, {kOn, kOff}));

    // Model and firmware: shown, never written.
    {
        auto* info = new QGridLayout;
        info->setHorizontalSpacing(14);
        auto* modelKey = new QLabel(content);
        auto* versionKey = new QLabel(content);
        labels_.emplace_back(modelKey, "Q260 : Model");
        labels_.emplace_back(versionKey, "Q260 : Version");
        modelValue_ = new QLabel(content);
        versionValue_ = new QLabel(content);
        for (QLabel* l : {modelValue_, versionValue_}) l->setTextInteractionFlags(Qt::TextSelectableByMouse);
        info->addWidget(modelKey, 0, 0);
        info->addWidget(modelValue_, 0, 1);
        info->addWidget(versionKey, 1, 0);
        info->addWidget(versionValue_, 1, 1);
        info->setColumnStretch(1, 1);
        addSection("Q260 : 펌웨어 버전", info);
    }
    grid->setColumnStretch(1, 1);
    content->setFixedWidth(kPaneSize.width() - scroll_->verticalScrollBar()->sizeHint().width());
    content->adjustSize();
    return content;
}

}  // namespace tarvik
