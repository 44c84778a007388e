// The pane base: the Escape handler chain and its debounce, relabelling on
// language changes, and detaching image buttons when a pane goes away.

#include <QApplication>
#include <QGroupBox>
#include <QKeyEvent>
#include <QScrollArea>
#include <QTest>

#include "ui/base/pane/orvo_cancel_event_view.h"
#include "ui/base/pane/orvo_view_controller.h"
#include "ui/base/prefs/notification_center.h"
#include "ui/controls/image_button.h"

using namespace tarvik;

namespace {

class Pane : public OrvoViewController {
public:
    using OrvoViewController::OrvoViewController;
    void cancelButtonTouched() override { ++cancels; }
    void applyLanguageSettings() override { ++relabels; }
    int cancels = 0;
    int relabels = 0;
};

class FancyButton : public ImageButton {};
class FancyCancelView : public OrvoCancelEventView {};

void pressKey(QWidget* w, int key = Qt::Key_Escape) {  // Escape unless told
    QKeyEvent e(QEvent::KeyPress, key, Qt::NoModifier);
    QApplication::sendEvent(w, &e);
    QCoreApplication::processEvents();  // the cancel is queued
}

}  // namespace

class TestOrvoViewController : public QObject {
    Q_OBJECT
private slots:
    void escapeIsDebounced() {
        Pane pane;
        auto* view = static_cast<OrvoCancelEventView*>(pane.view());
        double now = 1000.0;
        view->setClock([&] { return now; });

        // 1000.6 is 0.6 s after the last press acted on; 1001.1 is exactly 0.5 s later, which is not more than
        // 0.5 s; other keys do not cancel.
        struct Press { double at; int key; int cancels; };
        for (const Press& p : {Press{1000.0, Qt::Key_Escape, 1}, {1000.3, Qt::Key_Escape, 1},
                               {1000.6, Qt::Key_Escape, 2}, {1001.1, Qt::Key_Escape, 2},
                               {1001.2, Qt::Key_Return, 2}, {1001.2, Qt::Key_Escape, 3}}) {
            now = p.at;
            pressKey(view, p.key);
            QCOMPARE(pane.cancels, p.cancels);
        }
    }

    void handlerChainFollowsTheNewestPane() {
        Pane under;
        QCOMPARE(OrvoCancelEventView::currentEventHandler(), &under);
        {
            Pane over;
            QCOMPARE(OrvoCancelEventView::currentEventHandler(), &over);
            // Escape in either view goes to the pane in front.
            pressKey(under.view());
            QCOMPARE(over.cancels, 1);
            QCOMPARE(under.cancels, 0);
            over.restoreEventHandler();
            QCOMPARE(OrvoCancelEventView::currentEventHandler(), &under);
        }
        // A root that is only derived from the cancel view installs nothing.
        Pane derived(new FancyCancelView);
        QCOMPARE(OrvoCancelEventView::currentEventHandler(), &under);
        Pane plain(new QWidget);
        QCOMPARE(OrvoCancelEventView::currentEventHandler(), &under);
        plain.restoreEventHandler();  // not a cancel view: nothing to restore
        QCOMPARE(OrvoCancelEventView::currentEventHandler(), &under);

        // A pane destroyed without restoring leaves no dangling handler.
        delete new Pane;
        QCOMPARE(OrvoCancelEventView::currentEventHandler(), nullptr);
        pressKey(under.view());  // nobody to call: no crash
        QCOMPARE(under.cancels, 0);
    }

    void panesRelabelOnLanguageChange() {
        Pane pane;
        QCOMPARE(pane.relabels, 0);  // queued until the pane is fully built
        QCoreApplication::processEvents();
        QCOMPARE(pane.relabels, 1);
        NotificationCenter::shared().postRefreshLanguage();
        QCOMPARE(pane.relabels, 1);
        QCoreApplication::processEvents();
        QCOMPARE(pane.relabels, 2);
    }

    void imageButtonsLoseTheirTargetOnlyInPlainContainers() {
        QList<int> clicks(5, 0);
        QPointer<ImageButton> survivor;
        {
            Pane pane;
            QWidget* root = pane.view();
            auto* scrolled = new QWidget;
            auto* scroll = new QScrollArea(root);
            auto* fancy = new FancyButton;
            fancy->setParent(root);
            // Directly in the root, nested in plain widgets, in a scroll area, in a group box, a derived class.
            const QList<ImageButton*> buttons = {new ImageButton(root), new ImageButton(new QWidget(new QWidget(root))),
                                                 new ImageButton(scrolled), new ImageButton(new QGroupBox(root)), fancy};
            scroll->setWidget(scrolled);
            for (int i = 0; i < buttons.size(); ++i)
                connect(buttons[i], &ImageButton::clicked, this, [&clicks, i] { ++clicks[i]; });

            OrvoViewController::removeImageButtonTarget(root);
            for (ImageButton* b : buttons) emit b->clicked();
            QCOMPARE(clicks, (QList<int>{0, 0, 1, 1, 1}));
            OrvoViewController::removeImageButtonTarget(nullptr);

            // The pane's destruction takes its view along.
            survivor = buttons.front();
        }
        QVERIFY(survivor.isNull());
    }
};

QTEST_MAIN(TestOrvoViewController)
#include "test_orvo_view_controller.moc"
