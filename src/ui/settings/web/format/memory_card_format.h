#pragma once
// Erasing the memory card from a settings window: check the volume, ask,
// erase it off the interface thread behind a progress alert, and report the
// outcome in that alert.
//
// One instance per settings window. The alerts are sheets on that window.

#include <QMessageBox>
#include <QObject>
#include <QProgressBar>
#include <QPointer>
#include <QString>

#include <functional>
#include <memory>

#include "core/device/format_target.h"
#include "ui/settings/web/format/card_formatter.h"

class QThread;
class QWidget;

namespace tarvik {

class MemoryCardFormat : public QObject {
    Q_OBJECT
public:
    using EnvironmentSource = std::function<FormatEnvironment()>;

    // `environment` supplies the mount table, sysfs rule and home folder at
    // each check; tests hand in their own.
    explicit MemoryCardFormat(std::shared_ptr<CardFormatter> formatter, QObject* parent = nullptr,
                              EnvironmentSource environment = &FormatEnvironment::current);
    ~MemoryCardFormat() override;

    // What the format button and the web page's askFormat do. `volumePath` is
    // the card's root folder as the settings window knows it. Ignored while a
    // confirmation or formatting alert of this instance is shown.
    void formatMemoryCard(QWidget* window, const QString& volumePath);

    // A result-style alert with `text` and an enabled "OK" button.
    void showFormatAlertWithInformativeText(const QString& text);
    // The question before erasing; "예" starts eraseVolumeTask.
    void showMemoryCardFormatAlert();
    // The progress alert and the formatter on a worker thread.
    void eraseVolumeTask();

    bool isFormatting() const { return worker_ != nullptr; }
    QMessageBox* memoryCardFormatAlert() const { return memoryCardFormatAlert_; }
    QMessageBox* formattingAlert() const { return formattingAlert_; }
    QProgressBar* progressIndic() const { return progressIndic_; }

signals:
    // Emitted after "예", before the formatter starts: the viewer must let go
    // of the card now (stop playback, close every file on it). Connect with a
    // direct connection so that it is done when the emit returns.
    void releaseCardRequested();
    // The formatter has ended, whatever its outcome; the alert now shows the
    // result and its OK button is enabled. The clip list should be refreshed.
    void formatFinished(bool succeeded);

private:
    QMessageBox* newAlert(const QString& informativeText, bool progress = false);
    void finishFormatting(bool succeeded);

    std::shared_ptr<CardFormatter> formatter_;
    EnvironmentSource environment_;
    QPointer<QWidget> window_;
    CardVolume volume_;
    QPointer<QMessageBox> memoryCardFormatAlert_;
    QPointer<QMessageBox> formattingAlert_;
    QPointer<QProgressBar> progressIndic_;
    QThread* worker_ = nullptr;
};

}  // namespace tarvik
