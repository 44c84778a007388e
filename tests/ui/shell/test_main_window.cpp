// The main window's own behaviour: its keys, the centring of the tool
// bar and dashboard, the clip list wired to the catalogue, and the menus.
#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QRegularExpression>
#include <QSlider>
#include <QTimer>
#include <QShortcut>
#include <QSettings>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>
#include <filesystem>
#include <fstream>

#include "cardgen/card_plan.h"
#include "ui/shell/catalogue_controller.h"
#include "ui/shell/main_window.h"
#include "ui/shell/main_window_controller.h"
#include "ui/shell/main_window_layout.h"
#include "ui/shell/preferences_menu_controller.h"
#include "ui/base/prefs/notification_center.h"
#include "ui/base/prefs/qsettings_store.h"
#include "ui/controls/image_button.h"
#include "ui/library/playback/save_dialogs.h"

using namespace tarvik;
namespace fs = std::filesystem;

class KeyRecorder : public QObject {
    Q_OBJECT
public:
    QStringList calls;
public slots:
    void appExitButtonTouched(QObject*) { calls << "exit"; }
    void playPauseButtonTouched(QObject*) { calls << "playPause"; }
    void volumeUp() { calls << "volumeUp"; }
};

class MainWindowTest : public QObject {
    Q_OBJECT
    fs::path card_;

    void touch(const fs::path& p) {
        fs::create_directories(p.parent_path());
        std::ofstream(p) << "x";
    }

private slots:
    void initTestCase() {
        card_ = fs::temp_directory_path() / "tarvik-main-window-test";
        fs::remove_all(card_);
        touch(card_ / "root_clip.AVI");
        touch(card_ / "cont_rec/B_F.mp4");
        touch(card_ / "cont_rec/B_R.mp4");
        touch(card_ / "parking_rec/A.mp4");
        touch(card_ / "Saved_Videos/Z.mp4");
        touch(card_ / "option_rec/C.mov");
        touch(card_ / "misc/never.mp4");
        touch(card_ / "cont_rec/notes.txt");
    }
    void cleanupTestCase() { fs::remove_all(card_); }

    void keysReachOnlyActionsTheDelegateHas() {
        MainWindow w;
        KeyRecorder r;
        QVERIFY(!w.handleKeyEvent(Qt::Key_Space, Qt::NoModifier));  // no delegate yet
        w.setKeyEventDelegate(&r);
        QTest::keyClick(&w, Qt::Key_Q);                       // without Control: nothing
        QTest::keyClick(&w, Qt::Key_Q, Qt::ControlModifier);  // quits
        QTest::keyClick(&w, Qt::Key_W, Qt::ControlModifier);  // so does Control-W
        QTest::keyClick(&w, Qt::Key_Space, Qt::ShiftModifier);  // keys without Control ignore the modifiers
        QTest::keyClick(&w, Qt::Key_Up);
        QVERIFY(!w.handleKeyEvent(Qt::Key_Down, Qt::NoModifier));  // the delegate has no volumeDown
        QCOMPARE(r.calls, (QStringList{"exit", "exit", "playPause", "volumeUp"}));
    }

    void groupsStayCentredOnTheDesignWidth() {
        MainWindowController c;
        const MainWindowViews& v = c.views();
        QCOMPARE(MainWindowLayout::centringOffset(nullptr), -512);
        const struct { int width, offset; } cases[] = {{1280, 128}, {1024, 0}, {1023, 0}, {1022, -1}, {900, -62}};
        for (auto k : cases) {
            v.mainWindow->setMinimumSize(0, 0);
            v.mainWindow->resize(k.width, 760);
            c.windowDidResize();
            QCOMPARE(MainWindowLayout::centringOffset(v.mainWindow), k.offset);
            QCOMPARE(v.toolbarBg3->x(), k.offset + 25);
            QCOMPARE(v.dashBg3->x(), k.offset + 18);
            QCOMPARE(v.toolbarButtons->x(), k.offset + 10);
            QCOMPARE(v.dashboardCtrls->x(), k.offset + 43);
        }
        QCOMPARE(v.toolbarBg3->x(), -62 + 25);  // widths and heights are kept
        QCOMPARE(v.toolbarBg3->width(), 974);
    }

    void chosenFolderListsClipsByRecordingType() {
        MainWindowController c;
        const MainWindowViews& v = c.views();
        CatalogueController& cat = c.catalogue();
        QTableView* table = v.fileListTableView;
        cat.chooseFolder(card_.string());
        QCOMPARE(v.selectedDirTextField_OEM->text(), QString::fromStdString(card_.string()));
        auto names = [&] {
            QStringList out;
            for (int r = 0; r < table->model()->rowCount(); ++r) out << table->model()->index(r, 0).data().toString();
            return out;
        };
        // Saved clips first, then by file name alone; nothing from unlisted folders.
        QCOMPARE(names(), (QStringList{"Z.mp4", "A.mp4", "B_F.mp4", "B_R.mp4", "C.mov", "root_clip.AVI"}));
        QCOMPARE(cat.selectedRow(), 0);
        QCOMPARE(table->model()->index(0, 0).data(Qt::ForegroundRole).value<QColor>(), QColor(Qt::magenta));
        QCOMPARE(table->model()->index(4, 0).data(Qt::ForegroundRole).value<QColor>(), QColor(Qt::yellow));

        // The Event filter shows parking clips; the selected button keeps its highlighted image.
        QTest::mouseClick(v.fileListEventButton_OEM, Qt::LeftButton);
        QCOMPARE(names(), (QStringList{"A.mp4"}));
        QCOMPARE(v.fileListEventButton_OEM->imageName(), QString("sorting_btn_60_2"));
        QVERIFY(!v.fileListEventButton_OEM->allowAutoMouseEventImage());
        QCOMPARE(v.fileListAllButton_OEM->imageName(), QString("sorting_btn_60_1"));
        QTest::mouseClick(v.fileListManualButton_OEM, Qt::LeftButton);
        QCOMPARE(names(), (QStringList{"C.mov"}));
        // The same filters from the keyboard (the test X server has no window
        // manager to make the window active, so the shortcuts are fired directly).
        auto press = [&](QKeySequence keys) {
            for (QShortcut* s : v.mainWindow->findChildren<QShortcut*>())
                if (s->key() == keys) emit s->activated();
        };
        press(QKeySequence(Qt::CTRL | Qt::Key_2));
        QCOMPARE(names(), (QStringList{"B_F.mp4", "B_R.mp4"}));
        press(QKeySequence(Qt::CTRL | Qt::Key_5));
        QCOMPARE(names(), (QStringList{"C.mov"}));
    }

