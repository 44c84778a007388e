// While pictures come in, a window's other repaints wait for the next
// picture (or at most a short while); otherwise they go at once.
#include <QApplication>
#include <QElapsedTimer>
#include <QTest>
#include <QWidget>

#include "ui/library/player/composition_pacer.h"

using namespace tarvik;

namespace {

class Counted : public QWidget {
public:
    using QWidget::QWidget;
    int paints = 0;

protected:
    void paintEvent(QPaintEvent*) override { ++paints; }
};

}  // namespace

class CompositionPacerTest : public QObject {
    Q_OBJECT

    struct Window {
        QWidget top;
        Counted* label = new Counted(&top);
        bool playing = false;
        CompositionPacer* pacer = nullptr;
        Window() {
            top.resize(200, 100);
            label->setGeometry(0, 0, 100, 50);
            pacer = CompositionPacer::of(&top, [this](QWidget*) { return playing; });
            top.show();
        }
        // Paints of the label from one update() on, within ms; -1 when the
        // wait took so long (a starved machine) that the longest hold is over.
        int paintsWithin(int ms) {
            QTest::qWait(30);
            const int before = label->paints;
            QElapsedTimer clock;
            clock.start();
            label->update();
            QTest::qWait(ms);
            if (clock.elapsed() >= 40) return -1;
            return label->paints - before;
        }
    };

private slots:
    void aStillWindowRepaintsAtOnce() {
        Window w;
        QVERIFY(QTest::qWaitForWindowExposed(&w.top));
        QTRY_COMPARE_WITH_TIMEOUT(w.label->paints > 0, true, 1000);
        const int before = w.label->paints;
        w.label->update();
        QTRY_VERIFY_WITH_TIMEOUT(w.label->paints > before, 1000);
    }

    void whilePlayingARepaintWaitsForThePicture() {
        Window w;
        QVERIFY(QTest::qWaitForWindowExposed(&w.top));
        w.playing = true;
        QVERIFY(w.paintsWithin(15) <= 0);
        w.pacer->compose();
        QTest::qWait(15);
        QVERIFY(w.label->paints > 0);
        QCOMPARE(CompositionPacer::of(&w.top, {}), w.pacer);
    }

    void whenNoPictureComesItRepaintsAnyway() {
        Window w;
        QVERIFY(QTest::qWaitForWindowExposed(&w.top));
        w.playing = true;
        QElapsedTimer clock;
        clock.start();
        const int before = w.label->paints;
        w.label->update();
        QTRY_VERIFY_WITH_TIMEOUT(w.label->paints > before, 1000);
        QVERIFY2(clock.elapsed() >= 30, qPrintable(QString::number(clock.elapsed())));
        // Played on after the wait: the next repaint waits again.
        QVERIFY(w.paintsWithin(15) <= 0);
    }
};

QTEST_MAIN(CompositionPacerTest)
#include "test_composition_pacer.moc"
