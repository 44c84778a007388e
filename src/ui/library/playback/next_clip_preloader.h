#pragma once
// Opens the clip that follows the playing one in the views' spare players a
// moment after the playing clip has started, so that when a clip ends the
// next one of the trip shows its first pictures without a gap. Only clips
// the players open as they are (no AVI to split first) are opened ahead.

#include <QObject>
#include <QTimer>
#include <string>

namespace tarvik {

class ClipCatalogue;
class OrvoAVView;

class NextClipPreloader : public QObject {
    Q_OBJECT
public:
    // After this long the playing clip's own opening has finished.
    static constexpr int kDelayMs = 1500;

    NextClipPreloader(ClipCatalogue& catalogue, OrvoAVView* big, OrvoAVView* small, QObject* parent = nullptr);

    // A clip (the catalogue's url) started loading; empty when none plays.
    void clipStarted(const std::string& url);

private:
    void preloadNext();

    ClipCatalogue& catalogue_;
    OrvoAVView* big_;
    OrvoAVView* small_;
    std::string url_;
    QTimer timer_;
};

}  // namespace tarvik
