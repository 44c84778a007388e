// The modal pane window: centring over the parent, the modal result, Escape
// reaching the pane instead of closing the window (the panes' keyboard test
// cannot tell a rejected window from a cancelled pane), and the language
// actions a parent lacks.

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include "core/app/preference_store.h"
#include "ui/base/pane/orvo_cancel_event_view.h"
#include "ui/base/pane/orvo_view_controller.h"
#include "ui/base/pane/setting_window.h"
#include "ui/base/prefs/notification_center.h"

using namespace tarvik;

namespace {

class Pane : public OrvoViewController {
public:
    using OrvoViewController::OrvoViewController;
    void cancelButtonTouched() override {
        ++cancels;
        stopModalWithCode(0);
    }
    void keyDown(QKeyEvent* e) override { keys << e->key(); }
    int cancels = 0;
    QList<int> keys;
};

// Stands in for the main window: it owns the menu handlers the pane window
// passes language choices to.
class ParentWindow : public QWidget {
    Q_OBJECT
public slots:
    void languageChangeToFrench() { calls << "fr"; }
    void languageChangeToJapanese() { calls << "ja"; }

public:
    QStringList calls;
};

void pressKey(QWidget* w, int key) {
    QKeyEvent e(QEvent::KeyPress, key, Qt::NoModifier);
    QApplication::sendEvent(w, &e);
}

}  // namespace

class TestSettingWindow : public QObject {
    Q_OBJECT
private slots:
    void modalRunReturnsThePanesCode() {
        ParentWindow parent;
        parent.setWindowFlag(Qt::FramelessWindowHint);
        parent.setGeometry(100, 100, 1000, 800);
        parent.show();
        QVERIFY(QTest::qWaitForWindowExposed(&parent));

        Pane pane;
        pane.view()->resize(400, 300);
        SettingWindow window;
        QRect seen;
        bool frameless = false, modal = false;
        QTimer::singleShot(50, this, [&] {
            seen = window.geometry();
            frameless = window.windowFlags().testFlag(Qt::FramelessWindowHint);
            modal = window.isModal();
            QCOMPARE(pane.view()->window(), &window);
            pane.stopModalWithCode(1);
        });
        QCOMPARE(window.showModalWindow(&parent, pane.view(), &pane, false), 1);
        QCOMPARE(seen, QRect(400, 350, 400, 300));
        QVERIFY(frameless);
        QVERIFY(modal);
        QVERIFY(!window.isVisible());
        // The view is handed back to its pane and can be shown again.
        QCOMPARE(pane.view()->parentWidget(), nullptr);
    }

    void escapeCancelsThePaneNotTheWindow() {
        QWidget parent;
        parent.setGeometry(0, 0, 600, 400);
        Pane pane;
        pane.view()->resize(200, 100);
        SettingWindow window;
        QTimer::singleShot(50, this, [&] {
            // A key the pane view does not handle, sent to the window itself,
            // goes to the pane; Escape at the window never rejects it.
            pressKey(&window, Qt::Key_Escape);
            pressKey(&window, Qt::Key_Space);
            QVERIFY(window.isVisible());
            pressKey(pane.view(), Qt::Key_Escape);  // the cancel view's own Escape
        });
        QCOMPARE(window.showModalWindow(&parent, pane.view(), &pane, false), 0);
        QCOMPARE(pane.cancels, 1);
        QCOMPARE(pane.keys, (QList<int>{Qt::Key_Escape, Qt::Key_Space}));

        // Closing from the title bar asks the pane too.
        Pane other;
        SettingWindow closing;
        QTimer::singleShot(50, this, [&] { closing.close(); });
        QCOMPARE(closing.showModalWindow(&parent, other.view(), &other, true), 0);
        QCOMPARE(other.cancels, 1);
    }

    void missingViewAndParentStillRun() {
        Pane pane;
        SettingWindow window;
        QTimer::singleShot(30, &window, [&] { window.done(1); });
        QCOMPARE(window.showModalWindow(nullptr, nullptr, &pane, false), 1);
    }

    void languageChangeStoresAndAnnounces() {
        MemoryPreferenceStore store;
        store.setString("OrvoViewerLanguage", "en");
        SettingWindow window;
        window.setPreferenceStore(&store);
        QSignalSpy posted(&NotificationCenter::shared(), &NotificationCenter::refreshLanguage);

        window.languageChange("en");
        QCOMPARE(posted.count(), 0);  // the same language announces nothing

        // The menu actions tell the parent window first, then change.
        ParentWindow parent;
        Pane pane;
        QTimer::singleShot(30, &window, [&] {
            window.languageChangeToFrench();
            window.languageChangeToPortuguese();  // the parent has no handler: skipped
            window.done(1);
        });
        window.showModalWindow(&parent, pane.view(), &pane, false);
        QCOMPARE(parent.calls, QStringList{"fr"});
        QCOMPARE(store.string("OrvoViewerLanguage"), std::optional<std::string>("pt"));
        QCOMPARE(store.stringList("AppleLanguages"), std::optional<std::vector<std::string>>({"pt"}));
        QCOMPARE(posted.count(), 2);
    }
};

QTEST_MAIN(TestSettingWindow)
#include "test_setting_window.moc"
