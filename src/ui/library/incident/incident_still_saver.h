#pragma once
// "Save still of both cameras...": the playing moment of the front and rear
// clips, laid out and overlaid as the last incident export was, as a PNG
// outside the card. ffmpeg draws it off the interface thread.

#include <QObject>
#include <functional>

#include "core/library/incident/incident_span.h"

class QWidget;

namespace tarvik {

class PreferenceStore;

class IncidentStillSaver : public QObject {
    Q_OBJECT
public:
    // Asks for the file: parent, suggested path; empty when cancelled.
    using FileChooser = std::function<QString(QWidget* parent, const QString& suggested)>;

    IncidentStillSaver(QWidget* window, PreferenceStore& store, QObject* parent = nullptr);
    void setFileChooser(FileChooser chooser) { chooser_ = std::move(chooser); }

    // The picture at `at` (camera clock) of the span; false when nothing was
    // started (no file chosen, or a file on the card: said in an alert).
    bool save(const IncidentSpan& span, double at);
    bool isSaving() const { return saving_; }

signals:
    // The still is written (ok) or not, with why.
    void saved(bool ok, const QString& path, const QString& why);

private:
    QWidget* window_;
    PreferenceStore& store_;
    FileChooser chooser_;
    bool saving_ = false;
};

}  // namespace tarvik
