#pragma once
// The shape both pickers share: a title, one combo box and OK / cancel.
// Return is OK and Escape is cancel; OK ends the modal run with 1, cancel with 0.

#include <QString>

#include "ui/base/pane/orvo_view_controller.h"

class QComboBox;
class QLabel;
class QPushButton;

namespace tarvik {

class PickerPane : public OrvoViewController {
    Q_OBJECT
public:
    explicit PickerPane(const char* titleKey, QObject* parent = nullptr);

    QLabel* titleLabel() const { return titleLabel_; }
    QComboBox* comboBox() const { return comboBox_; }
    QPushButton* okButton() const { return okButton_; }
    QPushButton* cancelButton() const { return cancelButton_; }

    void applyLanguageSettings() override;
    void cancelButtonTouched() override;
    void keyDown(QKeyEvent* event) override;

public slots:
    void okButtonTouched();

private:
    const char* titleKey_;
    QLabel* titleLabel_;
    QComboBox* comboBox_;
    QPushButton* okButton_;
    QPushButton* cancelButton_;
};

}  // namespace tarvik
