// From the settings button to the pane: card picker, model picker with its
// local-ID rules, the branch by model type, and what cancelling forgets.
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QMessageBox>
#include <QTest>
#include <optional>

#include "../card_volumes.h"
#include "modal_script.h"
#include "core/settings/m420/m420_setting_manager.h"
#include "ui/shell/card_controller.h"
#include "ui/shell/main_window_controller.h"
#include "ui/base/pane/setting_window.h"
#include "ui/device/select_device_view_controller.h"
#include "ui/device/select_flash_memory_view_controller.h"
#include "ui/settings/m420/m420_setting_view_controller.h"

using namespace tarvik;
using tarvik::test::ModalScript;
namespace fs = std::filesystem;

namespace {
M420SettingManager& manager() { return M420SettingManager::SharedM420SettingManager(); }
}  // namespace

class SettingsFlowTest : public QObject {
    Q_OBJECT
    std::optional<test::TestVolumes> volumes_;

private slots:
    void init() {
        volumes_.emplace("flow");
        M420SettingManager::ChagneM420SettingManager(std::make_unique<M420SettingManager>());
    }
    void cleanup() { volumes_.reset(); }

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
        const fs::path card = volumes_->mount("BLANK", -1);
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
        volumes_->mount("BLANK", -1);
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
    // refreshes the model. (The KRT pane and the web models' page are opened
    // from the settings button in their own flow tests.)
    void chosenCardOpensItsModelsPane() {
        const fs::path card = volumes_->mount("M640CARD", 5);
        const std::string before = test::readFile(card / "SETTING" / "setup.cfg");
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
        const std::string after = test::readFile(card / "SETTING" / "setup.cfg");
        QCOMPARE(after.size(), before.size());
        QCOMPARE(after.substr(0, 380), before.substr(0, 380));
        QCOMPARE(after.substr(412), before.substr(412));
        QCOMPARE(c.views().modelTextField->text(), QString("M640"));
    }
};

QTEST_MAIN(SettingsFlowTest)
#include "test_settings_flow.moc"
