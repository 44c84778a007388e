#pragma once
// Incidents in the viewer: the in and out points (keys I and O, two tool-bar
// buttons), the "Incident" menu, the commands of the clip list's and trips
// view's context menus, and the export from the dialog to the progress
// window. The main window creates one and hands it the slider, the tool bar
// and where playback is.

#include <QObject>
#include <QPointer>
#include <functional>
#include <string>
#include <vector>

#include "core/library/incident/incident_span.h"
#include "ui/library/incident/incident_marks.h"

class QMenu;
class QMenuBar;
class QSlider;
class QToolButton;
class QWidget;

namespace tarvik {

class IncidentExportDialog;
class IncidentExportProgress;
class IncidentStillSaver;

class IncidentFeatures : public QObject {
    Q_OBJECT
public:
    using CardRoot = std::function<std::string()>;

    IncidentFeatures(QSlider* slider, QWidget* toolbar, QWidget* window, IncidentMarks::PlayingSource playing,
                     CardRoot cardRoot, QObject* parent = nullptr);

    // Where playback is, from the playing clip's path and the slider.
    static IncidentMarks::Playing playingAt(const std::string& clip, double seconds, double length);

    IncidentMarks& marks() { return *marks_; }
    QToolButton* markInButton() const { return markIn_; }
    QToolButton* markOutButton() const { return markOut_; }
    // The dialog or progress window on show, if any.
    IncidentExportDialog* dialog() const;
    IncidentExportProgress* progress() const;

    QMenu* addMenuTo(QMenuBar* bar);
    // The context menu's command: the trip under the pointer whole, or else
    // the selected clips of the list.
    void addCommands(QMenu& menu, const Trip* trip, const std::vector<std::string>& selectedClips);

    // The marked span, or the playing clip whole; false (with an alert) when
    // there is neither.
    bool exportIncident();
    bool exportSpan(const IncidentSpan& span);
    // The playing moment of both cameras as a PNG, asked where.
    bool saveStill();
    IncidentStillSaver& stillSaver() { return *still_; }

private:
    void alert(const QString& text);
    void startExport(const IncidentSpan& span);
    void applyTexts();
    void updateButtons();

    QWidget* window_;
    CardRoot cardRoot_;
    IncidentMarks* marks_;
    QToolButton* markIn_;
    QToolButton* markOut_;
    IncidentStillSaver* still_;
    QPointer<IncidentExportDialog> dialog_;
    QPointer<IncidentExportProgress> progress_;
    std::string markedRoot_;
};

}  // namespace tarvik
