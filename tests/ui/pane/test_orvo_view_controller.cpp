// The pane base: the Escape handler chain and its debounce, relabelling on
// language changes, and detaching image buttons when a pane goes away.

#include <QApplication>
#include <QGroupBox>
#include <QKeyEvent>
#include <QScrollArea>
#include <QTest>

#include "ui/app/pane/orvo_cancel_event_view.h"
#include "ui/app/pane/orvo_view_controller.h"
#include "ui/app/prefs/notification_center.h"
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

void escape(QWidget* w) {
    QKeyEvent e(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
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

        escape(view);
        QCOMPARE(pane.cancels, 1);
        now = 1000.3;
        escape(view);
        QCOMPARE(pane.cancels, 1);
        now = 1000.6;  // 0.6 s after the last press acted on
        escape(view);
        QCOMPARE(pane.cancels, 2);
        now = 1001.1;  // exactly 0.5 s later is not more than 0.5 s
        escape(view);
        QCOMPARE(pane.cancels, 2);
        now = 1001.2;
        QKeyEvent other(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QApplication::sendEvent(view, &other);
        QCoreApplication::processEvents();
        QCOMPARE(pane.cancels, 2);
        escape(view);
        QCOMPARE(pane.cancels, 3);
    }

    void handlerChainFollowsTheNewestPane() {
        Pane under;
        QCOMPARE(OrvoCancelEventView::currentEventHandler(), &under);
        {
            Pane over;
            QCOMPARE(OrvoCancelEventView::currentEventHandler(), &over);
            // Escape in either view goes to the pane in front.
            escape(under.view());
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
        auto* gone = new Pane;
        auto* goneView = gone->view();
        delete gone;
        QCOMPARE(OrvoCancelEventView::currentEventHandler(), nullptr);
        Q_UNUSED(goneView);
        escape(under.view());  // nobody to call: no crash
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
        int direct = 0, nested = 0, inScroll = 0, inBox = 0, derived = 0;
        QPointer<ImageButton> survivor;
        {
            Pane pane;
            QWidget* root = pane.view();
            auto hook = [&](ImageButton* b, int& counter) {
                connect(b, &ImageButton::clicked, this, [&counter] { ++counter; });
            };
            auto* b1 = new ImageButton(root);
            auto* plain = new QWidget(root);
            auto* inner = new QWidget(plain);
            auto* b2 = new ImageButton(inner);
            auto* scroll = new QScrollArea(root);
            auto* scrolled = new QWidget;
            auto* b3 = new ImageButton(scrolled);
            scroll->setWidget(scrolled);
            auto* box = new QGroupBox(root);
            auto* b4 = new ImageButton(box);
            auto* b5 = new FancyButton;
            b5->setParent(root);
            hook(b1, direct);
            hook(b2, nested);
            hook(b3, inScroll);
            hook(b4, inBox);
            hook(b5, derived);

            OrvoViewController::removeImageButtonTarget(root);
            for (ImageButton* b : {b1, b2, b3, b4, static_cast<ImageButton*>(b5)}) emit b->clicked();
            QCOMPARE(direct, 0);
            QCOMPARE(nested, 0);
            QCOMPARE(inScroll, 1);
            QCOMPARE(inBox, 1);
            QCOMPARE(derived, 1);
            OrvoViewController::removeImageButtonTarget(nullptr);

            // The pane's destruction takes its view along.
            survivor = b1;
        }
        QVERIFY(survivor.isNull());
    }
};

QTEST_MAIN(TestOrvoViewController)
#include "test_orvo_view_controller.moc"
