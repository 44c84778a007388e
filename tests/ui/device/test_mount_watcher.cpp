// The watcher must report a real mount and unmount, and a card folder
// appearing in the test volumes folder, once per change.

#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include "core/device/volume_list.h"
#include "ui/device/mount_watcher.h"

namespace {
bool g_privateMounts = false;  // the test runs in a mount namespace of its own
}

class TestMountWatcher : public QObject {
    Q_OBJECT
private slots:
    void reportsRealMountAndUnmount() {
        if (!g_privateMounts) QSKIP("no private mount namespace here (needs root)");
        qunsetenv(tarvik::kVolumesDirEnv);
        QTemporaryDir dir;
        tarvik::MountWatcher watcher;
        QVERIFY(watcher.isWatching());
        QSignalSpy spy(&watcher, &tarvik::MountWatcher::mountsChanged);
        const QByteArray where = dir.path().toLocal8Bit();
        // tmpfs stands in for the card: to the volume list it is a volume.
        QCOMPARE(::mount("tarvik-test", where.constData(), "tmpfs", 0, nullptr), 0);
        QVERIFY(spy.wait(3000));
        QCOMPARE(spy.count(), 1);
        QCOMPARE(::umount(where.constData()), 0);
        QVERIFY(spy.wait(3000));
        QCOMPARE(spy.count(), 2);
        // A pseudo file system coming and going is no card event.
        QCOMPARE(::mount("proc", where.constData(), "proc", 0, nullptr), 0);
        QCOMPARE(::umount(where.constData()), 0);
        QTest::qWait(600);
        QCOMPARE(spy.count(), 2);
    }

    void reportsCardFoldersInTheVolumesFolder() {
        QTemporaryDir volumes;
        qputenv(tarvik::kVolumesDirEnv, volumes.path().toLocal8Bit());
        tarvik::MountWatcher watcher;
        QSignalSpy spy(&watcher, &tarvik::MountWatcher::mountsChanged);
        QVERIFY(QDir(volumes.path()).mkdir("CARD"));
        QVERIFY(spy.wait(3000));
        QVERIFY(QDir(volumes.path() + "/CARD").removeRecursively());
        QVERIFY(spy.wait(3000));
        QCOMPARE(spy.count(), 2);
        qunsetenv(tarvik::kVolumesDirEnv);
    }
};

int main(int argc, char** argv) {
    // Mounts made by this test stay inside its own namespace; this must happen
    // before any thread exists.
    g_privateMounts = ::geteuid() == 0 && ::unshare(CLONE_NEWNS) == 0 &&
                      ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
    QCoreApplication app(argc, argv);
    TestMountWatcher t;
    return QTest::qExec(&t, argc, argv);
}

#include "test_mount_watcher.moc"