    void speedUnitMenuStoresTheUnitAndAnnouncesChanges() {
        QSettings("Tarvik", "Tarvik Viewer").clear();
        QSettingsStore::shared().synchronize();
        PreferencesMenuController* menus = nullptr;
        MainWindowController c;
        menus = &c.preferencesMenu();
        menus->buildMenus();
        // First start: 2 is stored and km/h is marked.
        QCOMPARE(QSettingsStore::shared().integer("OrvoViewerSpeedUnit"), std::optional<int>(2));
        QVERIFY(menus->unitKmphMenuItem->isChecked());
        QVERIFY(!menus->unitMphMenuItem->isChecked());
        QSignalSpy unit(&NotificationCenter::shared(), &NotificationCenter::refreshSpeedUnit);
        menus->unitKmphMenuItem->trigger();  // 0 differs from the stored 2
        QCOMPARE(unit.count(), 1);
        QCOMPARE(QSettingsStore::shared().integer("OrvoViewerSpeedUnit"), std::optional<int>(0));
        menus->unitKmphMenuItem->trigger();
        QCOMPARE(unit.count(), 1);
        menus->unitMphMenuItem->trigger();
        QVERIFY(menus->unitMphMenuItem->isChecked() && !menus->unitKmphMenuItem->isChecked());
        QCOMPARE(unit.count(), 2);
    }

    void aClickOnTheVolumeGrooveJumpsThere() {
        MainWindowController c;
        c.showMainWindow();
        QVERIFY(QTest::qWaitForWindowExposed(c.mainWindow()));
        QSlider* volume = c.views().volumeSliderView;
        volume->setEnabled(true);
        QTest::mouseClick(volume, Qt::LeftButton, {}, QPoint(volume->width() / 4, volume->height() / 2));
        QVERIFY2(qAbs(volume->value() - 25) <= 6, qPrintable(QString::number(volume->value())));
    }

    void frenchAndJapaneseReachEveryTextAndQtsDialogs() {
        // What a look at the window and the save panel in both languages
        // would check.
        QSettingsStore::shared().setString("OrvoViewerLanguage", "en");
        QSettingsStore::shared().setStringList("AppleLanguages", {"en"});
        MainWindowController c;
        c.showMainWindow();
        QVERIFY(QTest::qWaitForWindowExposed(c.mainWindow()));
        c.catalogue().chooseFolder(card_.string());
        PreferencesMenuController& menus = c.preferencesMenu();
        QTRY_VERIFY(menus.languageMenu);
        for (QAction* item : {menus.languageFrenchMenuItem, menus.languageJapaneseMenuItem}) {
            const QString before = c.views().playPauseButton->toolTip();
            item->trigger();
            QTRY_VERIFY(c.views().playPauseButton->toolTip() != before);
            QVERIFY(item->isChecked() && !menus.languageEnglishMenuItem->isChecked());
            QVERIFY(c.views().fileListAllButton_OEM->text() != QString("파일_전체"));
            for (ImageButton* b : c.mainWindow()->findChildren<ImageButton*>()) {
                if (!b->isVisibleTo(c.mainWindow())) continue;
                QVERIFY2(!b->toolTip().isEmpty(), qPrintable(b->objectName()));
                // No Korean key left untranslated.
                QVERIFY2(!b->toolTip().contains(QRegularExpression("[\\x{AC00}-\\x{D7A3}]")),
                         qPrintable(b->objectName() + ": " + b->toolTip()));
            }
            QVERIFY(!c.views().goHomepageButton->isVisibleTo(c.mainWindow()));

            QString fileNameLabel;
            QTimer::singleShot(500, [&] {
                auto* panel = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
                if (!panel) return;
                if (auto* label = panel->findChild<QLabel*>("fileNameLabel")) fileNameLabel = label->text();
                panel->reject();
            });
            QVERIFY(QtSaveDialogs().savePath(c.mainWindow(), "20261121_083200.avi").isEmpty());
            QVERIFY2(!fileNameLabel.isEmpty() && fileNameLabel != "File &name:", qPrintable(fileNameLabel));
        }
        menus.languageEnglishMenuItem->trigger();
    }

    void storedPortugueseMarksNoLanguageItem() {
        // Portuguese is reached only through a stored value and has no item.
        QSettingsStore::shared().setString("OrvoViewerLanguage", "pt");
        MainWindowController c;
        c.preferencesMenu().buildMenus();
        for (QAction* a : c.preferencesMenu().languageMenu->actions()) QVERIFY(!a->isChecked());
    }
};

QTEST_MAIN(MainWindowTest)
#include "test_main_window.moc"
