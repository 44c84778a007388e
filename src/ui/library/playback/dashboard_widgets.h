#pragma once
// The live dashboard put into the main window's placeholders: the G-sensor
// graph, the speedometer, and the map page over the map's cover picture.

class QObject;
class QWebEngineView;
class QWidget;

namespace tarvik {

struct DashboardTargets;
struct PlaybackViews;
class SeekSliderController;
class GravityGraphView;
class MapController;
class SpeedMeterView;

struct DashboardWidgets {
    GravityGraphView* gravityGraphView = nullptr;
    SpeedMeterView* speedMeterView = nullptr;
    QWebEngineView* mapWebView = nullptr;
    MapController* mapController = nullptr;

    // Fills the two hosts (each gets a layout holding its widget).
    static DashboardWidgets install(QWidget* gravityGraphHost, QWidget* speedMeterHost);
    // The map web view over the cover, same frame and parent, hidden until a
    // position is known; its page starts loading at once. Only where a web
    // engine can run: the offscreen platform gets none and keeps the cover.
    void installMap(QWidget* mapCoverView, QObject* owner);
    // What the dashboard writes to: these widgets and the window's labels.
    DashboardTargets targets(const PlaybackViews& views, SeekSliderController* seekSlider) const;
};

}  // namespace tarvik
