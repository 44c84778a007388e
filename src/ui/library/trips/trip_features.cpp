#include "ui/library/trips/trip_features.h"

#include <QApplication>
#include <QItemSelectionModel>
#include <QMenu>
#include <QMenuBar>
#include <QSlider>
#include <QTableView>
#include <QShortcut>
#include <QTimer>
#include <algorithm>

#include "core/library/clip_catalogue.h"
#include "core/library/trips/trip_route.h"
#include "core/library/trips/trip_scanner.h"
#include "ui/base/prefs/notification_center.h"
#include "ui/l10n/orvo_languages.h"
#include "ui/library/events/event_marker_controller.h"
#include "ui/library/playback/card_reads.h"
#include "ui/library/playback/dashboard_widgets.h"
#include "ui/library/playback/playback_controller.h"
#include "ui/library/playback/seek_slider_controller.h"
#include "ui/library/trips/card_report_window.h"
#include "ui/library/trips/route_export_controller.h"
#include "ui/library/trips/trip_list_view.h"
#include "ui/telemetry/map_controller.h"

namespace tarvik {

TripFeatures::TripFeatures(QTableView* clipList, ClipCatalogue& catalogue, PlaybackController& playback,
                           QWidget* window, QObject* parent)
    : QObject(parent),
      clipList_(clipList),
      catalogue_(catalogue),
      playback_(playback),
      window_(window),
      events_(new EventMarkerController(playback, window, this)),
      export_(new RouteExportController(window, this)),
      tripList_(new TripListView(clipList)) {
    connect(tripList_, &TripListView::tripActivated, this, [this](const Trip& t) { playTrip(t); });
    tripList_->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(tripList_, &QWidget::customContextMenuRequested, this, &TripFeatures::showContextMenu);
    auto* toggle = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_T), window);
    connect(toggle, &QShortcut::activated, this, [this] { showTripList(tripList_->isHidden()); });
    // The player tells the covers when a clip's telemetry is in; the slider
    // moves with its signals blocked, so its time and length are polled.
    connect(&playback, &PlaybackController::movieViewCoversNeedUpdate, this, [this] {
        if (playback_.currentVideoUrl() != shownClip_) clipPrepared();
    });
    // The clip's telemetry comes in a moment later: its event ticks with it.
    connect(&playback, &PlaybackController::telemetryLoaded, this, [this] { events_->refresh(shownLength_); });
    auto* poll = new QTimer(this);
    poll->setInterval(200);
    connect(poll, &QTimer::timeout, this, [this] {
        const SeekSliderController& seek = playback_.seekSlider();
        if (seek.maxSliderValue() != shownLength_) {
            shownLength_ = seek.maxSliderValue();
            events_->refresh(shownLength_);
        }
        playingTimeChanged(int(seek.currentSliderValue() * SeekSliderController::kUnitsPerSecond));
    });
    poll->start();
    clipList_->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(clipList_, &QWidget::customContextMenuRequested, this, &TripFeatures::showContextMenu);
}

TripFeatures::~TripFeatures() = default;

Trip TripFeatures::tripOf(const std::string& clip) {
    const std::string& root = catalogue_.selectedVideoDirectoryUrl();
    auto find = [&]() -> const Trip* {
        for (const Trip& t : trips_)
            if (t.indexOf(clip) >= 0) return &t;
        return nullptr;
    };
    // Clips come and go (deleted, card changed): scan again when one is unknown.
    if (tripsRoot_ != root || !find()) {
        trips_ = root.empty() ? std::vector<Trip>{} : scanCardTrips(root, false);
        tripsRoot_ = root;
    }
    if (const Trip* t = find()) return *t;
    return RouteExportController::tripOfClips({clip});
}

