// The settings button on a Q260 card opens the KRT pane; OK refreshes the
// window's model information, Escape changes nothing.
#include <QApplication>
#include <QLabel>
#include <QTest>
#include <QTimer>
#include <functional>
#include <optional>

#include "../card_volumes.h"
#include "ui/shell/main_window_controller.h"
#include "ui/base/pane/orvo_view_controller.h"
#include "ui/base/pane/setting_window.h"
#include "ui/controls/image_button.h"
#include "ui/l10n/orvo_languages.h"

using namespace tarvik;
namespace fs = std::filesystem;

namespace {

// Acts on the pane once its modal window is up (polling: the button's click
// only returns when the window closes).
void whenPaneShows(const std::function<void(SettingWindow*)>& act, int triesLeft = 100) {
    QTimer::singleShot(50, [act, triesLeft] {
        if (auto* w = qobject_cast<SettingWindow*>(QApplication::activeModalWidget()); w && w->isVisible())
            act(w);
        else if (triesLeft > 0)
            whenPaneShows(act, triesLeft - 1);
    });
}

ImageButton* buttonTitled(QWidget* w, const QString& title) {
    for (ImageButton* b : w->findChildren<ImageButton*>())
        if (b->text() == title) return b;
    return nullptr;
}

}  // namespace

class KrtSettingsFlowTest : public QObject {
    Q_OBJECT
    std::optional<test::TestVolumes> volumes_;

private slots:
    void init() { volumes_.emplace("krt-flow"); }
    void cleanup() { volumes_.reset(); }

    void settingsButtonOpensTheKrtPane() {
        const fs::path cfg = volumes_->mount("SDCARD", 6) / "SETTING" / "blackbox.cfg";
        const std::string original = test::readFile(cfg);
        MainWindowController c;
        QVERIFY(c.updateModelInfo());
        QCOMPARE(c.views().modelTextField->text(), QString("Q260"));

        // Escape: closed, nothing written, nothing refreshed. (The button
        // itself refreshes before opening, so the mark goes in while it is open.)
        bool shown = false;
        whenPaneShows([&](SettingWindow* w) {
            c.views().modelTextField->setText("stale");
            shown = buttonTitled(w, tr_k("설정값 초기화")) != nullptr;
            QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : w, Qt::Key_Escape);
        });
        c.views().settingsButton->click();
        QVERIFY(shown);
        QCOMPARE(c.views().modelTextField->text(), QString("stale"));
        QCOMPARE(test::readFile(cfg), original);

        // OK: saved and the model shown again.
        whenPaneShows([&](SettingWindow* w) {
            c.views().modelTextField->setText("stale");
            ImageButton* ok = buttonTitled(w, tr_k("확인"));
            QVERIFY(ok);
            QTest::mouseClick(ok, Qt::LeftButton);
        });
        c.views().settingsButton->click();
        QCOMPARE(c.views().modelTextField->text(), QString("Q260"));
        QCOMPARE(test::readFile(cfg), original);  // nothing was changed, so the same bytes
    }
};

QTEST_MAIN(KrtSettingsFlowTest)
#include "test_krt_settings_flow.moc"
