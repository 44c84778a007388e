#pragma once
// Tells when a volume is mounted or unmounted, so the main window can look for
// the card again. The kernel flags /proc/self/mountinfo with a priority event
// whenever the mount table changes; in tests (TARVIK_VOLUMES_DIR set) a new or
// removed sub-folder of that folder counts as a mount change too.

#include <QObject>
#include <QString>

class QSocketNotifier;
class QFileSystemWatcher;
class QTimer;

namespace tarvik {

class MountWatcher : public QObject {
    Q_OBJECT
public:
    explicit MountWatcher(QObject* parent = nullptr);
    ~MountWatcher() override;

    // False when neither the mount table nor a volumes folder can be watched.
    bool isWatching() const;

signals:
    // Once per burst of changes (changes within a short moment are merged).
    void mountsChanged();

private:
    void onTableEvent();
    void onSettled();

    int fd_ = -1;
    QSocketNotifier* notifier_ = nullptr;
    QFileSystemWatcher* folderWatcher_ = nullptr;
    QTimer* settle_ = nullptr;
    QString lastState_;
};

}  // namespace tarvik
