#include "ui/settings/web/format/memory_card_format.h"

#include <QAbstractButton>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QThread>
#include <QTimer>

#include "ui/l10n/orvo_languages.h"

#include <algorithm>

namespace tarvik {

namespace {

const char* kTitleKey = "메모리 카드 포멧";
const char* kCannotFormatKey = "메모리 카드를 포멧할 수 없습니다.";
const char* kQuestionKey =
    "주의 : 포맷 시 메모리 카드의 모든 데이터가 삭제됩니다. \r\n포맷하려면 (예)를, 취소하려면 (아니오)를 선택 하십시오.";
const char* kInProgressKey = "포맷 중 입니다.\r\n잠시만 기다려 주십시오.";
const char* kDoneKey = "메모리 카드 포맷이 완료 되었습니다.";
const char* kFailedKey =
    "메모리 카드를 포멧할 수 없습니다.\r\n\r\nTARVIK VIEWR에서 동영상을 재생 중이거나 GPS 데이터를 수집중인 경우\r\n"
    "TARVIK VIEWER를 종료하고 다시 포맷하십시오.\r\n메모리카드를 사용하고 있는 디스크 유틸리티나 다른 프로그램을 종료하고\r\n"
    "메모리카드의 내용을 표시하고 있는 창이 없는지 확인한 다음 다시 포맷하십시오.";

// The card's name as the user sees it: its label, or else the folder it is
// mounted on (desktops name that folder after the label or the UUID).
QString volumeName(const CardVolume& v) {
    return v.label.isEmpty() ? QFileInfo(QDir::cleanPath(v.mountPoint)).fileName() : v.label;
}

// The viewer's own reasons for not formatting what it was given.
QString refusalReason(FormatRefusal refusal) {
    switch (refusal) {
    case FormatRefusal::None: return {};
    case FormatRefusal::NotMountRoot: return tr_k("This folder is not where a card is mounted.");
    case FormatRefusal::SystemVolume: return tr_k("This volume holds the system or your home folder.");
    case FormatRefusal::NotRemovable: return tr_k("The card's drive is not removable.");
    case FormatRefusal::UnusableName: return tr_k("The card has no name of its own.");
    }
    return {};
}

// The camera's own text first, then why, when anyone can tell.
QString withReason(const QString& text, const QString& reason) {
    return reason.isEmpty() ? text : text + QStringLiteral("\n\n") + reason;
}

// The progress alert cannot be dismissed while its button is disabled: not by
// Escape, not by the window's close button.
class ProgressAlert : public QMessageBox {
public:
    using QMessageBox::QMessageBox;

protected:
    bool closable() const {
        const auto all = buttons();
        return std::any_of(all.begin(), all.end(), [](QAbstractButton* b) { return b->isEnabled(); });
    }
    void keyPressEvent(QKeyEvent* e) override {
        if (e->key() == Qt::Key_Escape && !closable()) return e->accept();
        QMessageBox::keyPressEvent(e);
    }
    void closeEvent(QCloseEvent* e) override {
        if (!closable()) return e->ignore();
        QMessageBox::closeEvent(e);
    }
};

}  // namespace

MemoryCardFormat::MemoryCardFormat(std::shared_ptr<CardFormatter> formatter, QObject* parent,
                                   EnvironmentSource environment)
    : QObject(parent), formatter_(std::move(formatter)), environment_(std::move(environment)) {}

MemoryCardFormat::~MemoryCardFormat() {
    // An erase cannot be called off halfway; let it end before the formatter goes.
    if (worker_) {
        worker_->disconnect(this);
        worker_->wait();
        delete worker_;
    }
}

void MemoryCardFormat::formatMemoryCard(QWidget* window, const QString& volumePath) {
    if (memoryCardFormatAlert_ || formattingAlert_ || worker_) return;
    window_ = window;
    volume_ = {};
    const FormatTargetCheck check = checkFormatTarget(volumePath.toStdString(), environment_());
    std::optional<CardVolume> volume;
    if (check.refusal == FormatRefusal::None && formatter_) volume = formatter_->inspect(check.volume);
    QString reason = refusalReason(check.refusal);
    if (reason.isEmpty() && !volume) reason = formatter_ ? formatter_->failureReason() : QString();
    if (reason.isEmpty() && !isUsableVolumeName(volumeName(*volume).toStdString()))
        reason = refusalReason(FormatRefusal::UnusableName);
    if (!volume || !reason.isEmpty()) {
        showFormatAlertWithInformativeText(withReason(tr_k(kCannotFormatKey), reason));
        return;
    }
    volume_ = *volume;
    showMemoryCardFormatAlert();
}

QMessageBox* MemoryCardFormat::newAlert(const QString& informativeText, bool progress) {
    QMessageBox* box = progress ? new ProgressAlert(window_) : new QMessageBox(window_);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowModality(window_ ? Qt::WindowModal : Qt::ApplicationModal);
    box->setIcon(QMessageBox::Information);
    box->setWindowTitle(tr_k(kTitleKey));
    box->setText(tr_k(kTitleKey));
    box->setInformativeText(informativeText);
    return box;
}

void MemoryCardFormat::showFormatAlertWithInformativeText(const QString& text) {
    QMessageBox* box = newAlert(text);
    box->addButton(QStringLiteral("OK"), QMessageBox::AcceptRole);
    formattingAlert_ = box;
    box->open();
}

void MemoryCardFormat::showMemoryCardFormatAlert() {
    QMessageBox* box = newAlert(tr_k(kQuestionKey));
    // One role for both keeps "아니오" first, as the question reads.
    QPushButton* no = box->addButton(tr_k("아니오"), QMessageBox::ActionRole);
    QPushButton* yes = box->addButton(tr_k("예"), QMessageBox::ActionRole);
    box->setDefaultButton(no);
    box->setEscapeButton(no);
    memoryCardFormatAlert_ = box;
    connect(box, &QMessageBox::buttonClicked, this, [this, yes](QAbstractButton* b) {
        memoryCardFormatAlert_ = nullptr;
        if (b != yes) return;
        // After the question has gone, as a sheet ends before the next begins.
        QTimer::singleShot(0, this, [this] {
            emit releaseCardRequested();
            eraseVolumeTask();
        });
    });
    box->open();
}

void MemoryCardFormat::eraseVolumeTask() {
    if (worker_) return;
    QMessageBox* box = newAlert(tr_k(kInProgressKey), true);
    QPushButton* ok = box->addButton(QStringLiteral("OK"), QMessageBox::AcceptRole);
    ok->setEnabled(false);
    auto* bar = new QProgressBar(box);
    bar->setRange(0, 0);  // busy: the formatter reports no progress
    bar->setTextVisible(false);
    bar->setFixedSize(400, 20);
    // The bar goes between the texts and the buttons.
    if (auto* grid = qobject_cast<QGridLayout*>(box->layout())) {
        auto* buttons = box->findChild<QDialogButtonBox*>();
        if (buttons) grid->removeWidget(buttons);
        const int row = grid->rowCount();
        grid->addWidget(bar, row, 0, 1, grid->columnCount(), Qt::AlignHCenter);
        if (buttons) grid->addWidget(buttons, row + 1, 0, 1, grid->columnCount());
    }
    formattingAlert_ = box;
    progressIndic_ = bar;
    box->open();

    auto succeeded = std::make_shared<bool>(false);
    worker_ = QThread::create([formatter = formatter_, volume = volume_, succeeded] {
        try {
            *succeeded = formatter && formatter->format(volume);
        } catch (...) {
            *succeeded = false;
        }
    });
    connect(worker_, &QThread::finished, this, [this, succeeded] { finishFormatting(*succeeded); });
    worker_->start();
}

void MemoryCardFormat::finishFormatting(bool succeeded) {
    worker_->wait();
    delete worker_;
    worker_ = nullptr;
    // The text first, then the indicator and the button, so that the user can
    // never close the alert before it tells how things went.
    if (formattingAlert_)
        formattingAlert_->setInformativeText(succeeded ? tr_k(kDoneKey)
                                                       : withReason(tr_k(kFailedKey), formatter_ ? formatter_->failureReason() : QString()));
    if (progressIndic_) {
        progressIndic_->setRange(0, 1);
        progressIndic_->setValue(succeeded ? 1 : 0);
        progressIndic_->hide();
    }
    if (formattingAlert_)
        for (QAbstractButton* b : formattingAlert_->buttons()) b->setEnabled(true);
    emit formatFinished(succeeded);
}

}  // namespace tarvik
