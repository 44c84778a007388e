#include "ui/library/trips/route_export_controller.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>
#include <QRegularExpression>
#include <algorithm>
#include <map>

#include "core/library/trips/trip_builder.h"
#include "core/library/trips/clip_container.h"
#include "core/library/trips/trip_route.h"
#include "core/util/atomic_file.h"
#include "ui/l10n/orvo_languages.h"

namespace tarvik {

namespace {

const char* const kFilters = "GPX 1.1 (*.gpx);;KML (*.kml);;GeoJSON (*.geojson *.json);;CSV (*.csv)";

}  // namespace

RouteExportController::RouteExportController(QWidget* dialogParent, QObject* parent)
    : QObject(parent), dialogParent_(dialogParent) {
    choose_ = [](QWidget* p, const QString& suggested, const QString& filters, QString* filter) {
        return QFileDialog::getSaveFileName(p, tr_k("Export route"), suggested, filters, filter);
    };
}

Trip RouteExportController::tripOfClips(const std::vector<std::string>& clips) {
    Trip trip;
    trip.clips = TripBuilder::pairUp(clips);
    std::stable_sort(trip.clips.begin(), trip.clips.end(),
                     [](const TripClip& a, const TripClip& b) { return a.start < b.start; });
    for (TripClip& c : trip.clips) c.seconds = inspectClipContainer(c.path).seconds;
    if (!trip.clips.empty()) {
        trip.start = trip.clips.front().start;
        trip.end = trip.clips.back().start + static_cast<std::int64_t>(trip.clips.back().seconds + 0.5);
    }
    return trip;
}

std::string RouteExportController::formatFor(const QString& file, const QString& filter) {
    if (filter.startsWith("GPX")) return "gpx";
    if (filter.startsWith("KML")) return "kml";
    if (filter.startsWith("GeoJSON")) return "geojson";
    if (filter.startsWith("CSV")) return "csv";
    const QString ext = QFileInfo(file).suffix().toLower();
    if (ext == "kml") return "kml";
    if (ext == "geojson" || ext == "json") return "geojson";
    if (ext == "csv") return "csv";
    return "gpx";
}

bool RouteExportController::writeTrip(const Trip& trip, const QString& file, const std::string& format,
                                      const QString& name) {
    const TripRoute route = readTripRoute(trip, format == "csv");
    const std::string text = exportTripRoute(route, format, name.toStdString());
    return !text.empty() && writeFileAtomically(QFile::encodeName(file).toStdString(), text);
}

bool RouteExportController::exportTrip(const Trip& trip, const QString& name) {
    if (trip.clips.empty()) return false;
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    QString safe = name;
    safe.replace(QRegularExpression("[^0-9A-Za-z_-]+"), "_");
    QString filter = "GPX 1.1 (*.gpx)";
    QString file = choose_(dialogParent_, QDir(documents).filePath(safe + ".gpx"), kFilters, &filter);
    if (file.isEmpty()) return false;
    const std::string format = formatFor(file, filter);
    static const std::map<std::string, QString> kExt = {
        {"gpx", "gpx"}, {"kml", "kml"}, {"geojson", "geojson"}, {"csv", "csv"}};
    if (QFileInfo(file).suffix().isEmpty()) file += "." + kExt.at(format);
    if (!writeTrip(trip, file, format, name)) {
        emit failed(file);
        return false;
    }
    emit exported(file);
    return true;
}

}  // namespace tarvik
