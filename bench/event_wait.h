#pragma once
// Waiting as the application's own event loop waits: asleep until something
// happens. QCoreApplication::processEvents(flags, ms) drops WaitForMoreEvents,
// so calling it in a loop spins a core; a benchmark would charge that to the
// viewer, and on a small machine it slows every other thread of the run.

#include <QEventLoop>
#include <QTimer>

namespace tarvik::bench {

inline void runEventsFor(int ms) {
    QEventLoop loop;
    QTimer::singleShot(ms, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

}  // namespace tarvik::bench
