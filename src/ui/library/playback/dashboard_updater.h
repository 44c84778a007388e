#pragma once
// Keeps the dashboard in step with the playing time: the seek slider, the
// play-time text, the G-sensor and position texts, the speedometer and the
// map. A timer ticks 33 times a second while playing; texts and gauge change
// at most every 0.3 s of playing time and the map at most once a second, so
// a tick is cheap.

#include <QObject>
#include <QString>

class QLabel;
class QTimer;
class QWidget;

namespace tarvik {

class MapController;
class OrvoClipData;
class SeekSliderController;
class SpeedMeterView;
class SubtitleData;

// Where the playing time comes from (the large player).
class PlayClock {
public:
    virtual ~PlayClock() = default;
    virtual double currentTime() const = 0;
    virtual double duration() const = 0;
};

struct DashboardTargets {
    QLabel* gxText = nullptr;
    QLabel* gyText = nullptr;
    QLabel* gzText = nullptr;
    QLabel* latText = nullptr;
    QLabel* lngText = nullptr;
    QLabel* playTimeText = nullptr;
    SpeedMeterView* speedMeter = nullptr;
    QWidget* mapCover = nullptr;
    QWidget* mapWebView = nullptr;  // may be missing (no web engine)
    MapController* map = nullptr;
    SeekSliderController* seekSlider = nullptr;
};

class DashboardUpdater : public QObject {
    Q_OBJECT
public:
    // 1/33 s, as close as a millisecond timer gets.
    static constexpr int kTickMilliseconds = 30;
    static constexpr double kSensorInterval = 0.3;
    static constexpr double kMapInterval = 1.0;

    DashboardUpdater(const DashboardTargets& targets, const PlayClock& clock, QObject* parent = nullptr);

    void setTargets(const DashboardTargets& targets) { t_ = targets; }
    const DashboardTargets& targets() const { return t_; }
    // Telemetry of the clip; without subtitle data the clip's own samples are read.
    void setClipData(const OrvoClipData* clipData) { clipData_ = clipData; }
    void setSubtitleData(const SubtitleData* subtitleData) { subtitleData_ = subtitleData; }

    // "%02d:%02d/%02d:%02d"; minutes are not wrapped at 60, values truncated.
    static QString playTimeText(double t, double d);
    // Ten samples a second: trunc(t * 10) as a 32-bit integer.
    static int sampleIndex(double t);
    // Raw G (1/128 g) to g, in single precision like the camera's own viewer.
    static float gValue(int raw) { return static_cast<float>(raw * 4) * 0.001953125f; }

    void startVideoPlayTimer();
    void stopVideoPlayTimer();
    bool isTimerRunning() const;
    // One tick; also called right after a frame step.
    void playVideoTimerCallback();

    void updatePlayTime(double t, double d);
    void updateSensorInfo(float gx, float gy, float gz, float lat, float lng, unsigned speed);
    void updateMapWithLat(float lat, float lng);
    void resetVideoInformation();

    // After a seek the next tick updates everything at once.
    void resetUpdateTimes();
    void resetLastPosition();
    void showMapCover();
    void showMapWebView();

    double lastUpdatedSensorInfoTime() const { return lastUpdatedSensorInfoTime_; }
    double lastUpdatedMapTime() const { return lastUpdatedMapTime_; }
    double lastUpdatedLat() const { return lastUpdatedLat_; }
    double lastUpdatedLng() const { return lastUpdatedLng_; }

private:
    void tickWithClipData(double t, int index);
    void tickWithSubtitles(double t, int index);
    void setSpeed(unsigned kmh);
    void setPosition(float lat, float lng);
    bool mapWebViewHidden() const;

    DashboardTargets t_;
    const PlayClock& clock_;
    const OrvoClipData* clipData_ = nullptr;
    const SubtitleData* subtitleData_ = nullptr;
    QTimer* videoPlayTimer_ = nullptr;
    double lastUpdatedSensorInfoTime_ = 0;
    double lastUpdatedMapTime_ = 0;
    double lastUpdatedLat_ = 0;
    double lastUpdatedLng_ = 0;
};

}  // namespace tarvik
