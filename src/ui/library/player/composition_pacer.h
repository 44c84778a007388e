#pragma once
// While video plays in a window, the window is composed when a new picture
// comes, not whenever anything in it changes. On a software renderer every
// composition draws and copies the whole window; the dashboard, the slider
// and the map change with every time the front player reports, a few
// milliseconds off its picture, and each such change composed the window
// once more: twice the compositions, twice the processor time of drawing.
// Held back, they are composed with the next picture, or after kLatestMs.

#include <QObject>
#include <functional>

class QTimer;
class QWidget;

namespace tarvik {

class CompositionPacer : public QObject {
    Q_OBJECT
public:
    // The pacer of a top-level widget, made and installed on first use.
    // `playing` tells whether pictures are coming in that window.
    static CompositionPacer* of(QWidget* window, const std::function<bool(QWidget*)>& playing);

    // New pictures go to the screen now: so does whatever waited.
    void compose();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    CompositionPacer(QWidget* window, std::function<bool(QWidget*)> playing);
    void release();

    QWidget* window_;
    std::function<bool(QWidget*)> playing_;
    bool owed_ = false;     // a composition asked for and held back
    bool passing_ = false;  // the next one goes ahead
    QTimer* latest_;
};

}  // namespace tarvik
