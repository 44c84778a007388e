#include "ui/library/playback/dashboard_widgets.h"

#include <QGuiApplication>
#include <QVBoxLayout>
#include <QWebEngineView>

#include "ui/base/graphics/software_pictures.h"
#include "ui/library/playback/dashboard_updater.h"
#include "ui/library/playback/playback_views.h"
#include "ui/telemetry/gravity_graph_view.h"
#include "ui/telemetry/map_controller.h"
#include "ui/telemetry/speed_meter_view.h"

namespace tarvik {

namespace {

template <typename W>
W* fill(QWidget* host) {
    auto* layout = new QVBoxLayout(host);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* w = new W(host);
    layout->addWidget(w);
    return w;
}

}  // namespace

DashboardWidgets DashboardWidgets::install(QWidget* gravityGraphHost, QWidget* speedMeterHost) {
    DashboardWidgets d;
    d.gravityGraphView = fill<GravityGraphView>(gravityGraphHost);
    d.speedMeterView = fill<SpeedMeterView>(speedMeterHost);
    d.speedMeterView->setSpeed(0);
    return d;
}

void DashboardWidgets::installMap(QWidget* mapCoverView, QObject* owner) {
    if (mapWebView || !mapCoverView) return;
    if (QGuiApplication::platformName() == QLatin1String("offscreen")) return;
    prepareWebViews();
    mapWebView = new QWebEngineView(mapCoverView->parentWidget());
    mapWebView->setObjectName("mapWebView");
    mapWebView->setGeometry(mapCoverView->geometry());
    mapWebView->hide();
    mapController = new MapController(mapWebView, owner);
    mapController->load();
}

DashboardTargets DashboardWidgets::targets(const PlaybackViews& v, SeekSliderController* seekSlider) const {
    DashboardTargets t;
    t.gxText = v.gxTextField;
    t.gyText = v.gyTextField;
    t.gzText = v.gzTextField;
    t.latText = v.latTextField;
    t.lngText = v.lngTextField;
    t.playTimeText = v.playTimeTextField;
    t.speedMeter = speedMeterView;
    t.mapCover = v.mapCoverView;
    t.mapWebView = mapWebView;
    t.map = mapController;
    t.seekSlider = seekSlider;
    return t;
}

}  // namespace tarvik
