#include "ui/library/playback/dashboard_updater.h"

#include <QLabel>
#include <QTimer>
#include <cmath>
#include <limits>

#include "core/telemetry/orvo_clip_data.h"
#include "core/telemetry/subtitle_data.h"
#include "ui/library/playback/seek_slider_controller.h"
#include "ui/telemetry/map_controller.h"
#include "ui/telemetry/speed_meter_view.h"

namespace tarvik {

namespace {

void setText(QLabel* label, const QString& text) {
    // A label repaints even for an unchanged text; the tick runs 33 times a second.
    if (label && label->text() != text) label->setText(text);
}

QString fixed(double v, int decimals) { return QString::asprintf(decimals == 3 ? "%.3f" : "%.4f", v); }

// Whole minutes and seconds of a time, truncated; a broken time reads as 0.
void minutesSeconds(double value, int& minutes, int& seconds) {
    if (!std::isfinite(value) || value < 0 || value > 2.0e9) value = 0;
    minutes = static_cast<int>(value / 60.0);
    seconds = static_cast<int>(value) % 60;
}

}  // namespace

DashboardUpdater::DashboardUpdater(const DashboardTargets& targets, const PlayClock& clock, QObject* parent)
    : QObject(parent), t_(targets), clock_(clock), videoPlayTimer_(new QTimer(this)) {
    videoPlayTimer_->setTimerType(Qt::PreciseTimer);
    videoPlayTimer_->setInterval(kTickMilliseconds);
    connect(videoPlayTimer_, &QTimer::timeout, this, &DashboardUpdater::playVideoTimerCallback);
}

QString DashboardUpdater::playTimeText(double t, double d) {
    int tm, ts, dm, ds;
    minutesSeconds(t, tm, ts);
    minutesSeconds(d, dm, ds);
    return QString::asprintf("%02d:%02d/%02d:%02d", tm, ts, dm, ds);
}

int DashboardUpdater::sampleIndex(double t) {
    const double scaled = t * 10.0;
    if (!std::isfinite(scaled)) return 0;
    if (scaled >= static_cast<double>(std::numeric_limits<int>::max())) return std::numeric_limits<int>::max();
    if (scaled <= static_cast<double>(std::numeric_limits<int>::min())) return std::numeric_limits<int>::min();
    return static_cast<int>(scaled);
}

void DashboardUpdater::startVideoPlayTimer() {
    stopVideoPlayTimer();
    videoPlayTimer_->start();
}

void DashboardUpdater::stopVideoPlayTimer() { videoPlayTimer_->stop(); }

bool DashboardUpdater::isTimerRunning() const { return videoPlayTimer_->isActive(); }

void DashboardUpdater::playVideoTimerCallback() {
    const double d = clock_.duration();
    const double t = clock_.currentTime();
    if (t_.seekSlider) t_.seekSlider->setCurrentSliderValue(t);
    updatePlayTime(t, d);
    const int index = sampleIndex(t);
    if (subtitleData_)
        tickWithSubtitles(t, index);
    else
        tickWithClipData(t, index);
}

void DashboardUpdater::tickWithClipData(double t, int index) {
    // Past the last sample (or without telemetry) the dashboard keeps what it shows.
    if (!clipData_ || static_cast<unsigned>(index) >= static_cast<unsigned>(clipData_->clipDataCount())) return;
    int x = 0, y = 0, z = 0;
    float lat = 0, lng = 0;
    unsigned speed = 0;
    clipData_->getClipDataWithIndex(index, x, y, z, lat, lng, speed);
    if (t - lastUpdatedSensorInfoTime_ > kSensorInterval) {
        lastUpdatedSensorInfoTime_ = t;
        updateSensorInfo(gValue(x), gValue(y), gValue(z), lat, lng, speed);
        setSpeed(speed);
    }
    if (t - lastUpdatedMapTime_ > kMapInterval) {
        lastUpdatedMapTime_ = t;
        updateMapWithLat(lat, lng);
    }
}

void DashboardUpdater::tickWithSubtitles(double t, int index) {
    const auto at = static_cast<unsigned>(index);
    int x = 0, y = 0, z = 0;
    if (t - lastUpdatedSensorInfoTime_ >= kSensorInterval && subtitleData_->getSensorAt(at, x, y, z)) {
        lastUpdatedSensorInfoTime_ = t;
        setText(t_.gxText, fixed(gValue(x), 3));
        setText(t_.gyText, fixed(gValue(y), 3));
        setText(t_.gzText, fixed(gValue(z), 3));
    }
    float lat = 0, lng = 0;
    unsigned speed = 0;
    const int r = subtitleData_->getGpsAt(at, lat, lng, speed);
    if (r == SubtitleData::GpsNearby) {
        if (mapWebViewHidden()) {
            showMapWebView();
            updateMapWithLat(lat, lng);
            setPosition(lat, lng);
        }
        setSpeed(speed);
    } else if (r == SubtitleData::GpsExact) {
        const double since = t - lastUpdatedMapTime_;
        if (since >= kMapInterval) {
            // Stay on the one-second grid of the position records while playing
            // steadily; after a jump start again from the current time.
            lastUpdatedMapTime_ = since < 2.0 ? lastUpdatedMapTime_ + 1.0 : t;
            setPosition(lat, lng);
            setSpeed(speed);
            updateMapWithLat(lat, lng);
        }
    } else {
        showMapCover();
        setSpeed(0);
    }
}

void DashboardUpdater::updatePlayTime(double t, double d) { setText(t_.playTimeText, playTimeText(t, d)); }

void DashboardUpdater::updateSensorInfo(float gx, float gy, float gz, float lat, float lng, unsigned) {
    setText(t_.gxText, fixed(gx, 3));
    setText(t_.gyText, fixed(gy, 3));
    setText(t_.gzText, fixed(gz, 3));
    setPosition(lat, lng);
}

void DashboardUpdater::setPosition(float lat, float lng) {
    setText(t_.latText, fixed(lat, 4));
    setText(t_.lngText, fixed(lng, 4));
}

void DashboardUpdater::setSpeed(unsigned kmh) {
    if (t_.speedMeter) t_.speedMeter->setSpeed(kmh);
}

void DashboardUpdater::updateMapWithLat(float lat, float lng) {
    if ((lat == 0.0f && lng == 0.0f) || !clipData_ || clipData_->gpsDataCount() == 0) {
        showMapCover();
        return;
    }
    showMapWebView();
    if (static_cast<double>(lat) == lastUpdatedLat_ && static_cast<double>(lng) == lastUpdatedLng_) return;
    if (t_.map) t_.map->moveToLatLng(lat, lng);
    lastUpdatedLat_ = lat;
    lastUpdatedLng_ = lng;
}

void DashboardUpdater::resetVideoInformation() {
    if (t_.speedMeter) t_.speedMeter->setSpeed(0);
    updateSensorInfo(0, 0, 0, 0, 0, 0);
    updatePlayTime(0, 0);
}

void DashboardUpdater::resetUpdateTimes() {
    lastUpdatedSensorInfoTime_ = 0;
    lastUpdatedMapTime_ = 0;
}

void DashboardUpdater::resetLastPosition() {
    lastUpdatedLat_ = 0;
    lastUpdatedLng_ = 0;
}

bool DashboardUpdater::mapWebViewHidden() const { return !t_.mapWebView || t_.mapWebView->isHidden(); }

void DashboardUpdater::showMapCover() {
    if (t_.mapCover && t_.mapCover->isHidden()) t_.mapCover->show();
    if (t_.mapWebView && !t_.mapWebView->isHidden()) t_.mapWebView->hide();
}

void DashboardUpdater::showMapWebView() {
    // Without a web view the cover stays: there is nothing to show instead.
    if (!t_.mapWebView) return;
    if (t_.mapCover && !t_.mapCover->isHidden()) t_.mapCover->hide();
    if (t_.mapWebView->isHidden()) t_.mapWebView->show();
}

}  // namespace tarvik
