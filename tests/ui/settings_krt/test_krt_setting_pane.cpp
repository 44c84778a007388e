// The KRT pane on real cards: what it shows for awkward files, what OK writes,
// that cancel and Escape leave the card alone, and how it looks.
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QApplication>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QScrollArea>
#include <QSlider>
#include <QTest>
#include <QTimer>
#include <filesystem>
#include <fstream>
#include <functional>

#include "../card_volumes.h"
#include "core/settings/krt/krt_setting_manager.h"
#include "core/settings/m420/m420_setting_manager.h"
#include "core/settings/m420/settings_alert_sink.h"
#include "ui/base/pane/setting_window.h"
#include "ui/base/prefs/qsettings_store.h"
#include "ui/controls/image_button.h"
#include "ui/l10n/orvo_languages.h"
#include "ui/settings/krt/guided_slider.h"
#include "ui/settings/krt/krt_setting_view_controller.h"
#include "ui/settings/krt/labelled_radio_button.h"
#include "ui/settings/krt/memory_partition_graph_view.h"

using namespace tarvik;
namespace fs = std::filesystem;
using C = KrtControl;
using test::cardHash;
using test::readFile;

namespace {

struct CountingAlerts : SettingsAlertSink {
    void showSettingsAlert(const std::string&, const std::string& message, const std::string&) override {
        ++count;
        lastMessage = message;
    }
    int count = 0;
    std::string lastMessage;
};

void writeFile(const fs::path& p, const std::string& bytes) {
    fs::create_directories(p.parent_path());
    std::ofstream(p, std::ios::binary) << bytes;
}

void setLanguage(const std::string& code) { QSettingsStore::shared().setStringList("AppleLanguages", {code}); }

}  // namespace

class KrtPaneTest : public QObject {
    Q_OBJECT
public:
    bool ownMounts = false;

private:
    fs::path card_;
    CountingAlerts alerts_;

    fs::path cfg() const { return card_ / "SETTING" / "blackbox.cfg"; }

    // Loads the card's lines as the opener does and shows the pane modally;
    // act runs inside the modal run and must end it.
    int runPane(const std::function<void(KRTSettingViewController&)>& act) {
        KRTSettingManager::SharedKRTSettingManager().loadData();
        KRTSettingViewController pane;
        SettingWindow window;
        QTimer::singleShot(0, &pane, [&] { act(pane); });
        QTimer::singleShot(5000, &window, [&] { window.done(-1); });  // never hang on a pane left open
        return window.showModalWindow(nullptr, pane.view(), &pane, false);
    }

    std::unique_ptr<KRTSettingViewController> openPane(const std::string& text) {
        writeFile(cfg(), text);
        KRTSettingManager::SharedKRTSettingManager().loadData();
        return std::make_unique<KRTSettingViewController>();
    }

private slots:
    void init() {
        card_ = fs::temp_directory_path() / ("tarvik-krt-pane-" + std::to_string(::getpid()));
        fs::remove_all(card_);
        std::string error;
        QVERIFY2(cardgen::writeSettingsFiles(card_, 6, &error), error.c_str());
        writeFile(card_ / "option_rec" / "Rec_20261121_090500.avi", std::string(4096, 'v'));
        auto& m = M420SettingManager::SharedM420SettingManager();
        m.setSettingDirPath(card_.string());
        m.setModelType(6);
        setSettingsAlertSink(&alerts_);
        alerts_.count = 0;
        setLanguage("en");
    }
    void cleanup() {
        setSettingsAlertSink(nullptr);
        fs::remove_all(card_);
    }

