#pragma once
// The settings pane of the M420 camera family: four tabs of controls over the
// shared setting record. Nothing reaches the card before OK, which writes
// setup.cfg and then the clock file; cancel and Escape write nothing. The
// touch-calibration marker is the one file written at once, on confirmation.

#include <QString>
#include <array>
#include <functional>

#include "core/settings/m420/m420_pane_mapping.h"
#include "core/settings/m420/setting_time_file.h"
#include "ui/base/pane/orvo_view_controller.h"

class QCheckBox;
class QDateTimeEdit;
class QLabel;
class QPushButton;
class QScrollArea;

namespace tarvik {

class M420ControlWidget;
class MemoryPartitionGraph;

class M420SettingViewController : public OrvoViewController {
    Q_OBJECT
public:
    enum Tab { CommonTab, AlwaysTab, ParkingTab, EtcTab };
    // Two-button alerts answer with these codes.
    static constexpr int kAlertNo = 1000;
    static constexpr int kAlertYes = 1001;
    // Shows a two-button alert (no, yes) and returns the code; replaceable for tests.
    using AlertResponder = std::function<int(const QString& titleKey, const QString& messageKey)>;

    explicit M420SettingViewController(QObject* parent = nullptr);
    ~M420SettingViewController() override;

    void setAlertResponder(AlertResponder responder) { alert_ = std::move(responder); }

    // Builds the pane from the shared manager's model and record.
    void loadView();
    void applyModelFeatures();
    void applySettingData();
    void applySettingTime();
    // Controls into the record, record to the card; false when the write failed.
    bool saveData();
    void saveSettingTime();
    void refreshMemoryPartitionGraph();

    void applyLanguageSettings() override;
    void cancelButtonTouched() override;
    void keyDown(QKeyEvent* event) override;

    // For tests and screenshots.
    M420ControlWidget* control(m420pane::Control c) const { return controls_[static_cast<std::size_t>(c)]; }
    const m420pane::PaneFeatures& features() const { return features_; }
    const m420pane::PaneState& state() const { return state_; }
    QCheckBox* timeCheckBox() const { return timeCheckBox_; }
    QDateTimeEdit* datePicker() const { return datePicker_; }
    MemoryPartitionGraph* partitionGraph() const { return graph_; }
    int currentTab() const { return currentTab_; }
    QPushButton* okButton() const { return okButton_; }

public slots:
    void okButtonTouched();
    void resetButtonTouched();
    void tabButtonTouched(int tab);
    void memoryCardFormatButtonTouched();
    void initializeTouchButtonTouched();

signals:
    // The format button; the opener runs the formatting flow.
    void formatRequested();

private:
    void buildControls();
    QWidget* buildPage(Tab tab);
    void controlChanged(m420pane::Control c, int position);
    void parkingModeChanged(int position);
    void enableParkingControls(int parkingModePosition);
    void relabelSpeedPresets();
    int ask(const char* titleKey, const char* messageKey);

    m420pane::PaneFeatures features_;
    m420pane::PaneState state_;
    std::array<M420ControlWidget*, m420pane::kControlCount> controls_{};
    std::array<QLabel*, m420pane::kControlCount> captions_{};
    std::array<QWidget*, 4> pages_{};
    std::array<QPushButton*, 4> tabButtons_{};
    QScrollArea* scrollView_ = nullptr;
    QCheckBox* timeCheckBox_ = nullptr;
    QDateTimeEdit* datePicker_ = nullptr;
    QWidget* clockRow_ = nullptr;
    MemoryPartitionGraph* graph_ = nullptr;
    QPushButton* formatButton_ = nullptr;
    QPushButton* touchButton_ = nullptr;
    QPushButton* resetButton_ = nullptr;
    QPushButton* okButton_ = nullptr;
    QPushButton* cancelButton_ = nullptr;
    QLabel* modelLabel_ = nullptr;
    int currentTab_ = CommonTab;
    int clockOffsetMinutes_ = 0;
    bool hadSettingFolder_ = false;  // the card had SETTING/ when the pane opened  // the zone the clock file was written in
    AlertResponder alert_;
};

}  // namespace tarvik
