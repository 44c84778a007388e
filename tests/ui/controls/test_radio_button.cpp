// Radio buttons: groups through the process-wide registry, toggle mode, and
// clicks on disabled buttons.

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
        for (int id : {1, 2, 7, 8}) RadioButton::RemoveRadioButtonGroupFromGroupID(id);
    }

    void selectingOneTurnsTheOthersOff() {
        Group g(7);
        g.a->setIsSelected(true);
        g.c->setIsSelected(true);
        QVERIFY(!g.a->isSelected());
        click(g.b.get());
        QVERIFY(g.b->isSelected());
        QVERIFY(!g.a->isSelected() && !g.c->isSelected());

        // Toggle mode: a second click turns it off and leaves the others off.
        g.b->setIsToggleMode(true);
        click(g.b.get());
        QVERIFY(!g.b->isSelected() && !g.a->isSelected() && !g.c->isSelected());
        // Turning one off never turns another on.
        g.a->setIsSelected(true);
        g.a->setIsSelected(false);
        QVERIFY(!g.b->isSelected() && !g.c->isSelected());
        // Without toggle mode a click on the selected one keeps it on.
        g.c->setIsSelected(true);
        click(g.c.get());
        QVERIFY(g.c->isSelected());
    }

    void movingToAnotherGroupLeavesTheOldOne() {
        Group one(1);
        RadioButton moved;
        moved.setEnabled(true);
        moved.setRadioGroupID(1);
        QCOMPARE(RadioButton::GetRadioButtonGroupFromGroupID(1).size(), 4);
        moved.setRadioGroupID(2);
        QCOMPARE(RadioButton::GetRadioButtonGroupFromGroupID(1).size(), 3);
        QCOMPARE(RadioButton::GetRadioButtonGroupFromGroupID(2), QList<RadioButton*>{&moved});

        one.a->setIsSelected(true);
        moved.setIsSelected(true);
        QVERIFY(one.a->isSelected());
        one.b->setIsSelected(true);
        QVERIFY(moved.isSelected());

        // Buttons of different views form one group through the registry alone.
        RadioButton::AddRadioButton(&moved, 2);
        QCOMPARE(RadioButton::GetRadioButtonGroupFromGroupID(2).size(), 1);
        RadioButton::RemoveRadioButtonGroupFromGroupID(2);
        QVERIFY(RadioButton::GetRadioButtonGroupFromGroupID(2).isEmpty());
        QCOMPARE(moved.radioGroupID(), 2);
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

    // Which picture each state takes is the artwork's table; that they differ is the button's.
    void selectedLooksSelectedAndDrawsWithoutArtwork() {
        RadioButton r;
        QVERIFY(!r.isEnabled());  // starts disabled
        r.setEnabled(true);
        const QString off = r.currentImageName();
        r.setIsSelected(true);
        QVERIFY(r.currentImageName() != off);
        r.resize(18, 18);
        QVERIFY(!r.grab().isNull());
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
