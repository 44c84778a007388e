// Image families, hover and press behaviour of image buttons, and the image
// loader they draw with (fed from SVG files written to a temporary folder).

#include <QApplication>
#include <QFile>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include "ui/controls/image_button.h"
#include "ui/controls/image_library.h"

using tarvik::ImageButton;
using tarvik::ImageLibrary;

namespace {

// A 40x20 button with its signals recorded.
struct Spied {
    ImageButton b;
    QSignalSpy clicked{&b, &ImageButton::clicked}, hovered{&b, &ImageButton::hovered},
        exited{&b, &ImageButton::hoverExited};
    explicit Spied(const QString& image, bool autoImages = true) {
        b.setAllowAutoMouseEventImage(autoImages);
        b.setImage(image);
        b.resize(40, 20);
    }
};

void writeSvg(const QString& dir, const QString& name, int w, int h, const char* colour) {
    QFile f(dir + "/" + name + ".svg");
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write(QStringLiteral("<svg xmlns='http://www.w3.org/2000/svg' width='%1' height='%2'>"
                           "<rect width='%1' height='%2' fill='%3'/></svg>")
                .arg(w).arg(h).arg(colour).toUtf8());
}

void send(QWidget* w, QEvent::Type type, QPoint pos, Qt::MouseButtons buttons = Qt::NoButton) {
    const Qt::MouseButton button =
        (type == QEvent::MouseMove) ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent e(type, QPointF(pos), w->mapToGlobal(QPointF(pos)), button, buttons, Qt::NoModifier);
    QApplication::sendEvent(w, &e);
}
void press(QWidget* w, QPoint pos = {5, 5}) { send(w, QEvent::MouseButtonPress, pos, Qt::LeftButton); }
void release(QWidget* w, QPoint pos = {5, 5}) { send(w, QEvent::MouseButtonRelease, pos); }
void drag(QWidget* w, QPoint pos) { send(w, QEvent::MouseMove, pos, Qt::LeftButton); }
void enter(QWidget* w) {
    QEnterEvent e(QPointF(5, 5), QPointF(5, 5), w->mapToGlobal(QPointF(5, 5)));
    QApplication::sendEvent(w, &e);
}
void leave(QWidget* w) {
    QEvent e(QEvent::Leave);
    QApplication::sendEvent(w, &e);
}

}  // namespace

class TestImageButton : public QObject {
    Q_OBJECT
    QTemporaryDir dir;

private slots:
    void initTestCase() {
        QVERIFY(dir.isValid());
        for (auto [name, colour] : {std::pair{"play_1", "#101010"}, {"play_2", "#00ff00"}, {"play_3", "#ff0000"}})
            writeSvg(dir.path(), name, 40, 20, colour);
        QFile bad(dir.path() + "/broken.svg");
        QVERIFY(bad.open(QIODevice::WriteOnly));
        bad.write("<svg xmlns='http://www.w3.org/2000/svg' width='10' he");
        bad.close();
        writeSvg(dir.path(), "giant", 100000, 100000, "#000");
        ImageLibrary::setSearchRoots({dir.path()});
    }

    void loaderFindsRendersAndRefusesSafely() {
        QCOMPARE(ImageLibrary::imageSize("play_1"), QSize(40, 20));
        QCOMPARE(ImageLibrary::pixmap("play_1").size(), QSize(40, 20));
        // The artwork's old ".png" names find the SVG.
        QCOMPARE(ImageLibrary::pixmap("play_2.png").size(), QSize(40, 20));
        const QImage big = ImageLibrary::pixmap("play_3", QSize(80, 40)).toImage();
        QCOMPARE(big.size(), QSize(80, 40));
        QCOMPARE(QColor(big.pixel(40, 20)), QColor("#ff0000"));

        QVERIFY(ImageLibrary::pixmap("missing").isNull());
        QVERIFY(!ImageLibrary::exists("missing"));
        QVERIFY(ImageLibrary::pixmap("").isNull());
        QVERIFY(ImageLibrary::pixmap("broken").isNull());
        QVERIFY(ImageLibrary::pixmap("giant").isNull());  // no 40 GB canvas
    }

    void familyNamesComeFromTheCurrentImage() {
        ImageButton b;
        b.setImage("brand_link_norvane1.png");
        QCOMPARE(b.hoverImageName(), QString("brand_link_norvane2"));

        b.setImage("x");  // one character: the stem is empty
        QCOMPARE(b.normalImageName(), QString("1"));
        QCOMPARE(b.hoverImageName(), QString("2"));
        QCOMPARE(b.clickImageName(), QString("3"));

        // Setting a hover image of a family yields the same family.
        b.setImage("sorting_btn_60_2");
        QCOMPARE(b.normalImageName(), QString("sorting_btn_60_1"));

        b.setAllowAutoMouseEventImage(false);
        QCOMPARE(b.hoverImageName(), QString("sorting_btn_60_2"));  // not re-derived until an image is set
        b.setImage("sorting_btn_60_2");
        QVERIFY(b.normalImageName().isEmpty() && b.hoverImageName().isEmpty() && b.clickImageName().isEmpty());
    }

    // A click in a window only proves press then release; these are the
    // paths a pointer rarely takes there.
    void draggedOffOrRightButtonIsNoClick() {
        Spied s("play_1");
        enter(&s.b);
        QCOMPARE(s.b.imageName(), QString("play_2"));
        press(&s.b);
        QCOMPARE(s.b.imageName(), QString("play_3"));
        drag(&s.b, {100, 100});
        QCOMPARE(s.b.imageName(), QString("play_1"));
        QCOMPARE(s.exited.count(), 1);
        release(&s.b, {100, 100});
        QCOMPARE(s.clicked.count(), 0);

        QMouseEvent rp(QEvent::MouseButtonPress, QPointF(5, 5), QPointF(5, 5), Qt::RightButton, Qt::RightButton,
                       Qt::NoModifier);
        QApplication::sendEvent(&s.b, &rp);
        QVERIFY(!s.b.isMouseDown());
    }

    void withoutAutoImagesTheImageStaysAndReleaseFiresAnywhere() {
        Spied s("sorting_btn_60_2", false);
        enter(&s.b);
        press(&s.b);
        QCOMPARE(s.b.imageName(), QString("sorting_btn_60_2"));
        drag(&s.b, {100, 100});
        leave(&s.b);
        release(&s.b, {100, 100});
        QCOMPARE(s.b.imageName(), QString("sorting_btn_60_2"));
        QCOMPARE(s.clicked.count(), 1);
        QCOMPARE(s.hovered.count(), 0);
    }

    void disabledButtonIgnoresHoverAndRelease() {
        Spied s("play_1");
        s.b.setEnabled(false);
        enter(&s.b);
        QCOMPARE(s.b.imageName(), QString("play_1"));
        QCOMPARE(s.hovered.count(), 0);
        // Qt would not deliver these to a disabled widget; the handlers must
        // not fire even when they are called.
        s.b.setEnabled(true);
        press(&s.b);
        s.b.setEnabled(false);
        release(&s.b);
        QCOMPARE(s.clicked.count(), 0);
    }
};

QTEST_MAIN(TestImageButton)
#include "test_image_button.moc"
