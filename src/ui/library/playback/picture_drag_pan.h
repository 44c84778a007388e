#pragma once
// A zoomed picture pans with a drag of the left button, as it does with the
// wheel; the drag no longer reaches the window, which would otherwise move.
// Pictures that fit their scroll area leave drags alone.

#include <QObject>
#include <QPoint>
#include <QPointer>

class QScrollArea;
class QWidget;

namespace tarvik {

class PictureDragPan : public QObject {
    Q_OBJECT
public:
    // `picture` is the widget the pointer presses on, inside `scrollView`.
    PictureDragPan(QScrollArea* scrollView, QWidget* picture, QObject* parent = nullptr);

    bool isPanning() const { return panning_; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool canPan() const;

    QPointer<QScrollArea> scrollView_;
    QPointer<QWidget> picture_;
    QPoint last_;
    bool panning_ = false;
};

}  // namespace tarvik
