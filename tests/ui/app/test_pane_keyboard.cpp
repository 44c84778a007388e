// Return and Escape as a user gives them: to the control that has the focus
// in the shown pane or picker, on a real X server. Return confirms (the card
// changes as the pane was set), Escape cancels (not one byte of the card changes).
#include <QAbstractButton>
#include <QApplication>
#include <QButtonGroup>
#include <QComboBox>
#include <QCryptographicHash>
#include <QDirIterator>
#include <QScrollArea>
#include <QScopeGuard>
#include <QTest>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "cardgen/card_plan.h"
#include "core/device/external_memory.h"
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
using tarvik::test::ModalScript;
namespace fs = std::filesystem;

namespace {

// Every file of the card with its bytes, so any change anywhere shows.
QByteArray cardHash(const fs::path& root) {
    QStringList files;
    QDirIterator it(QString::fromStdString(root.string()), QDir::Files | QDir::Hidden | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) files << it.next();
    files.sort();
    QCryptographicHash h(QCryptographicHash::Sha256);
    for (const QString& f : files) {
        QFile file(f);
        h.addData((f + "\n").toUtf8());
        if (file.open(QIODevice::ReadOnly)) h.addData(file.readAll());
    }
    return h.result().toHex();
}

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

// A window a failed step left open would keep the test waiting for ever.
auto cancelIfFailed(OrvoViewController* pane) {
    return qScopeGuard([pane] {
        if (QTest::currentTestFailed() && pane) pane->cancelButtonTouched();
    });
}

}  // namespace

class PaneKeyboardTest : public QObject {
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
        volumes_ = fs::temp_directory_path() / ("tarvik-volumes-keys-" + std::to_string(getpid()));
        fs::remove_all(volumes_);
        fs::create_directories(volumes_);
        setenv("TARVIK_VOLUMES_DIR", volumes_.c_str(), 1);
        M420SettingManager::ChagneM420SettingManager(std::make_unique<M420SettingManager>());
    }
    void cleanup() { fs::remove_all(volumes_); }

    // On each of the four tabs, with a control of that tab focused.
    void m420PaneOnEveryTab_data() {
        QTest::addColumn<int>("tab");
        QTest::addColumn<int>("key");
        static const char* tabs[] = {"commonTabButton", "alwaysTabButton", "parkingTabButton", "etcTabButton"};
        for (int t = 0; t < 4; ++t) {
            QTest::newRow(QByteArray(tabs[t]) + " Return") << t << int(Qt::Key_Return);
            QTest::newRow(QByteArray(tabs[t]) + " Escape") << t << int(Qt::Key_Escape);
        }
    }
    void m420PaneOnEveryTab() {
        QFETCH(int, tab);
        QFETCH(int, key);
        static const char* tabs[] = {"commonTabButton", "alwaysTabButton", "parkingTabButton", "etcTabButton"};
        const fs::path card = mountCard("M420CARD", 8);
        const QByteArray before = cardHash(card);
        MainWindowController c;
        bool shown = false;
        ModalScript script({[&](QWidget*, OrvoViewController* p) {
            auto guard = cancelIfFailed(p);
            auto* pane = qobject_cast<M420SettingViewController*>(p);
            QVERIFY(pane);
            shown = true;
            // A setting changed with the mouse, then the tab and its control.
            QAbstractButton* column = pane->control(m420pane::Control::Partition)->buttons()->button(1);
            QTest::mouseClick(column, Qt::LeftButton);
            QTest::mouseClick(pane->view()->findChild<QAbstractButton*>(tabs[tab]), Qt::LeftButton);
            QWidget* control = focusableOnShownTab(pane->view());
            QVERIFY(control);
            pressOn(control, Qt::Key(key));
        }});
        c.card().openChosenCard(card.string());
        QVERIFY(shown);
        QVERIFY(script.done());
        if (key == Qt::Key_Return) QVERIFY(cardHash(card) != before);
        else QCOMPARE(cardHash(card), before);
    }

    void krtPane_data() {
        QTest::addColumn<int>("key");
        QTest::newRow("Return") << int(Qt::Key_Return);
        QTest::newRow("Escape") << int(Qt::Key_Escape);
    }
    void krtPane() {
        QFETCH(int, key);
        const fs::path card = mountCard("KRTCARD", 6);
        const QByteArray before = cardHash(card);
        MainWindowController c;
        bool shown = false;
        ModalScript script({[&](QWidget*, OrvoViewController* p) {
            auto guard = cancelIfFailed(p);
            auto* pane = qobject_cast<KRTSettingViewController*>(p);
            QVERIFY(pane);
            shown = true;
            QAbstractButton* partition = pane->memoryPartitionButton(pane->memoryPartitionButton(1)->isChecked() ? 2 : 1);
            QTest::mouseClick(partition, Qt::LeftButton);
            pressOn(partition, Qt::Key(key));
        }});
        c.card().openChosenCard(card.string());
        QVERIFY(shown);
        QVERIFY(script.done());
        if (key == Qt::Key_Return) QVERIFY(cardHash(card) != before);
        else QCOMPARE(cardHash(card), before);
    }

    // A card the viewer does not know: Return in the card picker, Return in
    // the model picker (a model chosen with the arrow keys), then the pane.
    void pickersConfirmWithReturn() {
        const fs::path card = mountCard("BLANK", -1);
        const QByteArray before = cardHash(card);
        MainWindowController c;
        bool paneShown = false;
        ModalScript script({
            [](QWidget*, OrvoViewController* p) {
                auto guard = cancelIfFailed(p);
                auto* picker = qobject_cast<SelectFlashMemoryViewController*>(p);
                QVERIFY(picker);
                QCOMPARE(picker->comboBox()->currentText(), QString("BLANK"));
                pressOn(picker->comboBox(), Qt::Key_Return);
            },
            [](QWidget*, OrvoViewController* p) {
                auto guard = cancelIfFailed(p);
                auto* picker = qobject_cast<SelectDeviceViewController*>(p);
                QVERIFY(picker);
                pressOn(picker->comboBox(), Qt::Key_Down);
                QCOMPARE(picker->comboBox()->currentIndex(), 1);
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
        QCOMPARE(M420SettingManager::SharedM420SettingManager().modelType(), 1);
        QCOMPARE(cardHash(card), before);
    }

    void pickerCancelsWithEscape() {
        const fs::path card = mountCard("BLANK", -1);
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
