// The main window follows the card: a recognised camera card shows its model
// and its clips; without one the model is unknown and settings are off.
#include <QLabel>
#include <QMessageBox>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>
#include <optional>

#include "../card_volumes.h"
#include "core/settings/m420/m420_model_types.h"
#include "ui/shell/card_controller.h"
#include "ui/shell/main_window.h"
#include "ui/shell/main_window_controller.h"
#include "ui/controls/image_button.h"
#include "ui/l10n/orvo_languages.h"

using namespace tarvik;
namespace fs = std::filesystem;

class MainWindowCardTest : public QObject {
    Q_OBJECT
    std::optional<test::TestVolumes> volumes_;

    // A card with one front and rear pair of clips.
    fs::path mountCard(const std::string& name, int modelType) {
        fs::path root = volumes_->mount(name, modelType);
        fs::create_directories(root / "cont_rec");
        std::ofstream(root / "cont_rec" / "20261121_083000_F.mp4") << "x";
        std::ofstream(root / "cont_rec" / "20261121_083000_R.mp4") << "x";
        return root;
    }

private slots:
    void init() { volumes_.emplace("window"); }
    void cleanup() { volumes_.reset(); }

    void noCardLeavesTheModelUnknown() {
        mountCard("USB_STICK", -1);  // removable, but no camera wrote it
        MainWindowController c;
        QVERIFY(!c.updateModelInfo());
        QCOMPARE(c.views().modelTextField->text(), tr_k("unknown"));
        QVERIFY(!c.views().settingsButton->isEnabled());
        QCOMPARE(c.views().fileListTableView->model()->rowCount(), 0);
    }

    // A recognised card shows its model and clips; unmounted, the list empties.
    void recognisedCardUntilItIsUnmounted() {
        fs::path card = mountCard("SDCARD", cardgen::demoModelType());
        MainWindowController c;
        QVERIFY(c.updateModelInfo());
        QVERIFY(c.views().settingsButton->isEnabled());
        QVERIFY(!c.views().modelTextField->text().isEmpty());
        QVERIFY(c.views().modelTextField->text() != tr_k("unknown"));
        QCOMPARE(c.views().fileListTableView->model()->rowCount(), 2);
        fs::remove_all(card);
        c.volumeMountHandler();
        QCOMPARE(c.views().fileListTableView->model()->rowCount(), 0);
        QCOMPARE(c.views().modelTextField->text(), tr_k("unknown"));
    }

    void startFallsBackToTheDemoFolderWithoutACard() {
        fs::path demo = volumes_->root().parent_path() / "tarvik-demo-folder-test";
        fs::remove_all(demo);
        fs::create_directories(demo / "evt_rec");
        std::ofstream(demo / "evt_rec" / "crash.avi") << "x";
        std::string error;
        QVERIFY2(cardgen::writeSettingsFiles(demo, cardgen::demoModelType(), &error), error.c_str());
        MainWindowController c;
        c.setFallbackFolder(QString::fromStdString(demo.string()));
        QSignalSpy up(&c, &MainWindowController::startedUp);
        c.start(10);
        QTRY_COMPARE(up.count(), 1);
        QCOMPARE(c.views().fileListTableView->model()->rowCount(), 1);
        // The demo card names its model, as a camera card does; settings stay with a real card.
        QVERIFY(c.views().modelTextField->text() != tr_k("unknown"));
        QVERIFY(!c.views().modelTextField->text().isEmpty());
        QVERIFY(!c.views().settingsButton->isEnabled());
        fs::remove_all(demo);
    }

    // --folder of a folder that is not there says so over an empty list.
    void missingStartFolderIsSaid() {
        MainWindowController c;
        c.setStartFolder("/no/such/folder");
        QSignalSpy up(&c, &MainWindowController::startedUp);
        c.start(10);
        QTRY_COMPARE(up.count(), 1);
        QMessageBox* box = nullptr;
        QTRY_VERIFY((box = c.views().mainWindow->findChild<QMessageBox*>("missingFolderAlert")));
        QVERIFY(box->text().contains("/no/such/folder"));
        QCOMPARE(c.views().fileListTableView->model()->rowCount(), 0);
        box->accept();
    }
};

QTEST_MAIN(MainWindowCardTest)
#include "test_main_window_card.moc"
