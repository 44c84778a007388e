// Return and Escape as a user gives them: to the control that has the focus
// in the shown pane or picker, on a real X server. Return confirms (the card
// changes as the pane was set), Escape cancels (not one byte of the card changes).
#include <QAbstractButton>
#include <QApplication>
#include <QButtonGroup>
#include <QComboBox>
#include <QScrollArea>
#include <QScopeGuard>
#include <QTest>
#include <optional>

#include "../card_volumes.h"
#include "core/settings/m420/m420_setting_manager.h"
#include "modal_script.h"
#include "ui/shell/card_controller.h"
#include "ui/shell/main_window_controller.h"
#include "ui/device/select_device_view_controller.h"
#include "ui/device/select_flash_memory_view_controller.h"
#include "ui/settings/krt/krt_setting_view_controller.h"
#include "ui/settings/krt/labelled_radio_button.h"
#include "ui/settings/m420/m420_control_widget.h"
#include "ui/settings/m420/m420_setting_view_controller.h"

using namespace tarvik;
using tarvik::test::cardHash;
using tarvik::test::ModalScript;
namespace fs = std::filesystem;

namespace {

// Gives `control` the keyboard focus as a click or Tab would, in its window
// made active, and presses `key` on whatever then has the focus.
void pressOn(QWidget* control, Qt::Key key) {
    QWidget* window = control->window();
    window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window));
    control->setFocus(Qt::TabFocusReason);
    QTRY_COMPARE(QApplication::focusWidget(), control);
    QTest::keyClick(QApplication::focusWidget(), key);
    // Return and Escape end the modal run; a key that never arrived leaves it open.
    if (key == Qt::Key_Return || key == Qt::Key_Escape) QTRY_VERIFY_WITH_TIMEOUT(!window->isVisible(), 3000);
}

// A control of the tab shown in the M420 pane that takes the focus.
QWidget* focusableOnShownTab(QWidget* paneView) {
    auto* scroll = paneView->findChild<QScrollArea*>();
    if (!scroll || !scroll->widget()) return nullptr;
    for (QWidget* w : scroll->widget()->findChildren<QWidget*>())
        if (w->isVisible() && w->isEnabled() && (w->focusPolicy() & Qt::TabFocus)) return w;
    return nullptr;
}

const char* const kM420Tabs[] = {"commonTabButton", "alwaysTabButton", "parkingTabButton", "etcTabButton"};

// Return writes what the pane was set to; Escape leaves every byte as it was.
void expectCardAfterKey(int key, const fs::path& card, const QByteArray& before) {
    if (key == Qt::Key_Return) QVERIFY(cardHash(card) != before);
    else QCOMPARE(cardHash(card), before);
}

// A window a failed step left open would keep the test waiting for ever.
auto cancelIfFailed(OrvoViewController* pane) {
    return qScopeGuard([pane] {
        if (QTest::currentTestFailed() && pane) pane->cancelButtonTouched();
    });
}

}  // namespace

class PaneKeyboardTest : public QObject {
    Q_OBJECT
    std::optional<test::TestVolumes> volumes_;

private slots:
    void init() {
        volumes_.emplace("keys");
        M420SettingManager::ChagneM420SettingManager(std::make_unique<M420SettingManager>());
    }
    void cleanup() { volumes_.reset(); }

