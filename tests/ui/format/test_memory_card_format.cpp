// The format flow against a UDisks2 service on a private bus: python3-dbusmock
// runs udisks2_mock.py on a dbus-daemon of the test's own, which the viewer
// reaches as its system bus.

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMessageBox>
#include <QProcess>
#include <QProgressBar>
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

const char* kDevice = "/dev/mmcblk9p1";
const QString kService = QStringLiteral("org.freedesktop.UDisks2");

QPushButton* buttonTitled(QMessageBox* box, const QString& text) {
    for (QAbstractButton* b : box->buttons())
        if (b->text() == text) return qobject_cast<QPushButton*>(b);
    return nullptr;
}

// Records the alert's text at the moment its button becomes enabled.
class EnableWatch : public QObject {
public:
    EnableWatch(QMessageBox* box, QPushButton* button) : box_(box) { button->installEventFilter(this); }
    QString textWhenEnabled;

protected:
    bool eventFilter(QObject* o, QEvent* e) override {
        if (e->type() == QEvent::EnabledChange && static_cast<QWidget*>(o)->isEnabled())
            textWhenEnabled = box_->informativeText();
        return false;
    }

private:
    QMessageBox* box_;
};

}  // namespace

class TestMemoryCardFormat : public QObject {
    Q_OBJECT

    QProcess bus_;
    QProcess mock_;
    QTemporaryDir dir_;
    QString card_;  // the card's mount point
    QWidget window_;
    bool removableBySysfs_ = true;

    // A system with its root on sda1 and the card on mmcblk9p1 at card_.
    FormatEnvironment environment() {
        FormatEnvironment e;
        e.mounts = {{8, 1, "/", "ext4", "/dev/sda1"}, {179, 9, card_.toStdString(), "vfat", kDevice}};
        e.isRemovable = [this](unsigned major, unsigned) { return major == 179 && removableBySysfs_; };
        e.home = "/home/driver";
        return e;
    }

    void startUDisks(QJsonObject params) {
        params["device"] = kDevice;
        params["mount_point"] = card_;
        mock_.start("/usr/bin/python3", {"-m", "dbusmock", "--template", TARVIK_SOURCE_DIR "/tests/ui/format/udisks2_mock.py",
                                         "-p", QString::fromUtf8(QJsonDocument(params).toJson(QJsonDocument::Compact))});
        QVERIFY(mock_.waitForStarted());
        QTRY_VERIFY_WITH_TIMEOUT(QDBusConnection::systemBus().interface()->isServiceRegistered(kService), 15000);
    }

    QVariant blockProperty(const QString& iface, const QString& name) {
        auto m = QDBusMessage::createMethodCall(kService, "/org/freedesktop/UDisks2/block_devices/mmcblk9p1",
                                                "org.freedesktop.DBus.Properties", "Get");
        m.setArguments({iface, name});
        QDBusMessage r = QDBusConnection::systemBus().call(m);
        return r.arguments().isEmpty() ? QVariant() : r.arguments().first().value<QDBusVariant>().variant();
    }
    QStringList formats() { return blockProperty("com.tarvik.Test", "Formats").toStringList(); }
    QString marker() const { return dir_.filePath("format-started"); }

private slots:
    void initTestCase() {
        bus_.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
        QVERIFY(bus_.waitForReadyRead(10000));
        const QByteArray address = bus_.readLine().trimmed();
        QVERIFY(!address.isEmpty());
        qputenv("DBUS_SYSTEM_BUS_ADDRESS", address);
        QVERIFY(QDBusConnection::systemBus().isConnected());
        card_ = QDir(dir_.path()).filePath("CARD");
        QVERIFY(QDir().mkpath(card_ + "/DCIM"));
        window_.resize(640, 480);
        window_.show();
    }
    void cleanup() {
        QFile::remove(marker());
        removableBySysfs_ = true;
        mock_.terminate();
        mock_.waitForFinished(5000);
        QTRY_VERIFY(!QDBusConnection::systemBus().interface()->isServiceRegistered(kService));
        for (QWidget* w : QApplication::topLevelWidgets())
            if (auto* box = qobject_cast<QMessageBox*>(w)) delete box;
    }
    void cleanupTestCase() {
        bus_.terminate();
        bus_.waitForFinished(5000);
    }

