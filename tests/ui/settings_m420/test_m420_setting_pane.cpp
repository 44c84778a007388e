// The M420 settings pane over generated cards: what OK writes, byte for byte
// against offsets written out here; that opening and cancelling leaves the
// card as it was; bad records. (Escape on every tab is the panes' keyboard test's.)

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QButtonGroup>
#include <QCheckBox>
#include <QDir>
#include <QKeyEvent>
#include <QTemporaryDir>
#include <QSignalSpy>
#include <QTest>
#include <fstream>
#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>
#include <iterator>

#include "../card_volumes.h"
#include "core/settings/m420/m420_setting_manager.h"
#include "core/settings/m420/settings_alert_sink.h"
#include "ui/base/prefs/qsettings_store.h"
#include "ui/settings/m420/m420_control_widget.h"
#include "ui/settings/m420/m420_setting_view_controller.h"
#include "ui/settings/m420/memory_partition_graph.h"

using namespace tarvik;
using m420pane::Control;

namespace {

QByteArray readAll(const QString& path) {
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

void putLe32(QByteArray& b, int at, qint32 v) {
    for (int k = 0; k < 4; ++k) b[at + k] = static_cast<char>(static_cast<quint32>(v) >> (8 * k));
}

void putText(QByteArray& b, int at, int width, const QByteArray& s) {
    for (int k = 0; k < width; ++k) b[at + k] = k < s.size() ? s[k] : '\0';
}

M420SettingManager& manager() { return M420SettingManager::SharedM420SettingManager(); }

// The card as the settings button leaves it before the pane opens.
void openCard(const QString& root) {
    M420SettingManager::ChagneM420SettingManager(std::make_unique<M420SettingManager>());
    manager().loadVersionInfoForPath(root.toStdString());
    manager().loadData();
}

struct CountingAlerts : SettingsAlertSink {
    int count = 0;
    void showSettingsAlert(const std::string&, const std::string&, const std::string&) override { ++count; }
};

void clickColumn(M420SettingViewController& pane, Control c, int column) {
    pane.control(c)->buttons()->button(column)->click();
}

}  // namespace

class TestM420SettingPane : public QObject {
    Q_OBJECT
private slots:
    void init() { QSettingsStore::shared().setStringList("AppleLanguages", {"en"}); }

    // One model of every group: one control on every tab, then OK.
    void okWritesTheMovedControls_data() {
        QTest::addColumn<int>("type");
        QTest::addColumn<QByteArray>("tzKey");  // what the time-zone pairing stores with the card's offset
        // -480 is "UTC-08:00", index 5; 0 is "UTC", index 15.
        QTest::newRow("K310") << 0 << QByteArray("Korea Standard Time");
        QTest::newRow("M420") << 1 << QByteArray("Korea Standard Time");
        QTest::newRow("Q610") << 2 << QByteArray("Korea Standard Time");
        QTest::newRow("Q810") << 3 << QByteArray("Korea Standard Time");
        QTest::newRow("M640") << 5 << QByteArray("Korea Standard Time");
        QTest::newRow("Q650") << 8 << QByteArray("Iran Standard Time");
        QTest::newRow("M60") << 11 << QByteArray("Iran Standard Time");
    }
    void okWritesTheMovedControls() {
        QFETCH(int, type);
        QFETCH(QByteArray, tzKey);
        QTemporaryDir card;
        QVERIFY(cardgen::writeSettingsFiles(card.path().toStdString(), type));
        const QByteArray before = readAll(card.path() + "/SETTING/setup.cfg");
        const QByteArray timeBefore = readAll(card.path() + "/SETTING/time.dat");
        openCard(card.path());
        QCOMPARE(manager().modelType(), type);

        M420SettingViewController pane;
        pane.control(Control::FrontBrightness)->slider()->setValue(0);    // common
        clickColumn(pane, Control::FrontResolution, 0);                   // continuous
        pane.control(Control::ParkingTimeLimit)->slider()->setValue(5);   // parking
        clickColumn(pane, Control::Partition, 1);                         // the rest
        QCOMPARE(pane.partitionGraph()->percentTexts().at(4), QString("40.0%"));
        pane.okButtonTouched();

        QByteArray expected = before;
        putLe32(expected, 64, 2);    // front_brightness: slider 0 is the brightest
        putLe32(expected, 52, 1);    // front_resolution: column 0
        putLe32(expected, 200, 12);  // parking_time_limit: step 5 is 12 hours
        putLe32(expected, 212, 2);   // partition_type: column 1
        putText(expected, 380, 32, tzKey);
        const QByteArray after = readAll(card.path() + "/SETTING/setup.cfg");
        QCOMPARE(after.size(), before.size());
        for (int i = 0; i < after.size(); i += 4)
            QVERIFY2(after.mid(i, 4) == expected.mid(i, 4), qPrintable(QString("offset %1").arg(i)));
        QCOMPARE(readAll(card.path() + "/SETTING/time.dat"), timeBefore);  // the clock kept, written again
    }