void TripFeatures::clipPrepared() {
    MapController* map = playback_.dashboardWidgets().mapController;
    const std::string& clip = playback_.currentVideoUrl();
    shownClip_ = clip;
    // The slider still has the last clip's length.
    events_->refresh(0);
    if (clip.empty()) return;
    const Trip trip = tripOf(clip);
    const int index = trip.indexOf(clip);
    const bool sameTrip = !trip_.clips.empty() && trip.start == trip_.start && trip.folder == trip_.folder &&
                          trip.clips.size() == trip_.clips.size();
    if (!sameTrip) {
        trip_ = trip;
        route_.clear();
        if (map) map->run(QStringLiteral("clearTrip()"));
        // One clip alone is already drawn by the dashboard. A trip's clips
        // are each read whole, so the route is read off the interface
        // thread and drawn when it is in.
        if (trip_.clips.size() > 1) {
            const int generation = ++routeGeneration_;
            QPointer<TripFeatures> self(this);
            cardReads().start([self, trip, generation] {
                std::vector<RoutePoint> points = readTripRoute(trip).points;
                QMetaObject::invokeMethod(qApp, [self, points = std::move(points), generation]() mutable {
                    if (self && self->routeGeneration_ == generation) self->showTripRoute(std::move(points));
                });
            });
        }
    }
    clipOffset_ = index >= 0 ? double(trip_.clips[std::size_t(index)].start - trip_.start) : 0.0;
    driven_ = -1;
    playingTimeChanged(0);
}

void TripFeatures::showTripRoute(std::vector<RoutePoint> points) {
    route_ = std::move(points);
    driven_ = -1;
    MapController* map = playback_.dashboardWidgets().mapController;
    if (!map) return;
    std::string text;
    char buf[48];
    for (const RoutePoint& p : route_) {
        std::snprintf(buf, sizeof buf, "%s%.6f,%.6f", text.empty() ? "" : ";", p.lat, p.lng);
        text += buf;
    }
    map->run(QString("setTripRoute('%1')").arg(QString::fromStdString(text)));
}

void TripFeatures::playingTimeChanged(int milliseconds) {
    if (trip_.clips.size() < 2 || route_.empty()) return;
    const double t = clipOffset_ + milliseconds / SeekSliderController::kUnitsPerSecond;
    const int n = int(std::upper_bound(route_.begin(), route_.end(), t,
                                       [](double s, const RoutePoint& p) { return s < p.seconds; }) -
                      route_.begin());
    if (n == driven_) return;
    driven_ = n;
    if (MapController* map = playback_.dashboardWidgets().mapController) map->run(QString("setTripProgress(%1)").arg(n));
}

std::vector<std::string> TripFeatures::selectedClips() const {
    std::vector<std::string> out;
    if (!clipList_->selectionModel()) return out;
    QModelIndexList rows = clipList_->selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end(), [](const QModelIndex& a, const QModelIndex& b) { return a.row() < b.row(); });
    for (const QModelIndex& i : rows) {
        const std::string p = catalogue_.pathAt(i.row());
        if (!p.empty()) out.push_back(p);
    }
    return out;
}

bool TripFeatures::exportSelection() {
    const std::vector<std::string> clips = selectedClips();
    if (clips.empty()) return false;
    const Trip trip = RouteExportController::tripOfClips(clips);
    return export_->exportTrip(trip, QString::fromStdString(tripTimeText(trip.start)));
}

bool TripFeatures::exportTripOfSelection() {
    const std::vector<std::string> clips = selectedClips();
    if (clips.empty()) return false;
    const Trip trip = tripOf(clips.front());
    return export_->exportTrip(trip, QString::fromStdString(tripTimeText(trip.start)));
}

bool TripFeatures::exportPlayingTrip() {
    const std::string& clip = playback_.currentVideoUrl();
    if (clip.empty()) return false;
    const Trip trip = tripOf(clip);
    return export_->exportTrip(trip, QString::fromStdString(tripTimeText(trip.start)));
}

