#pragma once
// Saves the route of the selected clips, or of the whole trip of the selected
// clip, through a save dialog, in one of the formats `tarvik telemetry` writes.

#include <QObject>
#include <QString>
#include <functional>
#include <string>
#include <vector>

#include "core/library/trips/trip.h"

class QWidget;

namespace tarvik {

class RouteExportController : public QObject {
    Q_OBJECT
public:
    // Asks where to save: returns the file (empty when cancelled) and sets the
    // chosen filter. The default is QFileDialog; tests put their answer here.
    using FileChooser =
        std::function<QString(QWidget* parent, const QString& suggested, const QString& filters, QString* filter)>;

    explicit RouteExportController(QWidget* dialogParent, QObject* parent = nullptr);
    void setFileChooser(FileChooser chooser) { choose_ = std::move(chooser); }

    // The clips as one stretch in recording order (pairs counted once).
    static Trip tripOfClips(const std::vector<std::string>& clips);
    // The format for the dialog's filter, else for the file's extension: "gpx", "kml", "geojson", "csv".
    static std::string formatFor(const QString& file, const QString& filter);

    // Asks for a file and writes it; false when cancelled or unwritable.
    bool exportTrip(const Trip& trip, const QString& name);
    // Writes without asking.
    static bool writeTrip(const Trip& trip, const QString& file, const std::string& format, const QString& name);

signals:
    void exported(const QString& file);
    void failed(const QString& file);

private:
    QWidget* dialogParent_;
    FileChooser choose_;
};

}  // namespace tarvik
