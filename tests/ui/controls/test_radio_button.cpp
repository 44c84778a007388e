// Radio buttons: the registry after a button dies, toggle mode, and clicks
// on disabled buttons.

#include <QApplication>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>
#include <memory>

#include "ui/controls/radio_button.h"

using tarvik::RadioButton;

namespace {
void click(RadioButton* b) {
    QMouseEvent e(QEvent::MouseButtonPress, QPointF(3, 3), QPointF(3, 3), Qt::LeftButton, Qt::LeftButton,
                  Qt::NoModifier);
    QApplication::sendEvent(b, &e);
    QMouseEvent r(QEvent::MouseButtonRelease, QPointF(3, 3), QPointF(3, 3), Qt::LeftButton, Qt::NoButton,
                  Qt::NoModifier);
    QApplication::sendEvent(b, &r);
}

struct Group {
    std::unique_ptr<RadioButton> a{new RadioButton}, b{new RadioButton}, c{new RadioButton};
    explicit Group(int id) {
        for (RadioButton* r : {a.get(), b.get(), c.get()}) {
            r->setRadioGroupID(id);
            r->setEnabled(true);
        }
    }
};
}  // namespace

class TestRadioButton : public QObject {
    Q_OBJECT
private slots:
    void cleanup() {
        for (int id : {7, 8}) RadioButton::RemoveRadioButtonGroupFromGroupID(id);
    }

    // The panes' tests click through groups; toggle mode off and back is the
    // step they do not take.
    void toggleModeTurnsOffWithoutTurningAnotherOn() {
        Group g(7);
        g.a->setIsSelected(true);
        g.b->setIsToggleMode(true);
        click(g.b.get());
        QVERIFY(g.b->isSelected() && !g.a->isSelected());
        click(g.b.get());
        QVERIFY(!g.b->isSelected() && !g.a->isSelected() && !g.c->isSelected());
        // Without toggle mode a click on the selected one keeps it on.
        g.c->setIsSelected(true);
        click(g.c.get());
        QVERIFY(g.c->isSelected());
    }

    void destroyedButtonsLeaveTheRegistry() {
        auto* r = new RadioButton;
        r->setRadioGroupID(8);
        RadioButton survivor;
        survivor.setRadioGroupID(8);
        survivor.setEnabled(true);
        delete r;
        QCOMPARE(RadioButton::GetRadioButtonGroupFromGroupID(8), QList<RadioButton*>{&survivor});
        survivor.setIsSelected(true);  // must not touch the dead one
        QVERIFY(survivor.isSelected());
    }

    void disabledButtonStillReportsClicks() {
        Group g(7);
        g.a->setIsSelected(true);
        g.b->setEnabled(false);
        QSignalSpy spy(g.b.get(), &RadioButton::clicked);
        click(g.b.get());
        QCOMPARE(spy.count(), 1);
        QVERIFY(!g.b->isSelected());
        QVERIFY(g.a->isSelected());
        QCOMPARE(g.b->currentImageName(), QString("discheck2"));

        g.b->setEnabled(true);
        click(g.b.get());
        QCOMPARE(spy.count(), 2);
        QVERIFY(g.b->isSelected() && !g.a->isSelected());
    }
};

QTEST_MAIN(TestRadioButton)
#include "test_radio_button.moc"