    // "예" erases the card mounted there with its own type and label; the OK
    // button stays disabled until the formatter has ended.
    void formatsTheCardWithItsTypeAndLabel() {
        startUDisks({{"type", "exfat"}, {"label", "DASHCAM"}, {"delay", 1.5}, {"marker", marker()}});
        MemoryCardFormat flow(std::make_shared<UDisks2CardFormatter>(), nullptr, [this] { return environment(); });
        QSignalSpy released(&flow, &MemoryCardFormat::releaseCardRequested);
        QSignalSpy finished(&flow, &MemoryCardFormat::formatFinished);
        flow.formatMemoryCard(&window_, card_ + "/");

        QMessageBox* question = flow.memoryCardFormatAlert();
        QVERIFY(question && !flow.formattingAlert());
        QCOMPARE(question->informativeText(), tr_k("주의 : 포맷 시 메모리 카드의 모든 데이터가 삭제됩니다. \r\n포맷하려면 (예)를, 취소하려면 (아니오)를 선택 하십시오."));
        QCOMPARE(question->text(), tr_k("메모리 카드 포멧"));
        QPushButton* no = buttonTitled(question, tr_k("아니오"));
        QPushButton* yes = buttonTitled(question, tr_k("예"));
        QVERIFY(no && yes);
        QTRY_VERIFY(question->isVisible());
        QVERIFY(no->mapTo(question, QPoint()).x() < yes->mapTo(question, QPoint()).x());
        QCOMPARE(formats(), QStringList());

        yes->click();
        QTRY_VERIFY(flow.formattingAlert());
        QTRY_VERIFY(QFile::exists(marker()));  // the formatter is inside Format now
        QCOMPARE(released.count(), 1);
        QMessageBox* alert = flow.formattingAlert();
        QPushButton* ok = buttonTitled(alert, "OK");
        QVERIFY(ok && !ok->isEnabled());
        QVERIFY(flow.isFormatting() && flow.progressIndic()->isVisible());
        QCOMPARE(flow.progressIndic()->size(), QSize(400, 20));
        QCOMPARE(alert->informativeText(), tr_k("포맷 중 입니다.\r\n잠시만 기다려 주십시오."));
        QTest::qWait(50);
        QTest::keyClick(alert, Qt::Key_Escape);  // no way out while erasing
        alert->close();
        QVERIFY(alert->isVisible() && finished.isEmpty());
        flow.formatMemoryCard(&window_, card_);  // a second request meanwhile is ignored
        QCOMPARE(flow.formattingAlert(), alert);

        QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 20000);
        QCOMPARE(finished.first().first().toBool(), true);
        QVERIFY(ok->isEnabled() && !flow.progressIndic()->isVisible() && !flow.isFormatting());
        QCOMPARE(alert->informativeText(), tr_k("메모리 카드 포맷이 완료 되었습니다."));
        QCOMPARE(formats(), QStringList{"/dev/mmcblk9p1|exfat|DASHCAM"});
        QVERIFY(blockProperty("org.freedesktop.UDisks2.Filesystem", "MountPoints").isValid());
        QCOMPARE(UDisks2CardFormatter().inspect(environment().mounts[1]).has_value(), true);  // mounted again
        ok->click();
        QTRY_VERIFY(!flow.formattingAlert());
    }

    void noStartsNothing() {
        startUDisks({{"label", "DASHCAM"}});
        MemoryCardFormat flow(std::make_shared<UDisks2CardFormatter>(), nullptr, [this] { return environment(); });
        QSignalSpy released(&flow, &MemoryCardFormat::releaseCardRequested);
        flow.formatMemoryCard(&window_, card_);
        QVERIFY(flow.memoryCardFormatAlert());
        buttonTitled(flow.memoryCardFormatAlert(), tr_k("아니오"))->click();
        QTRY_VERIFY(!flow.memoryCardFormatAlert());
        QTest::qWait(200);
        QVERIFY(!flow.formattingAlert() && !flow.isFormatting());
        QCOMPARE(released.count(), 0);
        QCOMPARE(formats(), QStringList());
        // Escape answers no as well.
        flow.formatMemoryCard(&window_, card_);
        QTRY_VERIFY(flow.memoryCardFormatAlert() && flow.memoryCardFormatAlert()->isVisible());
        QTest::keyClick(flow.memoryCardFormatAlert(), Qt::Key_Escape);
        QTRY_VERIFY(!flow.memoryCardFormatAlert());
        QTest::qWait(200);
        QVERIFY(!flow.formattingAlert());
        QCOMPARE(formats(), QStringList());
    }

    // Each refusal is the short alert with an enabled OK, before any question.
    void refusalsAskNothingAndEraseNothing_data() {
        QTest::addColumn<QString>("label");
        QTest::addColumn<bool>("driveRemovable");
        QTest::addColumn<bool>("sysfsRemovable");
        QTest::addColumn<QString>("path");  // relative to the card, or absolute
        QTest::addColumn<QString>("mountedFrom");
        QTest::addColumn<QString>("reason");  // said below the camera's own text
        QTest::newRow("Untitled 1") << "Untitled 1" << true << true << "" << kDevice << "The card has no name of its own.";
        QTest::newRow("drive not removable") << "CARD" << false << true << "" << kDevice
                                             << "The disk service (UDisks2) says the card's drive is not removable.";
        QTest::newRow("sysfs not removable") << "CARD" << true << false << "" << kDevice << "The card's drive is not removable.";
        QTest::newRow("folder on the card") << "CARD" << true << true << "DCIM" << kDevice
                                            << "This folder is not where a card is mounted.";
        QTest::newRow("root volume") << "CARD" << true << true << "/" << kDevice
                                     << "This volume holds the system or your home folder.";
        QTest::newRow("unknown to UDisks2") << "CARD" << true << true << "" << "/dev/sdq1"
                                            << "The disk service (UDisks2) does not know the device mounted here.";
    }
    void refusalsAskNothingAndEraseNothing() {
        QFETCH(QString, label);
        QFETCH(bool, driveRemovable);
        QFETCH(bool, sysfsRemovable);
        QFETCH(QString, path);
        QFETCH(QString, mountedFrom);
        QFETCH(QString, reason);
        startUDisks({{"label", label}, {"removable", driveRemovable}});
        removableBySysfs_ = sysfsRemovable;
        auto env = [this, mountedFrom] {
            FormatEnvironment e = environment();
            e.mounts[1].source = mountedFrom.toStdString();
            e.mounts[0].major = 179;  // even a removable root is refused
            return e;
        };
        MemoryCardFormat flow(std::make_shared<UDisks2CardFormatter>(), nullptr, env);
        QSignalSpy released(&flow, &MemoryCardFormat::releaseCardRequested);
        flow.formatMemoryCard(&window_, QDir(card_).filePath(path));
        QVERIFY(!flow.memoryCardFormatAlert());
        QMessageBox* alert = flow.formattingAlert();
        QVERIFY(alert);
        QCOMPARE(alert->informativeText(), tr_k("메모리 카드를 포멧할 수 없습니다.") + "\n\n" + tr_k(reason));
        QVERIFY(buttonTitled(alert, "OK")->isEnabled());
        QVERIFY(!flow.progressIndic());
        if (label.startsWith("Untitled")) {
            QTRY_VERIFY(alert->isVisible());
        }
        buttonTitled(alert, "OK")->click();
        QTRY_VERIFY(!flow.formattingAlert());
        QCOMPARE(released.count(), 0);
        QCOMPARE(formats(), QStringList());
    }

    // A failed erase leaves the long text, enables OK and mounts the card again.
    void failingFormatLeavesTheFailureText() {
        startUDisks({{"label", "DASHCAM"}, {"fail_format", true}, {"delay", 1.0}, {"marker", marker()}});
        MemoryCardFormat flow(std::make_shared<UDisks2CardFormatter>(), nullptr, [this] { return environment(); });
        QSignalSpy finished(&flow, &MemoryCardFormat::formatFinished);
        flow.formatMemoryCard(&window_, card_);
        buttonTitled(flow.memoryCardFormatAlert(), tr_k("예"))->click();
        QTRY_VERIFY(QFile::exists(marker()));
        QPushButton* ok = buttonTitled(flow.formattingAlert(), "OK");
        QVERIFY(!ok->isEnabled());
        EnableWatch watch(flow.formattingAlert(), ok);
        QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 20000);
        QCOMPARE(finished.first().first().toBool(), false);
        QVERIFY(ok->isEnabled());
        const QString failure = tr_k(
            "메모리 카드를 포멧할 수 없습니다.\r\n\r\nTARVIK VIEWR에서 동영상을 재생 중이거나 GPS 데이터를 수집중인 경우\r\n"
            "TARVIK VIEWER를 종료하고 다시 포맷하십시오.\r\n메모리카드를 사용하고 있는 디스크 유틸리티나 다른 프로그램을 종료하고\r\n"
            "메모리카드의 내용을 표시하고 있는 창이 없는지 확인한 다음 다시 포맷하십시오.");
        const QString said = failure + "\n\n" + tr_k("The disk service (UDisks2) said: %1").arg("error wiping device");
        QCOMPARE(flow.formattingAlert()->informativeText(), said);
        QCOMPARE(watch.textWhenEnabled, said);  // the text was in place before the button could close it
        QCOMPARE(formats(), QStringList());
        QVERIFY(UDisks2CardFormatter().inspect(environment().mounts[1]).has_value());  // mounted again
    }

    // A card some program holds is not erased, and the alert says why.
    void busyCardIsNamedAsBusy() {
        startUDisks({{"label", "DASHCAM"}, {"busy", true}});
        MemoryCardFormat flow(std::make_shared<UDisks2CardFormatter>(), nullptr, [this] { return environment(); });
        QSignalSpy finished(&flow, &MemoryCardFormat::formatFinished);
        flow.formatMemoryCard(&window_, card_);
        buttonTitled(flow.memoryCardFormatAlert(), tr_k("예"))->click();
        QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 20000);
        QVERIFY(flow.formattingAlert()->informativeText().endsWith("\n\n" + tr_k("The card is in use by another program.")));
        QCOMPARE(formats(), QStringList());
    }

    // Without a UDisks2 service nothing can be checked, so nothing is asked.
    void noServiceRefuses() {
        MemoryCardFormat flow(std::make_shared<UDisks2CardFormatter>(), nullptr, [this] { return environment(); });
        flow.formatMemoryCard(&window_, card_);
        QVERIFY(!flow.memoryCardFormatAlert() && flow.formattingAlert());
        QVERIFY(flow.formattingAlert()->informativeText().endsWith(tr_k("The disk service (UDisks2) does not answer.")));
    }
};

QTEST_MAIN(TestMemoryCardFormat)
#include "test_memory_card_format.moc"