    void partitionGraphAndClockFile() {
        QTemporaryDir card;
        QVERIFY(cardgen::writeSettingsFiles(card.path().toStdString(), 8));
        openCard(card.path());
        M420SettingViewController pane;
        clickColumn(pane, Control::Partition, 1);
        QCOMPARE(pane.partitionGraph()->percentTexts(),
                 QStringList({"37.0%", "15.0%", "5.0%", "3.0%", "40.0%"}));
        QVERIFY(pane.timeCheckBox()->isChecked());
        pane.timeCheckBox()->setChecked(false);
        QKeyEvent ret(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        pane.keyDown(&ret);  // Return is OK
        QVERIFY(!QFile::exists(card.path() + "/SETTING/time.dat"));
    }

    void speedUnitRelabelsLaneDeparturePresets() {
        QTemporaryDir card;
        QVERIFY(cardgen::writeSettingsFiles(card.path().toStdString(), 5));
        openCard(card.path());
        M420SettingViewController pane;
        pane.control(Control::SpeedUnit)->buttons()->button(1)->click();
        QCOMPARE(pane.control(Control::LdwsSpeed)->buttons()->button(3)->text(), QString("65mph"));
        pane.control(Control::SpeedUnit)->buttons()->button(0)->click();
        QCOMPARE(pane.control(Control::LdwsSpeed)->buttons()->button(0)->text(), QString("50km"));
    }

    void parkingModeAlertNoPutsTheChoiceBack() {
        QTemporaryDir card;
        QVERIFY(cardgen::writeSettingsFiles(card.path().toStdString(), 1));
        openCard(card.path());
        manager().setParking_mode_set(1);
        M420SettingViewController pane;
        int asked = 0;
        int answer = M420SettingViewController::kAlertNo;
        pane.setAlertResponder([&](const QString& title, const QString&) {
            ++asked;
            return title == "주차모드" ? answer : 0;
        });
        clickColumn(pane, Control::ParkingMode, 1);
        QCOMPARE(asked, 1);
        QCOMPARE(pane.control(Control::ParkingMode)->position(), 0);
        QVERIFY(pane.control(Control::ParkingShock)->isEnabled());
        answer = M420SettingViewController::kAlertYes;
        clickColumn(pane, Control::ParkingMode, 1);
        QCOMPARE(pane.state()[Control::ParkingMode], 1);
        QVERIFY(!pane.control(Control::ParkingShock)->isEnabled());
    }

    void touchCalibrationWrittenOnlyOnYes() {
        QTemporaryDir card;
        QVERIFY(cardgen::writeSettingsFiles(card.path().toStdString(), 3));
        openCard(card.path());
        M420SettingViewController pane;
        int answer = M420SettingViewController::kAlertNo;
        pane.setAlertResponder([&](const QString&, const QString&) { return answer; });
        pane.initializeTouchButtonTouched();
        QVERIFY(!QFile::exists(card.path() + "/Set_touch_cal.txt"));
        answer = M420SettingViewController::kAlertYes;
        pane.initializeTouchButtonTouched();
        QVERIFY(QFile::exists(card.path() + "/Set_touch_cal.txt"));
        QCOMPARE(QFileInfo(card.path() + "/Set_touch_cal.txt").size(), 0);
        QSignalSpy formats(&pane, &M420SettingViewController::formatRequested);
        pane.memoryCardFormatButtonTouched();
        QCOMPARE(formats.count(), 1);
    }

    // Open, move everything, reset, then cancel: not one byte changes, also
    // for a record longer than the model's.
    void cancelLeavesTheCardAlone() {
        for (int type : {0, 1, 2, 3, 5, 8, 11}) {
            QTemporaryDir card;
            QVERIFY(cardgen::writeSettingsFiles(card.path().toStdString(), type));
            QFile f(card.path() + "/SETTING/setup.cfg");
            QVERIFY(f.open(QIODevice::Append));
            f.write(QByteArray(200, '\x5a'));
            f.close();
            const QByteArray hash = test::cardHash(card.path().toStdString());
            openCard(card.path());
            M420SettingViewController pane;
            pane.setAlertResponder([](const QString&, const QString&) { return 1001; });
            clickColumn(pane, Control::Partition, 2);
            clickColumn(pane, Control::ParkingMode, 1);
            pane.control(Control::FrontBrightness)->slider()->setValue(1);
            pane.timeCheckBox()->setChecked(false);
            pane.resetButtonTouched();
            pane.cancelButtonTouched();
            QCOMPARE(test::cardHash(card.path().toStdString()), hash);
        }
    }

    // Records the pane cannot make sense of open all the same and write nothing until OK.
    void badRecordsNeverCrash() {
        const QList<QByteArray> records = {QByteArray(), QByteArray("M42"), QByteArray(100, '\xff'),
                                           QByteArray::fromHex(QByteArray(1200, 'a'))};
        for (const QByteArray& r : records) {
            QTemporaryDir card;
            QDir().mkpath(card.path() + "/SETTING");
            QFile f(card.path() + "/SETTING/setup.cfg");
            QVERIFY(f.open(QIODevice::WriteOnly));
            f.write(r);
            f.close();
            const QByteArray hash = test::cardHash(card.path().toStdString());
            M420SettingManager::ChagneM420SettingManager(std::make_unique<M420SettingManager>());
            manager().setSettingDirPath(card.path().toStdString());
            manager().setModelType(1);  // as the model picker would set it
            manager().loadData();
            M420SettingViewController pane;
            pane.cancelButtonTouched();
            QCOMPARE(test::cardHash(card.path().toStdString()), hash);
            M420SettingViewController again;
            again.okButtonTouched();
            QCOMPARE(QFileInfo(card.path() + "/SETTING/setup.cfg").size(), 432);
        }
    }

    // OK on a card that refuses writes: one alert, every file as it was.
    void readOnlyCardAlertsAndKeepsItsFiles() {
        QTemporaryDir card;
        QVERIFY(cardgen::writeSettingsFiles(card.path().toStdString(), 1));
        const QByteArray hash = test::cardHash(card.path().toStdString());
        const std::string root = card.path().toStdString();
        const pid_t pid = ::fork();
        QVERIFY(pid >= 0);
        if (pid == 0) {
            // A private read-only bind mount of the card, seen by this child only.
            if (::geteuid() != 0 || ::unshare(CLONE_NEWNS) != 0 ||
                ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
                ::mount(root.c_str(), root.c_str(), nullptr, MS_BIND, nullptr) != 0 ||
                ::mount(nullptr, root.c_str(), nullptr, MS_REMOUNT | MS_BIND | MS_RDONLY, nullptr) != 0)
                ::_exit(77);
            CountingAlerts sink;
            setSettingsAlertSink(&sink);
            openCard(card.path());
            M420SettingViewController pane;
            pane.control(Control::FrontBrightness)->slider()->setValue(0);
            pane.okButtonTouched();
            ::_exit(sink.count == 1 ? 0 : 1);
        }
        int status = 0;
        ::waitpid(pid, &status, 0);
        QVERIFY(WIFEXITED(status));
        if (WEXITSTATUS(status) == 77) QSKIP("cannot make a read-only card here");
        QCOMPARE(WEXITSTATUS(status), 0);
        QCOMPARE(test::cardHash(card.path().toStdString()), hash);
    }

    void cardRemovedWhileOpenGetsNothingWritten() {
        QTemporaryDir card;
        QVERIFY(cardgen::writeSettingsFiles(card.path().toStdString(), 3));
        openCard(card.path());
        M420SettingViewController pane;
        QVERIFY(QDir(card.path() + "/SETTING").removeRecursively());  // the card is gone, its mount folder stays
        CountingAlerts sink;
        setSettingsAlertSink(&sink);
        pane.okButtonTouched();
        setSettingsAlertSink(nullptr);
        QCOMPARE(sink.count, 1);
        QCOMPARE(QDir(card.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden), QStringList());
    }
};

QTEST_MAIN(TestM420SettingPane)
#include "test_m420_setting_pane.moc"
