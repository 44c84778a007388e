#pragma once
// Zoom and pan of the large player inside its scroll area. The player is the
// scroll area's document, scale times the area's size; it stays centred until
// the user scrolls away from the centre, and scroll bars show only while
// panning is on and the picture is zoomed.

#include <QObject>
#include <QPoint>
#include <functional>

class QScrollArea;
class QWidget;

namespace tarvik {

class ImageButton;

class ZoomController : public QObject {
    Q_OBJECT
public:
    static constexpr double kMinScale = 1.0;
    static constexpr double kMaxScale = 5.0;
    // The step is the single-precision 0.2 added to a double.
    static constexpr double kStep = static_cast<double>(0.2f);

    // panButton may be missing; it shows whether panning is on.
    ZoomController(QScrollArea* scrollView, QWidget* document, ImageButton* panButton, QObject* parent = nullptr);

    // Zoom changes are ignored while this says full-screen mode is on.
    void setFullScreenQuery(std::function<bool()> query) { isFullScreenMode_ = std::move(query); }

    double videoScale() const { return videoScale_; }
    bool touchedBigMovieScroll() const { return touchedBigMovieScroll_; }
    bool enableBigMovieViewScroll() const { return enableBigMovieViewScroll_; }

    static double scaledUp(double scale);
    static double scaledDown(double scale);

    void videoScaleUpButtonTouched();
    void videoScaleDownButtonTouched();
    void resetVideoScaleButtonTouched();
    // Applies the scale from the event loop, after pending layout has settled.
    void changeVideoScale(double scale);
    // Flips panning whatever the argument; a new clip calls it once with panning on.
    void enterScrollMode(bool ignored);
    // What a new clip does outside full screen: scale 1, panning off.
    void resetForNewClip();

    // The queued part of changeVideoScale.
    void applyVideoScale(double scale);
    // The scroll position that centres the document in the visible area.
    QPoint centredScrollPoint() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void boundDidChange();

    QScrollArea* scrollView_;
    QWidget* document_;
    ImageButton* panButton_;
    std::function<bool()> isFullScreenMode_;
    double videoScale_ = 1.0;
    bool touchedBigMovieScroll_ = false;
    bool enableBigMovieViewScroll_ = false;
    bool adjusting_ = false;
};

}  // namespace tarvik
