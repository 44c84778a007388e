#pragma once
// What the viewer adds on top of single clips: event markers on the seek
// slider, the route export, the card report, and the trip of the clip that
// plays, drawn whole on the map with the part already driven set apart.
// The main window creates one and otherwise leaves it alone.

#include <QObject>
#include <QPointer>
#include <functional>
#include <string>
#include <vector>

#include "core/library/trips/trip.h"
#include "core/telemetry/route_exporter.h"

class QMenu;
class QMenuBar;
class QWidget;
class QTableView;

namespace tarvik {

class CardReportWindow;
class ClipCatalogue;
class EventMarkerController;
class PlaybackController;
class RouteExportController;
class TripListView;

class TripFeatures : public QObject {
    Q_OBJECT
public:
    TripFeatures(QTableView* clipList, ClipCatalogue& catalogue, PlaybackController& playback, QWidget* window,
                 QObject* parent = nullptr);
    ~TripFeatures() override;

    EventMarkerController& events() { return *events_; }
    RouteExportController& routeExport() { return *export_; }

    // The trip the clip belongs to (a trip of its own when it stands alone).
    Trip tripOf(const std::string& clip);
    const Trip& currentTrip() const { return trip_; }
    const std::vector<RoutePoint>& currentTripRoute() const { return route_; }
    // Points of the current trip already driven at the playing time.
    int drivenPoints() const { return driven_; }

    // The paths of the selected rows of the clip list.
    std::vector<std::string> selectedClips() const;
    bool exportSelection();
    bool exportTripOfSelection();
    // The whole trip of the clip that plays.
    bool exportPlayingTrip();
    // A "Trips" menu on the window's menu bar with the same commands as the
    // clip list's context menu, for those who never right-click.
    QMenu* addMenuTo(QMenuBar* bar);
    CardReportWindow* showCardReport();
    // Trips in place of the clips in the list, or the clips again.
    void showTripList(bool on);
    TripListView* tripList() const { return tripList_; }
    // More commands for the context menus of the clip list (trip null) and
    // the trips view (the trip under the pointer, if any).
    void setExtraCommands(std::function<void(QMenu&, const Trip* trip)> add) { extraCommands_ = std::move(add); }
    // Plays the trip's first clip (when the list's filter shows it).
    bool playTrip(const Trip& trip);

private:
    void clipPrepared();
    void playingTimeChanged(int milliseconds);
    void showTripRoute(std::vector<RoutePoint> points);
    void showContextMenu(const QPoint& at);
    void addCommands(QMenu& menu);

    QTableView* clipList_;
    ClipCatalogue& catalogue_;
    PlaybackController& playback_;
    QWidget* window_;
    EventMarkerController* events_;
    RouteExportController* export_;
    QPointer<CardReportWindow> report_;
    TripListView* tripList_;
    std::string tripsRoot_;
    std::vector<Trip> trips_;
    Trip trip_;
    std::vector<RoutePoint> route_;
    std::string shownClip_;
    double shownLength_ = -1;
    double clipOffset_ = 0;
    int driven_ = -1;
    int routeGeneration_ = 0;
    std::function<void(QMenu&, const Trip*)> extraCommands_;
};

}  // namespace tarvik
