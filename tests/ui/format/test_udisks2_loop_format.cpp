// A real erase: a card image on a loop device, mounted, erased through the
// format flow by the real udisksd (on a private bus) and mounted again.
// Needs root, a free loop device, udisksd and a running udev daemon (UDisks2
// ignores devices udev has not seen); skipped otherwise. A loop device has no
// removable drive, so only the two removable rules are lifted, for it alone.

#include <unistd.h>

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QFile>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include "core/device/format_target.h"
#include "ui/l10n/orvo_languages.h"
#include "ui/settings/web/format/memory_card_format.h"
#include "ui/settings/web/format/udisks2_card_formatter.h"

using namespace tarvik;

namespace {

QString run(const QString& program, const QStringList& args, int* status = nullptr) {
    QProcess p;
    p.start(program, args);
    p.waitForFinished(120000);
    if (status) *status = p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1;
    return QString::fromUtf8(p.readAllStandardOutput()).trimmed();
}

class LoopCardFormatter : public UDisks2CardFormatter {
protected:
    bool driveIsRemovable(const QString&) override { return true; }
};

}  // namespace

class TestUDisks2LoopFormat : public QObject {
    Q_OBJECT

    QTemporaryDir dir_;
    QString loop_, mountPoint_, fsType_;
    QProcess bus_, udisksd_;

    std::optional<MountEntry> loopMount() {
        for (const MountEntry& m : readMountTable())
            if (QString::fromStdString(m.source) == loop_) return m;
        return std::nullopt;
    }

private slots:
    void initTestCase() {
        if (::geteuid() != 0) QSKIP("loop devices need root");
        if (!QFile::exists("/usr/libexec/udisks2/udisksd")) QSKIP("udisksd is not installed");
        int status = 0;
        run("udevadm", {"control", "--ping", "--timeout=5"}, &status);
        if (status != 0) QSKIP("no udev daemon answers");
        QFile fsList("/proc/filesystems");
        QVERIFY(fsList.open(QIODevice::ReadOnly));
        // A camera card is FAT; a kernel without vfat gets ext4, which UDisks2 formats the same way.
        fsType_ = fsList.readAll().contains("\tvfat\n") ? "vfat" : "ext4";
        const QString image = dir_.filePath("card.img");
        run("truncate", {"-s", "64M", image}, &status);
        QCOMPARE(status, 0);
        run(fsType_ == "vfat" ? "mkfs.vfat" : "mkfs.ext4",
            fsType_ == "vfat" ? QStringList{"-n", "DASHCAM", image} : QStringList{"-q", "-L", "DASHCAM", image}, &status);
        QCOMPARE(status, 0);
        loop_ = run("losetup", {"-f", "--show", image}, &status);
        if (status != 0 || loop_.isEmpty()) QSKIP("no free loop device");
        mountPoint_ = dir_.filePath("DASHCAM");
        QDir().mkpath(mountPoint_);
        run("mount", {"-t", fsType_, loop_, mountPoint_}, &status);
        QCOMPARE(status, 0);
        QVERIFY(QDir().mkpath(mountPoint_ + "/DCIM"));
        QFile clip(mountPoint_ + "/DCIM/clip.mp4");
        QVERIFY(clip.open(QIODevice::WriteOnly) && clip.write("x") == 1);
        clip.close();

        bus_.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
        QVERIFY(bus_.waitForReadyRead(10000));
        qputenv("DBUS_SYSTEM_BUS_ADDRESS", bus_.readLine().trimmed());
        udisksd_.start("/usr/libexec/udisks2/udisksd", {});
        QTRY_VERIFY_WITH_TIMEOUT(
            QDBusConnection::systemBus().interface()->isServiceRegistered("org.freedesktop.UDisks2"), 30000);
        run("udevadm", {"trigger", "--action=change", "--settle", "/sys/class/block/" + QFileInfo(loop_).fileName()});
        QTRY_VERIFY_WITH_TIMEOUT(loopMount() && LoopCardFormatter().inspect(*loopMount()), 30000);
    }

    void cleanupTestCase() {
        if (loop_.isEmpty()) return;
        while (auto m = loopMount()) {
            int status = 0;
            run("umount", {QString::fromStdString(m->mountPoint)}, &status);
            if (status != 0) break;
        }
        run("losetup", {"-d", loop_});
        udisksd_.terminate();
        udisksd_.waitForFinished(10000);
        bus_.terminate();
        bus_.waitForFinished(5000);
    }

    void erasesTheCardAndMountsItAgainWithItsLabel() {
        const MountEntry before = *loopMount();
        // UDisks2's own drive rule refuses a loop device.
        QVERIFY(!UDisks2CardFormatter().inspect(before));

        FormatEnvironment env = FormatEnvironment::current();
        env.isRemovable = [before](unsigned major, unsigned minor) {
            return major == before.major && minor == before.minor;
        };
        MemoryCardFormat flow(std::make_shared<LoopCardFormatter>(), nullptr, [env] { return env; });
        QSignalSpy finished(&flow, &MemoryCardFormat::formatFinished);
        QWidget window;
        window.show();
        flow.formatMemoryCard(&window, mountPoint_ + "/DCIM");  // not the volume's root
        QVERIFY(!flow.memoryCardFormatAlert() && flow.formattingAlert());
        delete flow.formattingAlert();
        flow.formatMemoryCard(&window, mountPoint_);
        QVERIFY(flow.memoryCardFormatAlert());
        QElapsedTimer timer;
        timer.start();
        QTest::mouseClick(qobject_cast<QPushButton*>(flow.memoryCardFormatAlert()->buttons().at(1)), Qt::LeftButton);
        QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 120000);
        qInfo("erase of a 64 MiB %s card took %lld ms", qPrintable(fsType_), timer.elapsed());
        QCOMPARE(finished.first().first().toBool(), true);
        QCOMPARE(flow.formattingAlert()->informativeText(), tr_k("메모리 카드 포맷이 완료 되었습니다."));

        const auto after = loopMount();
        QVERIFY(after);
        QCOMPARE(after->fsType, before.fsType);
        const QString root = QString::fromStdString(after->mountPoint);
        QVERIFY(!QFile::exists(root + "/DCIM"));
        QStringList left = QDir(root).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden);
        left.removeAll("lost+found");  // mkfs.ext4 makes it
        QCOMPARE(left, QStringList());
        QCOMPARE(run("blkid", {"-s", "LABEL", "-o", "value", loop_}), QString("DASHCAM"));
    }
};

QTEST_MAIN(TestUDisks2LoopFormat)
#include "test_udisks2_loop_format.moc"