    void showsAwkwardValuesAsTheCameraMeansThem() {
        auto pane = openPane(
            "[capacity]\r\nconst=50\r\nevent=20\r\nmanual=10\r\npark=20\r\n[blackbox]\r\nmodel=Q260\r\n"
            "version=1.0.4\r\npark_mode=0\r\npower_off_vlt=11850\r\nlanguage=fr\r\nlocal_time=9.500000\r\n"
            "osd_speed=2\r\nmic_in=0\r\nvoice_out=0\r\nvoice_volume=2\r\nacc_level=1\r\nmotion_level=5\r\n"
            "[time]\r\nset=1");
        // The second choice everywhere; summer time has no line, which is off.
        for (C c : {C::PowerOffVoltage, C::Language, C::SpeedUnit, C::SoundRecording, C::SummerTime, C::SecurityLed})
            QCOMPARE(pane->selectedIndex(c), 1);
        QCOMPARE(pane->timeZoneComboBox()->currentText(), QString("(UTC+09:30) Adelaide"));
        for (auto [c, value] : {std::pair{C::ImpactSensitivity, 3}, {C::VoiceVolume, 3}, {C::MotionSensitivity, 5}})
            QCOMPARE(pane->slider(c)->value(), value);
        // 50/20/20/10 is no preset: the first column, but the graph as stored.
        QCOMPARE(pane->selectedMemoryPartitionColumn(), 0);
        MemoryPartitionGraphView* graph = pane->memoryPartitionGraph();
        QCOMPARE(graph->percents(), (std::array<int, 4>{50, 20, 20, 10}));
        QCOMPARE(graph->barRect(0).width(), graph->width() * 50 / 100);
        QCOMPARE(graph->barRect(3).left(), graph->barRect(2).right() + 1);
        // Parking off greys the cut-off voltage, guidance off the volume.
        QVERIFY(!pane->isGroupEnabled(C::PowerOffVoltage));
        QVERIFY(!pane->isGroupEnabled(C::VoiceVolume));
        // The clock box starts off whatever set= holds.
        QVERIFY(!pane->isClockOn() && !pane->datePicker()->isEnabled() && !pane->currentTimeButton()->isEnabled());
        QCOMPARE(pane->modelText() + " " + pane->versionText(), QString("Q260 1.0.4"));
        // Opening wrote nothing into the lines.
        QCOMPARE(KRTSettingManager::joinLines(KRTSettingManager::SharedKRTSettingManager().linedSettings()),
                 readFile(cfg()));

        pane.reset();
        pane = openPane("[blackbox]\r\nlocal_time=-3.000000\r\npark_mode=1\r\nvoice_out=1");
        QCOMPARE(pane->timeZoneComboBox()->currentIndex(), 2);
        QVERIFY(pane->isGroupEnabled(C::PowerOffVoltage));
        QVERIFY(pane->isGroupEnabled(C::VoiceVolume));
        // Turning parking off at once greys the voltage and writes park_mode=0.
        pane->touchRadio(C::ParkMode, 1);
        QVERIFY(!pane->isGroupEnabled(C::PowerOffVoltage));
        pane->touchRadio(C::PowerOffVoltage, 3);  // a disabled group does not move
        QCOMPARE(KRTSettingManager::SharedKRTSettingManager().linedSettings(),
                 (std::vector<std::string>{"[blackbox]", "local_time=-3.000000", "park_mode=0", "voice_out=1"}));
    }

    void okWritesOnlyTheTouchedLinesAndKeepsTheRest() {
        // No set= line, a comment, an unknown section and a final line end.
        const std::string original =
            "; hand edited\r\n[capacity]\r\nconst=60\r\nevent=22\r\nmanual=9\r\npark=4\r\n[blackbox]\r\n"
            "front_led=1\r\nmodel=Q260\r\nosd_speed=1\r\nlocal_time=-8.000000\r\nvoice_out=1\r\nvoice_volume=3\r\n"
            "acc_level=3\r\n[vendor]\r\nx=\xc3\xa9\r\n";
        writeFile(cfg(), original);
        const int code = runPane([](KRTSettingViewController& p) {
            QTest::mouseClick(p.memoryPartitionButton(2), Qt::LeftButton);
            QCOMPARE(p.memoryPartitionGraph()->percents(), (std::array<int, 4>{53, 19, 14, 9}));
            p.touchRadio(C::SpeedUnit, 1);
            p.touchRadio(C::SecurityLed, 1);
            p.timeZoneComboBox()->activated(10);
            p.slider(C::ImpactSensitivity)->slider()->triggerAction(QAbstractSlider::SliderToMaximum);
            p.slider(C::VoiceVolume)->slider()->triggerAction(QAbstractSlider::SliderToMinimum);
            QTest::mouseClick(p.clockCheckBox(), Qt::LeftButton);
            QVERIFY(p.datePicker()->isEnabled());
            p.datePicker()->setDateTime(QDateTime(QDate(2027, 3, 4), QTime(5, 6, 7)));
            QTest::mouseClick(p.okButton(), Qt::LeftButton);
        });
        QCOMPARE(code, 1);
        QCOMPARE(alerts_.count, 0);
        // Without set= the clock switch takes the first line, the clock follows it.
        QCOMPARE(readFile(cfg()),
                 std::string("set=1\r\nyear=2027\r\nmonth=3\r\nday=4\r\nhour=5\r\nmin=6\r\nsec=7\r\n[capacity]\r\n"
                             "const=53\r\nevent=19\r\nmanual=9\r\npark=14\r\n[blackbox]\r\nfront_led=0\r\nmodel=Q260\r\n"
                             "osd_speed=2\r\nlocal_time=9.500000\r\nvoice_out=1\r\nvoice_volume=1\r\nacc_level=4\r\n"
                             "[vendor]\r\nx=\xc3\xa9\r\n"));
    }

