// The card picker over "mounted" test volumes and the model picker.

#include <QComboBox>
#include <QKeyEvent>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>
#include <QDialog>

#include "core/device/external_memory.h"
#include "core/device/volume_list.h"
#include "core/settings/m420/m420_setting_manager.h"
#include "ui/device/select_device_view_controller.h"
#include "ui/device/select_flash_memory_view_controller.h"

using namespace tarvik;

namespace {
void makeVolume(const QString& volumes, const QString& name, bool removable) {
    QDir().mkpath(volumes + "/" + name);
    if (removable) {
        QFile f(volumes + "/" + name + "/" + kRemovableMarkerFile);
        QVERIFY(f.open(QIODevice::WriteOnly));
    }
}
}  // namespace

class TestPickers : public QObject {
    Q_OBJECT
private slots:
    void cardPickerListsRemovableVolumesAndPreselectsTheLast() {
        QTemporaryDir volumes;
        qputenv(kVolumesDirEnv, QFile::encodeName(volumes.path()));
        makeVolume(volumes.path(), "CARD_A", true);
        makeVolume(volumes.path(), "DISKIMAGE", false);
        makeVolume(volumes.path(), "CARD_B", true);
        SelectFlashMemoryViewController picker;
        QCOMPARE(picker.comboBox()->count(), 2);
        QCOMPARE(picker.comboBox()->itemText(0), QString("CARD_A"));
        QCOMPARE(picker.comboBox()->currentText(), QString("CARD_B"));
        QCOMPARE(QString::fromStdString(*picker.selectedFlashMeoryUrl()), volumes.path() + "/CARD_B");
        QVERIFY(picker.okButton()->isEnabled());
        picker.comboBox()->setCurrentIndex(-1);
        QVERIFY(!picker.selectedFlashMeoryUrl());
    }

    void cardPickerWithoutCardsOffersOnlyCancel() {
        QTemporaryDir volumes;
        qputenv(kVolumesDirEnv, QFile::encodeName(volumes.path()));
        makeVolume(volumes.path(), "NETWORK", false);
        SelectFlashMemoryViewController picker;
        QCOMPARE(picker.comboBox()->count(), 0);
        QVERIFY(!picker.okButton()->isEnabled());
        QVERIFY(!picker.selectedFlashMeoryUrl());
    }

    void modelPickerListsTheModelTableInOrder() {
        SelectDeviceViewController picker;
        const auto& names = M420SettingManager::SharedM420SettingManager().modelNameList();
        QCOMPARE(picker.comboBox()->count(), static_cast<int>(names.size()));
        QCOMPARE(picker.selectedModelType(), 0);
        picker.comboBox()->setCurrentIndex(6);
        QCOMPARE(picker.comboBox()->currentText(), QString("Q260"));
        QCOMPARE(picker.selectedModelType(), 6);
    }

    // Return confirms and Escape cancels inside a modal run.
    void returnIsOkEscapeIsCancel() {
        for (auto [key, code] : {std::pair{Qt::Key_Return, 1}, std::pair{Qt::Key_Escape, 0}}) {
            SelectDeviceViewController picker;
            QDialog dialog;
            auto* layout = new QVBoxLayout(&dialog);
            layout->addWidget(picker.view());
            QTimer::singleShot(0, [&, key = key] {
                QKeyEvent e(QEvent::KeyPress, key, Qt::NoModifier);
                picker.keyDown(&e);
            });
            QCOMPARE(dialog.exec(), code);
            picker.view()->setParent(nullptr);
        }
    }
};

QTEST_MAIN(TestPickers)
#include "test_pickers.moc"
