#pragma once
// The settings pane of the KRT family (the Q260). It keeps no copy of the
// settings: every control reads its line of KRTSettingManager when the pane is
// filled and writes that line the moment it changes. Only OK saves the lines
// to the card; cancel and Escape leave the card alone (the edits stay in
// memory until the next load).

#include <QPointer>
#include <QString>
#include <array>
#include <map>
#include <vector>

#include "core/settings/krt/krt_control_rules.h"
#include "ui/base/pane/orvo_view_controller.h"

class QComboBox;
class QDateTimeEdit;
class QLabel;
class QScrollArea;

namespace tarvik {

class GuidedSlider;
class ImageButton;
class LabelledRadioButton;
class MemoryPartitionGraphView;

class KRTSettingViewController : public OrvoViewController {
    Q_OBJECT
public:
    explicit KRTSettingViewController(QObject* parent = nullptr);
    ~KRTSettingViewController() override;

    void applyLanguageSettings() override;
    void applyMainLanguageSeting() { applyLanguageSettings(); }
    void cancelButtonTouched() override;
    void keyDown(QKeyEvent* event) override;

    void applyModelFeatures();
    void applySettingData();
    void changeCurrentView(QWidget* view);
    void saveData();

    void okButtonTouched();
    void resetButtonTouched();
    void dateTimeCheckBoxTouched();
    void currentTimeButtonTouched();
    void memoryPartitionRadioGroupTouched(int column);
    void memoryPartitionSetValue(const char* key, const std::string& value);
    void refreshMemoryPartitionGraphWithRatio(const std::array<int, 4>& percents);
    void sliderTouchedDown(GuidedSlider* slider);
    void sliderTouchedUp(GuidedSlider* slider);
    void hideSlidersGuide();
    void voiceGuidanceSliderChanged(int value);
    void impactSensitivitySliderChanged(int value);
    void motionSensitivitySliderChanged(int value);

    // ---- what the pane shows, for its owner and tests ----
    // Row or column selected in the radio group of a control, -1 for none.
    int selectedIndex(KrtControl control) const;
    int selectedMemoryPartitionColumn() const;
    // Selects row or column index of a control's group as a click would.
    void touchRadio(KrtControl control, int index);
    bool isGroupEnabled(KrtControl control) const;
    bool isClockOn() const;
    QComboBox* timeZoneComboBox() const { return timeZone_; }
    QDateTimeEdit* datePicker() const { return datePicker_; }
    ImageButton* currentTimeButton() const { return currentTimeButton_; }
    ImageButton* okButton() const { return okButton_; }
    ImageButton* cancelButton() const { return cancelButton_; }
    ImageButton* resetButton() const { return resetButton_; }
    LabelledRadioButton* clockCheckBox() const { return clockCheckBox_; }
    LabelledRadioButton* memoryPartitionButton(int column) const;
    GuidedSlider* slider(KrtControl control) const;
    MemoryPartitionGraphView* memoryPartitionGraph() const { return graph_; }
    QScrollArea* scrollView() const { return scroll_; }
    QWidget* settingsContentView() const { return content_; }
    QString modelText() const;
    QString versionText() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct RadioGroup {
        int groupID = 0;
        std::vector<LabelledRadioButton*> buttons;
    };

    void loadView();
    QWidget* buildContent();
    RadioGroup& makeGroup(KrtControl control, int count, QWidget* parent);
    RadioGroup makeRawGroup(int count, QWidget* parent);
    static int selectedIn(const RadioGroup& group);
    static void selectIn(RadioGroup& group, int index);
    static void enableGroup(RadioGroup& group, bool on);
    void radioTouched(KrtControl control, int index);
    void refreshDependentGroups();
    void setClockControls(bool on);
    QLabel* sectionTitle(const char* key);

    std::map<KrtControl, RadioGroup> groups_;
    RadioGroup partition_;
    std::map<KrtControl, GuidedSlider*> sliders_;
    std::vector<std::pair<QLabel*, const char*>> labels_;  // label and its key
    std::vector<std::pair<LabelledRadioButton*, const char*>> radioTexts_;
    std::array<QLabel*, 4> legend_{};

    QScrollArea* scroll_ = nullptr;
    QWidget* content_ = nullptr;
    QLabel* title_ = nullptr;
    MemoryPartitionGraphView* graph_ = nullptr;
    QComboBox* timeZone_ = nullptr;
    QDateTimeEdit* datePicker_ = nullptr;
    LabelledRadioButton* clockCheckBox_ = nullptr;
    ImageButton* currentTimeButton_ = nullptr;
    ImageButton* okButton_ = nullptr;
    ImageButton* cancelButton_ = nullptr;
    ImageButton* resetButton_ = nullptr;
    QLabel* modelValue_ = nullptr;
    QLabel* versionValue_ = nullptr;
    QPoint dragOffset_;
    bool dragging_ = false;
};

}  // namespace tarvik
