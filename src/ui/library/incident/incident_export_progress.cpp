#include "ui/library/incident/incident_export_progress.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>
#include <cmath>

#include "ui/l10n/orvo_languages.h"

namespace tarvik {

namespace {

// The exporter's steps in the viewer's language.
QString stepText(const QString& step) {
    if (step.startsWith("copying ")) return tr_k("Copying %1").arg(step.mid(8));
    if (step.startsWith("encoding")) return tr_k("Making incident.mp4");
    if (step.startsWith("drawing")) return tr_k("Drawing still.png");
    if (step.startsWith("writing")) return tr_k("Writing the route and samples");
    if (step == "done") return tr_k("Done");
    return step;
}

QString failureText(const QString& why) {
    if (why == "cancelled") return tr_k("The export was cancelled. Nothing of it was kept.");
    if (why == "the destination is full") return tr_k("The destination is full. Nothing of the export was kept.");
    return tr_k("The incident could not be exported: %1").arg(why);
}

}  // namespace

IncidentExportProgress::IncidentExportProgress(IncidentSpan span, IncidentExport to, QWidget* parent)
    : QDialog(parent),
      span_(std::move(span)),
      to_(std::move(to)),
      step_(new QLabel(this)),
      bar_(new QProgressBar(this)),
      estimate_(new QLabel(this)),
      cancel_(new QPushButton(tr_k("Cancel"), this)),
      cancelled_(std::make_shared<std::atomic<bool>>(false)) {
    setObjectName("incidentExportProgress");
    setWindowTitle(tr_k("Export incident"));
    step_->setObjectName("incidentStep");
    step_->setWordWrap(true);
    estimate_->setObjectName("incidentEstimate");
    cancel_->setObjectName("incidentCancel");
    bar_->setRange(0, 1000);
    bar_->setTextVisible(false);
    auto* open = new QPushButton(tr_k("Open folder"), this);
    open->setObjectName("incidentOpenFolder");
    open->hide();
    connect(open, &QPushButton::clicked, this, [this] {
        QDesktopServices::openUrl(QUrl::fromLocalFile(QFile::decodeName(to_.folder.c_str())));
    });
    connect(this, &IncidentExportProgress::finished, open, [open](bool ok) { open->setVisible(ok); });
    connect(cancel_, &QPushButton::clicked, this, &IncidentExportProgress::reject);
    auto* row = new QHBoxLayout;
    row->addWidget(estimate_, 1);
    row->addWidget(open);
    row->addWidget(cancel_);
    auto* column = new QVBoxLayout(this);
    column->addWidget(step_);
    column->addWidget(bar_);
    column->addLayout(row);
    setMinimumWidth(480);
}

IncidentExportProgress::~IncidentExportProgress() {
    cancelled_->store(true);
    if (worker_.joinable()) worker_.join();
}

void IncidentExportProgress::start() {
    if (running_ || worker_.joinable()) return;
    running_ = true;
    clock_.start();
    step_->setText(tr_k("Preparing"));
    QPointer<IncidentExportProgress> self(this);
    auto cancelled = cancelled_;
    worker_ = std::thread([self, cancelled, span = span_, to = to_]() {
        std::string why;
        const bool ok = IncidentExporter::write(span, to, [&](const std::string& step, double done) {
            const QString text = QString::fromStdString(step);
            // Queued: the window is only touched on its own thread, and it
            // waits for this thread before it goes.
            QMetaObject::invokeMethod(self.data(), [self, text, done] {
                if (self) self->progressed(text, done);
            }, Qt::QueuedConnection);
            return !cancelled->load();
        }, &why);
        QMetaObject::invokeMethod(self.data(), [self, ok, why = QString::fromStdString(why)] {
            if (self) self->ended(ok, why);
        }, Qt::QueuedConnection);
    });
}

void IncidentExportProgress::progressed(const QString& step, double done) {
    if (!running_ || cancelled_->load()) return;
    step_->setText(stepText(step));
    if (done < 0) return;
    bar_->setValue(int(done * 1000));
    // Encoding is most of the work and runs at an even pace: the estimate is
    // taken from it once it has gone some way, timed from when its output
    // starts to grow (the encoder holds a few frames back first).
    static constexpr double kEncodingFrom = 0.1, kEncodingUntil = 0.95;
    const double elapsed = clock_.elapsed() / 1000.0;
    if (done <= kEncodingFrom) {
        encodingSince_ = elapsed;
        return;
    }
    if (done >= kEncodingUntil) return estimate_->clear();
    if (done < kEncodingFrom + 0.02 || elapsed - encodingSince_ < 1.0) return;
    const double rate = (done - kEncodingFrom) / (elapsed - encodingSince_);
    estimate_->setText(remainingText((kEncodingUntil - done) / rate));
}

QString IncidentExportProgress::remainingText(double seconds) {
    const int s = std::max(1, int(std::ceil(seconds)));
    if (s < 60) return tr_k("About %1 s left").arg(s);
    return tr_k("About %1 min %2 s left").arg(s / 60).arg(s % 60);
}

void IncidentExportProgress::ended(bool ok, const QString& why) {
    if (worker_.joinable()) worker_.join();
    running_ = false;
    succeeded_ = ok;
    failure_ = ok ? QString() : failureText(why);
    if (ok) {
        bar_->setValue(1000);
        step_->setText(tr_k("The incident is in %1").arg(QDir::toNativeSeparators(QFile::decodeName(to_.folder.c_str()))));
    } else {
        step_->setText(failure_);
        step_->setStyleSheet("color: #d03030;");
    }
    estimate_->clear();
    cancel_->setEnabled(true);
    cancel_->setText(tr_k("Close"));
    emit finished(ok);
}

void IncidentExportProgress::reject() {
    if (!running_) return QDialog::reject();
    // The worker stops at its next report; the window stays to say so.
    cancelled_->store(true);
    cancel_->setEnabled(false);
    step_->setText(tr_k("Cancelling..."));
}

}  // namespace tarvik
