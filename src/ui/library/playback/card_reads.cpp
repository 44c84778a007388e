#include "ui/library/playback/card_reads.h"

namespace tarvik {

QThreadPool& cardReads() {
    // As many as the trip list, a trip's route and the card report: none of
    // them waits behind another.
    static QThreadPool* pool = [] {
        auto* p = new QThreadPool;
        p->setMaxThreadCount(3);
        return p;
    }();
    return *pool;
}

}  // namespace tarvik
