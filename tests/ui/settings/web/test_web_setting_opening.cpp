// The settings button of a card whose camera keeps its own settings page
// opens that page's window, centred on the main window, and only one of them.
#include <QPushButton>
#include <QTest>
#include <fstream>

#include "../../card_volumes.h"
#include "ui/shell/main_window.h"
#include "ui/controls/image_button.h"
#include "ui/shell/main_window_controller.h"
#include "ui/settings/web/web_setting_window_controller.h"

using namespace tarvik;
namespace fs = std::filesystem;

class TestWebSettingOpening : public QObject {
    Q_OBJECT
private slots:
    void webModelsOpenOneSettingsPage() {
        for (int model : {25, 26}) {
            test::TestVolumes volumes("web-opening");
            const fs::path root = volumes.mount("CAM CARD", model);
            fs::create_directories(root / "SETTING" / "html");
            std::ofstream(root / "SETTING" / "html" / "index.html") << "<html><body>camera</body></html>";

            MainWindowController c;
            c.views().mainWindow->setGeometry(100, 80, 1280, 800);
            c.views().mainWindow->show();
            QVERIFY(c.updateModelInfo());
            c.views().settingsButton->click();
            QPointer<WebSettingWindowController> w = WebSettingWindowController::instance();
            QVERIFY2(w, qPrintable(QString("model %1").arg(model)));
            QCOMPARE(w->files().folder(), root.string());
            QCOMPARE(w->windowModality(), Qt::ApplicationModal);
            QVERIFY((w->geometry().center() - c.views().mainWindow->frameGeometry().center()).manhattanLength() < 4);
            c.views().settingsButton->click();  // ignored while one is open
            QCOMPARE(WebSettingWindowController::instance(), w.data());
            QCOMPARE(c.views().mainWindow->findChildren<WebSettingWindowController*>().size(), 1);
            QVERIFY(QTest::qWaitFor([&] { return w->didLoadHtml(); }, 20000));
            w->cancelButton()->click();
            QVERIFY(QTest::qWaitFor([&] { return w.isNull(); }, 5000));
        }
    }
};

QTEST_MAIN(TestWebSettingOpening)
#include "test_web_setting_opening.moc"
