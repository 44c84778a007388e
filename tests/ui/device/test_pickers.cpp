// The card picker over "mounted" test volumes. The model picker, and both
// pickers' keys, are driven the user's way in the settings flow tests.

#include <QComboBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include "core/device/external_memory.h"
#include "core/device/volume_list.h"
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
};

QTEST_MAIN(TestPickers)
#include "test_pickers.moc"
