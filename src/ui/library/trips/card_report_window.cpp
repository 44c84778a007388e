#include "ui/library/trips/card_report_window.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "ui/l10n/orvo_languages.h"
#include "ui/library/playback/card_reads.h"

namespace tarvik {

QString findingKindText(const std::string& kind) {
    if (kind == "unplayable") return tr_k("Cannot be played");
    if (kind == "front-without-rear") return tr_k("Front without rear");
    if (kind == "rear-without-front") return tr_k("Rear without front");
    if (kind == "no-telemetry") return tr_k("No driving data");
    if (kind == "gap") return tr_k("Gap in the recording");
    if (kind == "settings") return tr_k("Settings files");
    if (kind == "free-space") return tr_k("Free space");
    if (kind == "missing") return tr_k("Folder not found");
    return QString::fromStdString(kind);
}

CardReportWindow::CardReportWindow(QWidget* parent) : QDialog(parent) {
    setObjectName("cardReportWindow");
    setWindowTitle(tr_k("Card report"));
    resize(820, 460);
    auto* layout = new QVBoxLayout(this);
    title_ = new QLabel(this);
    title_->setStyleSheet("font-size: 17px; font-weight: 600;");
    summary_ = new QLabel(this);
    summary_->setWordWrap(true);
    verdict_ = new QLabel(this);
    list_ = new QTreeWidget(this);
    list_->setColumnCount(3);
    list_->setHeaderLabels({tr_k("Finding"), tr_k("File"), tr_k("Detail")});
    list_->setRootIsDecorated(false);
    list_->setAlternatingRowColors(true);
    list_->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    list_->header()->setSectionResizeMode(1, QHeaderView::Stretch);
    list_->header()->setSectionResizeMode(2, QHeaderView::ResizeToContents);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(title_);
    layout->addWidget(summary_);
    layout->addWidget(verdict_);
    layout->addWidget(list_, 1);
    layout->addWidget(buttons);
}

void CardReportWindow::checkCard(const QString& root) {
    checking_ = true;
    const int generation = ++generation_;
    title_->setText(QFileInfo(root).absoluteFilePath());
    summary_->setText(tr_k("Checking every clip on the card..."));
    verdict_->clear();
    list_->clear();
    QPointer<CardReportWindow> self(this);
    const std::string path = QFile::encodeName(root).toStdString();
    cardReads().start([self, path, generation] {
        CardReport report = tarvik::checkCard(path);
        QMetaObject::invokeMethod(qApp, [self, report = std::move(report), generation] {
            // A newer check, or a closed window, wins over this one.
            if (self && self->generation_ == generation) self->showReport(report);
        });
    });
}

void CardReportWindow::showReport(const CardReport& r) {
    checking_ = false;
    title_->setText(QString::fromStdString(r.root));
    const SettingsState& s = r.settings;
    QString settings = !s.present ? tr_k("no settings files")
                       : !s.readable ? tr_k("settings file unreadable")
                       : tr_k("settings readable") + (s.modelName.empty() ? QString() : ", " + QString::fromStdString(s.modelName));
    if (s.length >= 0) settings += tr_k(", %1 bytes").arg(s.length);
    summary_->setText(r.folderFound ? tr_k("%1 in %2  ·  %3 of %4 GiB free  ·  %5")
                                          .arg(tr_k("%n clips", r.clipCount), tr_k("%n trips", r.tripCount))
                                          .arg(double(r.freeBytes) / (1 << 30), 0, 'f', 1)
                                          .arg(double(r.totalBytes) / (1 << 30), 0, 'f', 1)
                                          .arg(settings)
                                    : tr_k("This folder does not exist."));
    // Notes (a gap, a clip without GPS) are worth reading but are no fault.
    const int attention = r.count(FindingSeverity::Attention), notes = r.count(FindingSeverity::Note);
    verdict_->setText(attention ? tr_k("%n things need attention", attention)
                      : notes   ? tr_k("Nothing needs attention") + "  ·  " + tr_k("%n notes", notes)
                                : tr_k("All is well"));
    verdict_->setStyleSheet(attention ? "color: #eb4034; font-weight: 600;" : "color: #3fae5a; font-weight: 600;");
    list_->clear();
    for (const CardFinding& f : r.findings) {
        auto* item = new QTreeWidgetItem(list_);
        const bool warn = f.severity == FindingSeverity::Attention;
        item->setText(0, (warn ? QStringLiteral("\u26a0 ") : QStringLiteral("\u2022 ")) + findingKindText(f.kind));
        QString file = QString::fromStdString(f.path);
        if (file.startsWith(QString::fromStdString(r.root))) file = file.mid(int(r.root.size())).remove(0, 1);
        item->setText(1, file);
        item->setToolTip(1, QString::fromStdString(f.path));
        item->setText(2, QString::fromStdString(f.detail));
        if (warn) item->setForeground(0, QColor(235, 64, 52));
    }
    emit reportShown();
}

}  // namespace tarvik
