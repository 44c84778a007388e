#include "ui/device/picker_pane.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/l10n/orvo_languages.h"

namespace tarvik {

PickerPane::PickerPane(const char* titleKey, QObject* parent)
    : OrvoViewController(nullptr, parent),
      titleKey_(titleKey),
      titleLabel_(new QLabel(view())),
      comboBox_(new QComboBox(view())),
      okButton_(new QPushButton(view())),
      cancelButton_(new QPushButton(view())) {
    QWidget* v = view();
    v->setObjectName("pickerPane");
    v->setStyleSheet("#pickerPane { background: #2b2f36; } QLabel { color: white; }"
                     "QPushButton { color: white; background: #4a5260; border: 1px solid #6b7588;"
                     " border-radius: 4px; padding: 4px 18px; } QPushButton:disabled { color: #888; }");
    titleLabel_->setWordWrap(true);
    titleLabel_->setAlignment(Qt::AlignCenter);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(okButton_);
    buttons->addWidget(cancelButton_);
    auto* layout = new QVBoxLayout(v);
    layout->setContentsMargins(20, 16, 20, 16);
    layout->addWidget(titleLabel_);
    layout->addWidget(comboBox_);
    layout->addLayout(buttons);
    okButton_->setDefault(true);
    v->resize(420, 170);
    connect(okButton_, &QPushButton::clicked, this, &PickerPane::okButtonTouched);
    connect(cancelButton_, &QPushButton::clicked, this, &PickerPane::cancelButtonTouched);
    applyLanguageSettings();
}

void PickerPane::applyLanguageSettings() {
    titleLabel_->setText(tr_k(titleKey_));
    okButton_->setText("OK");
    cancelButton_->setText(tr_k("취소"));
}

void PickerPane::okButtonTouched() {
    if (okButton_->isEnabled()) stopModalWithCode(1);
}

void PickerPane::cancelButtonTouched() { stopModalWithCode(0); }

void PickerPane::keyDown(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) okButtonTouched();
    else if (event->key() == Qt::Key_Escape) cancelButtonTouched();
}

}  // namespace tarvik