QMenu* TripFeatures::addMenuTo(QMenuBar* bar) {
    QMenu* menu = bar->addMenu(QString());
    menu->setObjectName("tripsMenu");
    auto title = [menu] { menu->setTitle(tr_k("Trips")); };
    title();
    connect(&NotificationCenter::shared(), &NotificationCenter::refreshLanguage, menu, title);
    // Filled on opening, so that what is enabled follows the list and the player.
    connect(menu, &QMenu::aboutToShow, this, [this, menu] {
        menu->clear();
        menu->addAction(tripList_->isVisible() ? tr_k("Show clips") : tr_k("Show trips"), this,
                        [this] { showTripList(tripList_->isHidden()); })
            ->setEnabled(!catalogue_.selectedVideoDirectoryUrl().empty());
        menu->addSeparator();
        menu->addAction(tr_k("Export route of the playing trip..."), this, [this] { exportPlayingTrip(); })
            ->setEnabled(!playback_.currentVideoUrl().empty());
        addCommands(*menu);
    });
    return menu;
}

void TripFeatures::addCommands(QMenu& menu) {
    const bool any = !selectedClips().empty();
    menu.addAction(tr_k("Export route of the selected clips..."), this, [this] { exportSelection(); })->setEnabled(any);
    menu.addAction(tr_k("Export route of the whole trip..."), this, [this] { exportTripOfSelection(); })->setEnabled(any);
    menu.addSeparator();
    menu.addAction(tr_k("Card report..."), this, [this] { showCardReport(); })
        ->setEnabled(!catalogue_.selectedVideoDirectoryUrl().empty());
}

CardReportWindow* TripFeatures::showCardReport() {
    const std::string& root = catalogue_.selectedVideoDirectoryUrl();
    if (root.empty()) return nullptr;
    if (!report_) {
        report_ = new CardReportWindow(window_);
        report_->setAttribute(Qt::WA_DeleteOnClose);
    }
    report_->checkCard(QString::fromStdString(root));
    report_->show();
    report_->raise();
    return report_;
}

void TripFeatures::showTripList(bool on) {
    if (on) tripList_->showTrips(catalogue_.selectedVideoDirectoryUrl());
    else tripList_->hide();
}

bool TripFeatures::playTrip(const Trip& trip) {
    if (trip.clips.empty()) return false;
    const auto& list = catalogue_.filteredVideoFileList();
    const auto it = std::find(list.begin(), list.end(), trip.clips.front().path);
    if (it == list.end()) return false;
    const int row = int(it - list.begin());
    showTripList(false);
    clipList_->selectRow(row);
    playback_.playVideoWithIdx(row);
    return true;
}

void TripFeatures::showContextMenu(const QPoint& at) {
    QMenu menu(clipList_);
    if (tripList_->isVisible()) {
        const int row = tripList_->indexOfTopLevelItem(tripList_->itemAt(at));
        const auto& trips = tripList_->trips();
        menu.addAction(tr_k("Show clips"), this, [this] { showTripList(false); });
        menu.addSeparator();
        menu.addAction(tr_k("Export route of this trip..."), this, [this, row] {
            const auto& list = tripList_->trips();
            if (row >= 0 && row < int(list.size()))
                export_->exportTrip(list[std::size_t(row)], QString::fromStdString(tripTimeText(list[std::size_t(row)].start)));
        })->setEnabled(row >= 0 && row < int(trips.size()));
        menu.addSeparator();
        menu.addAction(tr_k("Card report..."), this, [this] { showCardReport(); });
        if (extraCommands_) {
            menu.addSeparator();
            extraCommands_(menu, row >= 0 && row < int(trips.size()) ? &trips[std::size_t(row)] : nullptr);
        }
        menu.exec(tripList_->viewport()->mapToGlobal(at));
        return;
    }
    menu.addAction(tr_k("Show trips"), this, [this] { showTripList(true); })
        ->setEnabled(!catalogue_.selectedVideoDirectoryUrl().empty());
    menu.addSeparator();
    addCommands(menu);
    if (extraCommands_) {
        menu.addSeparator();
        extraCommands_(menu, nullptr);
    }
    menu.exec(clipList_->viewport()->mapToGlobal(at));
}

}  // namespace tarvik
