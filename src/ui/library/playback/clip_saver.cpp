#include "ui/library/playback/clip_saver.h"

#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QPrinter>
#include <QSaveFile>
#include <cmath>
#include <cstdint>

#include "core/library/clip_catalogue.h"
#include "ui/library/playback/playback_transport.h"
#include "ui/library/playback/save_dialogs.h"
#include "ui/library/player/orvo_av_view.h"

namespace tarvik {

namespace {

QString fromBytes(const std::string& path) { return QFile::decodeName(QByteArray::fromStdString(path)); }

}  // namespace

ClipSaver::ClipSaver(Context context, QObject* parent)
    : QObject(parent), c_(std::move(context)), dialogs_(std::make_unique<QtSaveDialogs>()) {}

ClipSaver::~ClipSaver() = default;

void ClipSaver::setDialogs(std::unique_ptr<SaveDialogs> dialogs) {
    if (dialogs) dialogs_ = std::move(dialogs);
}

QString ClipSaver::snapshotFileName(const QString& baseName, double seconds) {
    double ms = seconds * 1000.0;
    if (!std::isfinite(ms) || std::fabs(ms) >= 9.0e18) ms = 0;
    return QString("%1_%2.png").arg(baseName).arg(static_cast<qlonglong>(static_cast<std::int64_t>(ms)));
}

QString ClipSaver::baseNameOf(const std::string& path) {
    const QString name = QFileInfo(fromBytes(path)).fileName();
    const qsizetype dot = name.lastIndexOf('.');
    return dot > 0 ? name.left(dot) : name;
}

bool ClipSaver::writePng(const QImage& image, const QString& path) {
    if (image.isNull() || path.isEmpty()) return false;
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) return false;
    if (!image.save(&file, "PNG")) {
        file.cancelWriting();
        return false;
    }
    return file.commit();
}

bool ClipSaver::printImage(const QImage& image, QPrinter& printer) {
    if (image.isNull()) return false;
    QPainter painter;
    if (!painter.begin(&printer)) return false;
    const QRect page = painter.viewport();
    QSize fitted = image.size().scaled(page.size(), Qt::KeepAspectRatio);
    const QRect target(page.x() + (page.width() - fitted.width()) / 2, page.y() + (page.height() - fitted.height()) / 2,
                       fitted.width(), fitted.height());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(target, image);
    return painter.end();
}

bool ClipSaver::copyClip(const std::string& source, const QString& destination) {
    // Written into a temporary file beside the destination and renamed over
    // it only when whole: a replaced clip is the old one or the new one,
    // never half of either, even when the card is pulled mid-copy.
    if (destination.isEmpty()) return false;
    QFile in(fromBytes(source));
    if (!in.open(QIODevice::ReadOnly)) return false;
    QSaveFile out(destination);
    if (!out.open(QIODevice::WriteOnly)) return false;
    QByteArray buf(1 << 20, Qt::Uninitialized);
    qint64 total = 0;
    for (;;) {
        const qint64 n = in.read(buf.data(), buf.size());
        if (n < 0 || (n > 0 && out.write(buf.constData(), n) != n)) {
            out.cancelWriting();
            return false;
        }
        if (n == 0) break;
        total += n;
    }
    // A file that shrank under the copy is not a finished copy.
    if (total != in.size()) {
        out.cancelWriting();
        return false;
    }
    return out.commit();
}

void ClipSaver::saveFileButtonTouched() {
    if (!c_.catalogue) return;
    const int row = c_.selectedRow ? c_.selectedRow() : -1;
    if (row < 0 || row >= c_.catalogue->rowCount()) return;
    const std::string source = c_.catalogue->takeBigVideoURL(row);
    const QString name = QFileInfo(fromBytes(source)).fileName();
    const QString target = dialogs_->savePath(c_.window, name);
    if (!target.isEmpty()) copyClip(source, target);
}

void ClipSaver::snapshotButtonTouched() {
    if (c_.transport) c_.transport->pauseVideo();
    const double t = c_.bigMovieView ? c_.bigMovieView->currentTime() : 0.0;
    std::string named = c_.currentVideoUrl ? c_.currentVideoUrl() : std::string();
    const int row = c_.selectedRow ? c_.selectedRow() : -1;
    if (c_.catalogue && row >= 0 && row < c_.catalogue->rowCount()) named = c_.catalogue->takeBigVideoURL(row);
    const QString target = dialogs_->savePath(c_.window, snapshotFileName(baseNameOf(named), t));
    if (target.isEmpty() || !c_.bigMovieView) return;
    writePng(c_.bigMovieView->snapshot(), target);
}

void ClipSaver::printButtonTouched() {
    if (c_.transport) c_.transport->pauseVideo();
    if (!c_.bigMovieView) return;
    const QImage image = c_.bigMovieView->snapshot();
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageOrientation(QPageLayout::Landscape);
    if (!dialogs_->setUpPrinter(c_.window, printer)) return;
    printImage(image, printer);
}

}  // namespace tarvik
