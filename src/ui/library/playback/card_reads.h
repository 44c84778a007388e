#pragma once
// The threads that read the card's files off the interface thread for the
// trips and the card report. Releasing the card for a format waits for them:
// the unmount before formatting fails while any of its files is open.

#include <QThreadPool>

namespace tarvik {

QThreadPool& cardReads();

}  // namespace tarvik
