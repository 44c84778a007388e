#include "ui/library/playback/card_reads.h"

namespace tarvik {

QThreadPool& cardReads() {
    // As many as the trip list, a trip's route and the card report: none of
    // them waits behind another.
    // Never destroyed: a read still going when the program ends must not be
    // waited for after the application object is gone.
    static QThreadPool* pool = [] {
        auto* p = new QThreadPool;
        p->setMaxThreadCount(3);
        return p;
    }();
    return *pool;
}

}  // namespace tarvik
