// From the settings button to the pane: card picker, model picker with its
// local-ID rules, the branch by model type, and what cancelling forgets.
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <cstdlib>
#include <deque>
#include <filesystem>
#include <fstream>
#include <functional>

#include "cardgen/card_plan.h"
#include "modal_script.h"
#include "core/device/external_memory.h"
#include "core/settings/m420/m420_setting_manager.h"
#include "ui/shell/card_controller.h"
#include "ui/shell/main_window_controller.h"
#include "ui/base/pane/setting_window.h"
#include "ui/device/select_device_view_controller.h"
#include "ui/device/select_flash_memory_view_controller.h"
#include "ui/settings/m420/m420_setting_view_controller.h"
#include "ui/settings/web/web_setting_window_controller.h"

using namespace tarvik;
using tarvik::test::ModalScript;
namespace fs = std::filesystem;

namespace {

M420SettingManager& manager() { return M420SettingManager::SharedM420SettingManager(); }

std::string fileText(const fs::path& p) {
    std::ifstream in(p, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

}  // namespace

class SettingsFlowTest : public QObject {
    Q_OBJECT
    fs::path volumes_;

    fs::path mountCard(const std::string& name, int modelType) {
        fs::path root = volumes_ / name;
        fs::create_directories(root);
        std::ofstream(root / kRemovableMarkerFile);
        if (modelType >= 0) cardgen::writeSettingsFiles(root, modelType);
        return root;
    }

private slots:
    void init() {
        volumes_ = fs::temp_directory_path() / "tarvik-volumes-flow";
        fs::remove_all(volumes_);
        fs::create_directories(volumes_);
        setenv("TARVIK_VOLUMES_DIR", volumes_.c_str(), 1);
        M420SettingManager::ChagneM420SettingManager(std::make_unique<M420SettingManager>());
    }
    void cleanup() { fs::remove_all(volumes_); }

    // An unknown card: card picker, then the model picker; Q810 UK loads
    // with local ID 3 and Q810 with 0, and the pane opens. Cancel writes nothing.
    void unknownCardGoesThroughBothPickers_data() {
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("localID");
        QTest::newRow("Q810 UK") << 4 << 3;
        QTest::newRow("Q810") << 3 << 0;
    }
    void unknownCardGoesThroughBothPickers() {
        QFETCH(int, type);
        QFETCH(int, localID);
        const fs::path card = mountCard("BLANK", -1);
        MainWindowController c;
        manager().setLocalID(-1);
        bool paneOpened = false;
        ModalScript script({
            [](QWidget*, OrvoViewController* p) {
                auto* picker = qobject_cast<SelectFlashMemoryViewController*>(p);
                QVERIFY(picker);
                QCOMPARE(picker->comboBox()->currentText(), QString("BLANK"));
                picker->okButtonTouched();
            },
            [type](QWidget*, OrvoViewController* p) {
                auto* picker = qobject_cast<SelectDeviceViewController*>(p);
                QVERIFY(picker);
                picker->comboBox()->setCurrentIndex(type);
                picker->okButtonTouched();
            },
            [&](QWidget*, OrvoViewController* p) {
                auto* pane = qobject_cast<M420SettingViewController*>(p);
                QVERIFY(pane);
                paneOpened = true;
                pane->cancelButtonTouched();
            },
        });
        c.card().settingButtonTouched();
        QVERIFY(script.done());
        QVERIFY(paneOpened);
        QCOMPARE(manager().modelType(), type);
        QCOMPARE(manager().localID(), localID);
        QCOMPARE(manager().tz_key(), localID == 3 ? std::string("GMT Standard Time") : "Pacific Standard Time");
        QVERIFY(!fs::exists(card / "SETTING"));
    }

    void cancellingTheModelPickerForgetsTheCard() {
        mountCard("BLANK", -1);
        MainWindowController c;
        ModalScript script({
            [](QWidget*, OrvoViewController* p) { qobject_cast<PickerPane*>(p)->okButtonTouched(); },
            [](QWidget*, OrvoViewController* p) {
                QVERIFY(qobject_cast<SelectDeviceViewController*>(p));
                p->cancelButtonTouched();
            },
        });
        c.card().settingButtonTouched();
        QVERIFY(script.done());
        QVERIFY(manager().settingDirPath().empty());
    }

    // A named card opens the pane for its model; OK writes it back and
    // refreshes the model; the KRT and web models never reach this pane.
    void chosenCardBranchesByModel() {
        const fs::path card = mountCard("M640CARD", 5);
        const std::string before = fileText(card / "SETTING" / "setup.cfg");
        MainWindowController c;
        ModalScript script({[](QWidget*, OrvoViewController* p) {
            auto* pane = qobject_cast<M420SettingViewController*>(p);
            QVERIFY(pane);
            pane->okButtonTouched();
        }});
        c.card().openChosenCard(card.string());
        QVERIFY(script.done());
        // Untouched controls write back what they read; only the zone name
        // (at 380) follows the offset's index in the paired lists.
        const std::string after = fileText(card / "SETTING" / "setup.cfg");
        QCOMPARE(after.size(), before.size());
        QCOMPARE(after.substr(0, 380), before.substr(0, 380));
        QCOMPARE(after.substr(412), before.substr(412));
        QCOMPARE(c.views().modelTextField->text(), QString("M640"));

        // KRT: its own pane, modal until answered.
        const fs::path krt = mountCard("KRTCARD", 6);
        const std::string krtBefore = fileText(krt / "SETTING" / "blackbox.cfg");
        QVERIFY(!krtBefore.empty());
        ModalScript answer({[](QWidget* w, OrvoViewController* p) {
            QVERIFY(!qobject_cast<M420SettingViewController*>(p));
            if (p) p->cancelButtonTouched();
            else w->close();
        }});
        c.card().openChosenCard(krt.string());
        QVERIFY(answer.done());
        QCOMPARE(manager().modelType(), 6);
        QCOMPARE(fileText(krt / "SETTING" / "blackbox.cfg"), krtBefore);

        // Web models: the camera's page in a window that does not block the loop;
        // a second request while it is open brings up no second window.
        const fs::path web = mountCard("WEBCARD", 25);
        c.card().openChosenCard(web.string());
        QCOMPARE(manager().modelType(), 25);
        QPointer<WebSettingWindowController> window = WebSettingWindowController::instance();
        QVERIFY(window);
        QVERIFY(window->isModal() || window->windowModality() == Qt::ApplicationModal);
        c.card().openChosenCard(web.string());
        QCOMPARE(WebSettingWindowController::instance(), window.data());
        window->reject();
        QVERIFY(!WebSettingWindowController::instance());
    }
};

QTEST_MAIN(SettingsFlowTest)
#include "test_settings_flow.moc"