    // On each of the M420 pane's four tabs, with a control of that tab
    // focused, and on the KRT pane's partition choice.
    void paneTakesReturnAndEscape_data() {
        QTest::addColumn<int>("tab");  // none for the KRT pane
        QTest::addColumn<int>("key");
        for (int t = -1; t < 4; ++t)
            for (int key : {int(Qt::Key_Return), int(Qt::Key_Escape)})
                QTest::newRow(qPrintable(QString(t < 0 ? "KRT" : kM420Tabs[t]) + (key == Qt::Key_Return ? " Return" : " Escape")))
                    << t << key;
    }
    void paneTakesReturnAndEscape() {
        QFETCH(int, tab);
        QFETCH(int, key);
        const fs::path card = tab < 0 ? volumes_->mount("KRTCARD", 6) : volumes_->mount("M420CARD", 8);
        const QByteArray before = cardHash(card);
        MainWindowController c;
        bool shown = false;
        ModalScript script({[&](QWidget*, OrvoViewController* p) {
            auto guard = cancelIfFailed(p);
            shown = true;
            if (tab < 0) {
                auto* pane = qobject_cast<KRTSettingViewController*>(p);
                QVERIFY(pane);
                QAbstractButton* partition = pane->memoryPartitionButton(pane->memoryPartitionButton(1)->isChecked() ? 2 : 1);
                QTest::mouseClick(partition, Qt::LeftButton);
                pressOn(partition, Qt::Key(key));
                return;
            }
            auto* pane = qobject_cast<M420SettingViewController*>(p);
            QVERIFY(pane);
            // A setting changed with the mouse, then the tab and its control.
            QAbstractButton* column = pane->control(m420pane::Control::Partition)->buttons()->button(1);
            QTest::mouseClick(column, Qt::LeftButton);
            QTest::mouseClick(pane->view()->findChild<QAbstractButton*>(kM420Tabs[tab]), Qt::LeftButton);
            QWidget* control = focusableOnShownTab(pane->view());
            QVERIFY(control);
            pressOn(control, Qt::Key(key));
        }});
        c.card().openChosenCard(card.string());
        QVERIFY(shown);
        QVERIFY(script.done());
        expectCardAfterKey(key, card, before);
    }

    // A card the viewer does not know: Return in the card picker, Return in
    // the model picker (a model chosen with the arrow keys), then the pane,
    // cancelled. Q810 UK loads with local ID 3 (and its time zone), Q810 with 0.
    void pickersConfirmWithReturn_data() {
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("localID");
        QTest::newRow("Q810 UK") << 4 << 3;
        QTest::newRow("Q810") << 3 << 0;
    }
    void pickersConfirmWithReturn() {
        QFETCH(int, type);
        QFETCH(int, localID);
        const fs::path card = volumes_->mount("BLANK", -1);
        const QByteArray before = cardHash(card);
        MainWindowController c;
        M420SettingManager::SharedM420SettingManager().setLocalID(-1);
        bool paneShown = false;
        ModalScript script({
            [](QWidget*, OrvoViewController* p) {
                auto guard = cancelIfFailed(p);
                auto* picker = qobject_cast<SelectFlashMemoryViewController*>(p);
                QVERIFY(picker);
                QCOMPARE(picker->comboBox()->currentText(), QString("BLANK"));
                pressOn(picker->comboBox(), Qt::Key_Return);
            },
            [type](QWidget*, OrvoViewController* p) {
                auto guard = cancelIfFailed(p);
                auto* picker = qobject_cast<SelectDeviceViewController*>(p);
                QVERIFY(picker);
                for (int i = 0; i < type; ++i) pressOn(picker->comboBox(), Qt::Key_Down);
                QCOMPARE(picker->comboBox()->currentIndex(), type);
                pressOn(picker->comboBox(), Qt::Key_Return);
            },
            [&](QWidget*, OrvoViewController* p) {
                auto guard = cancelIfFailed(p);
                auto* pane = qobject_cast<M420SettingViewController*>(p);
                QVERIFY(pane);
                paneShown = true;
                pressOn(focusableOnShownTab(pane->view()), Qt::Key_Escape);
            },
        });
        c.card().settingButtonTouched();
        QVERIFY(script.done());
        QVERIFY(paneShown);
        const M420SettingManager& m = M420SettingManager::SharedM420SettingManager();
        QCOMPARE(m.modelType(), type);
        QCOMPARE(m.localID(), localID);
        QCOMPARE(m.tz_key(), localID == 3 ? std::string("GMT Standard Time") : "Pacific Standard Time");
        QCOMPARE(cardHash(card), before);
    }

    void pickerCancelsWithEscape() {
        const fs::path card = volumes_->mount("BLANK", -1);
        const QByteArray before = cardHash(card);
        MainWindowController c;
        ModalScript script({[](QWidget*, OrvoViewController* p) {
            auto guard = cancelIfFailed(p);
            auto* picker = qobject_cast<SelectFlashMemoryViewController*>(p);
            QVERIFY(picker);
            pressOn(picker->comboBox(), Qt::Key_Escape);
        }});
        c.card().settingButtonTouched();
        QVERIFY(script.done());
        QVERIFY(!QApplication::activeModalWidget());
        QCOMPARE(cardHash(card), before);
    }
};

QTEST_MAIN(PaneKeyboardTest)
#include "test_pane_keyboard.moc"
