// tarvik-iconrender SVG OUTDIR SIZE...: the application icon as PNGs for the
// icon theme's fixed-size folders (OUTDIR/NxN/apps/NAME.png).
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

int main(int argc, char** argv) {
    if (argc < 5) {
        std::fprintf(stderr, "usage: %s SVG OUTDIR NAME SIZE...\n", argv[0]);
        return 2;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    QSvgRenderer svg(QString::fromLocal8Bit(argv[1]));
    if (!svg.isValid()) return 1;
    for (int i = 4; i < argc; ++i) {
        const int n = QByteArray(argv[i]).toInt();
        if (n <= 0) return 2;
        QImage image(n, n, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter p(&image);
        p.setRenderHint(QPainter::Antialiasing);
        svg.render(&p);
        p.end();
        const QString dir = QStringLiteral("%1/%2x%2/apps").arg(QString::fromLocal8Bit(argv[2])).arg(n);
        QDir().mkpath(dir);
        if (!image.save(dir + "/" + QString::fromLocal8Bit(argv[3]) + ".png")) return 1;
    }
    return 0;
}