    void resetShowsTheFactoryFileAndWritesOnlyOnOk() {
        const std::string original = readFile(cfg());
        const std::string factory = *KRTSettingManager::factoryDefaultsText();
        const int code = runPane([&](KRTSettingViewController& p) {
            p.touchRadio(C::Language, 1);
            QTest::mouseClick(p.resetButton(), Qt::LeftButton);
            QCOMPARE(p.selectedIndex(C::Language), 0);
            QCOMPARE(p.timeZoneComboBox()->currentIndex(), 2);  // the factory file's -8
            QCOMPARE(readFile(cfg()), original);
            QTest::keyClick(p.view(), Qt::Key_Return);
        });
        QCOMPARE(code, 1);
        QCOMPARE(readFile(cfg()), factory);
    }

    // Escape is the panes' keyboard test's; the cancel button is this one's.
    void cancelLeavesTheCardAsItWas() {
        const QByteArray before = cardHash(card_);
        QCOMPARE(runPane([&](KRTSettingViewController& p) {
                     QTest::mouseClick(p.memoryPartitionButton(1), Qt::LeftButton);
                     p.touchRadio(C::ParkMode, 1);
                     QTest::mouseClick(p.clockCheckBox(), Qt::LeftButton);
                     QTest::mouseClick(p.cancelButton(), Qt::LeftButton);
                 }),
                 0);
        QCOMPARE(cardHash(card_), before);
        QCOMPARE(alerts_.count, 0);
    }

    void unreadableOrMissingFilesNeverCrashNorGetWritten() {
        // Not UTF-8, then larger than any real file: nothing loads, OK refuses.
        for (const std::string& junk : {std::string("\xff\xfe\x00garbage\x80", 11), std::string(3 << 20, 'a')}) {
            writeFile(cfg(), junk);
            alerts_.count = 0;
            const int code = runPane([](KRTSettingViewController& p) {
                QCOMPARE(p.selectedMemoryPartitionColumn(), 0);
                QCOMPARE(p.timeZoneComboBox()->currentIndex(), 7);  // no line reads as 0 hours
                QTest::mouseClick(p.memoryPartitionButton(2), Qt::LeftButton);
                QTest::mouseClick(p.clockCheckBox(), Qt::LeftButton);
                QTest::mouseClick(p.okButton(), Qt::LeftButton);
            });
            QCOMPARE(code, 1);
            QCOMPARE(alerts_.count, 1);
            QCOMPARE(alerts_.lastMessage, std::string(kMemoryCardErrorMessageKey));
            QVERIFY(readFile(cfg()) == junk);
        }
        // No file: the factory values are shown and OK creates the file.
        fs::remove_all(card_ / "SETTING");
        QCOMPARE(runPane([](KRTSettingViewController& p) { QTest::mouseClick(p.okButton(), Qt::LeftButton); }), 1);
        QCOMPARE(readFile(cfg()), *KRTSettingManager::factoryDefaultsText());
    }

