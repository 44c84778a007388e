#include "ui/device/mount_watcher.h"

#include <fcntl.h>
#include <unistd.h>

#include <QDir>
#include <QFileSystemWatcher>
#include <QSocketNotifier>
#include <QTimer>

#include "core/device/volume_list.h"

namespace tarvik {

namespace {

// What a change is measured against: the volumes a card could be on.
QString volumeState() {
    QString s;
    for (const auto& v : mountedVolumePaths()) s += QString::fromStdString(v) + QLatin1Char('\n');
    return s;
}

}  // namespace

MountWatcher::MountWatcher(QObject* parent) : QObject(parent) {
    settle_ = new QTimer(this);
    settle_->setSingleShot(true);
    // Mounting a card often comes as a burst (the mount, then its options).
    settle_->setInterval(150);
    connect(settle_, &QTimer::timeout, this, &MountWatcher::onSettled);

    fd_ = ::open("/proc/self/mountinfo", O_RDONLY | O_CLOEXEC);
    if (fd_ >= 0) {
        notifier_ = new QSocketNotifier(fd_, QSocketNotifier::Exception, this);
        connect(notifier_, &QSocketNotifier::activated, this, &MountWatcher::onTableEvent);
    }
    const QByteArray dir = qgetenv(kVolumesDirEnv);
    if (!dir.isEmpty() && QDir(QString::fromLocal8Bit(dir)).exists()) {
        folderWatcher_ = new QFileSystemWatcher({QString::fromLocal8Bit(dir)}, this);
        connect(folderWatcher_, &QFileSystemWatcher::directoryChanged, this, [this] { settle_->start(); });
    }
    lastState_ = volumeState();
}

MountWatcher::~MountWatcher() {
    delete notifier_;
    if (fd_ >= 0) ::close(fd_);
}

bool MountWatcher::isWatching() const { return notifier_ || folderWatcher_; }

void MountWatcher::onTableEvent() {
    // The kernel raises the event once per change; reading the table from the
    // start is what the poll interface expects of a watcher.
    char buf[4096];
    ::lseek(fd_, 0, SEEK_SET);
    while (::read(fd_, buf, sizeof buf) > 0) {
    }
    settle_->start();
}

void MountWatcher::onSettled() {
    // Remounts and changes of pseudo file systems do not concern the card.
    QString now = volumeState();
    if (now == lastState_) return;
    lastState_ = std::move(now);
    emit mountsChanged();
}

}  // namespace tarvik
