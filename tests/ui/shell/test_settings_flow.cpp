// From the settings button to the pane: the branch by model type, and what
// cancelling the model picker forgets. (Both pickers confirmed, and the
// local-ID rules, are the panes' keyboard test's.)
#include <QApplication>
#include <QLabel>
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