    void readOnlyCardAlertsAndLosesNothing() {
        const QByteArray before = cardHash(card_);
        const std::string mount = card_.string();
        bool locked = ownMounts && ::mount(mount.c_str(), mount.c_str(), nullptr, MS_BIND, nullptr) == 0 &&
                      ::mount(nullptr, mount.c_str(), nullptr, MS_REMOUNT | MS_BIND | MS_RDONLY, nullptr) == 0;
        if (!locked && ::geteuid() != 0) locked = ::chmod((card_ / "SETTING").c_str(), 0555) == 0;
        if (!locked) QSKIP("cannot make a read-only card here");
        const int code = runPane([](KRTSettingViewController& p) {
            p.touchRadio(C::SecurityLed, 1);
            QTest::mouseClick(p.okButton(), Qt::LeftButton);
        });
        if (ownMounts) ::umount2(mount.c_str(), MNT_DETACH);
        ::chmod((card_ / "SETTING").c_str(), 0755);
        QCOMPARE(code, 1);
        QCOMPARE(alerts_.count, 1);
        QCOMPARE(cardHash(card_), before);
        QCOMPARE(KRTSettingManager::SharedKRTSettingManager().valueForKey("front_led="), std::string("0"));
    }

    void slidersShowTheirGuideWhileHeld() {
        auto pane = openPane(readFile(cfg()));
        GuidedSlider* s = pane->slider(C::MotionSensitivity);
        QVERIFY(!s->isGuideVisible());
        emit s->slider()->sliderPressed();
        QVERIFY(s->isGuideVisible());
        s->slider()->triggerAction(QAbstractSlider::SliderToMaximum);
        QCOMPARE(s->highlightedGuide(), 2);
        QCOMPARE(KRTSettingManager::SharedKRTSettingManager().valueForKey("motion_level="), std::string("5"));
        emit s->slider()->sliderReleased();
        QVERIFY(!s->isGuideVisible());
    }

    void tabWalksTheChoicesAndSpaceTakesOne() {
        auto pane = openPane(readFile(cfg()));
        QWidget* root = pane->view();
        root->show();
        QVERIFY(QTest::qWaitForWindowExposed(root));
        root->activateWindow();
        pane->memoryPartitionButton(0)->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), pane->memoryPartitionButton(1));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
        QCOMPARE(pane->selectedMemoryPartitionColumn(), 1);
        QCOMPARE(KRTSettingManager::SharedKRTSettingManager().valueForKey("manual="), std::string("39"));
    }

    void backgroundDragsTheWindow() {
        auto pane = openPane(readFile(cfg()));
        QWidget* root = pane->view();
        root->move(100, 100);
        root->show();
        QVERIFY(QTest::qWaitForWindowExposed(root));
        const QPoint start = root->pos();
        QTest::mousePress(root, Qt::LeftButton, {}, QPoint(5, 5));
        QMouseEvent move(QEvent::MouseMove, QPointF(45, 25), root->mapToGlobal(QPointF(45, 25)), Qt::NoButton,
                         Qt::LeftButton, {});
        QApplication::sendEvent(root, &move);
        QTest::mouseRelease(root, Qt::LeftButton, {}, QPoint(45, 25));
        QCOMPARE(root->pos(), start + QPoint(40, 20));
    }

    void relabelsAndScrollsInJapanese() {
        setLanguage("ja");
        auto pane = openPane(readFile(cfg()));
        pane->applyLanguageSettings();
        pane->view()->show();
        QVERIFY(QTest::qWaitForWindowExposed(pane->view()));
        QVERIFY(pane->resetButton()->text() != QString::fromUtf8("설정값 초기화"));
        // Everything scrolls: the content is taller than the pane.
        QVERIFY(pane->settingsContentView()->height() > pane->scrollView()->viewport()->height());
        setLanguage("en");
    }
};

int main(int argc, char** argv) {
    // A mount namespace of its own, taken while the process has one thread, so
    // the read-only card is a bind mount only this test sees.
    const bool ownMounts = ::geteuid() == 0 && ::unshare(CLONE_NEWNS) == 0 &&
                           ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
    QApplication app(argc, argv);
    KrtPaneTest test;
    test.ownMounts = ownMounts;
    return QTest::qExec(&test, argc, argv);
}

#include "test_krt_setting_pane.moc"
