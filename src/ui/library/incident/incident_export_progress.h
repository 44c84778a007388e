#pragma once
// An incident export under way: ffmpeg and the copies run off the interface
// thread, this window shows what is being done, how far it is and how long
// it should still take, and offers Cancel. At the end it says where the
// incident is, or why there is none.

#include <QDialog>
#include <QElapsedTimer>
#include <atomic>
#include <memory>
#include <thread>

#include "core/library/incident/incident_exporter.h"

class QLabel;
class QProgressBar;
class QPushButton;

namespace tarvik {

class IncidentExportProgress : public QDialog {
    Q_OBJECT
public:
    IncidentExportProgress(IncidentSpan span, IncidentExport to, QWidget* parent = nullptr);
    // Cancels an export still running and waits for it to end.
    ~IncidentExportProgress() override;

    void start();
    bool isRunning() const { return running_; }
    bool succeeded() const { return succeeded_; }
    const QString& failure() const { return failure_; }
    QPushButton* cancelButton() const { return cancel_; }
    QProgressBar* bar() const { return bar_; }
    QLabel* stepLabel() const { return step_; }
    QLabel* estimateLabel() const { return estimate_; }

    // "About 1 min 20 s left" for so many seconds.
    static QString remainingText(double seconds);

signals:
    void finished(bool ok);

protected:
    void reject() override;

private:
    void progressed(const QString& step, double done);
    void ended(bool ok, const QString& why);

    IncidentSpan span_;
    IncidentExport to_;
    QLabel* step_;
    QProgressBar* bar_;
    QLabel* estimate_;
    QPushButton* cancel_;
    std::shared_ptr<std::atomic<bool>> cancelled_;
    std::thread worker_;
    QElapsedTimer clock_;
    double encodingSince_ = 0;  // seconds after the start
    bool running_ = false;
    bool succeeded_ = false;
    QString failure_;
};

}  // namespace tarvik
