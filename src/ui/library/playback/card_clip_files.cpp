#include "ui/library/playback/card_clip_files.h"

#include <QApplication>
#include <QFile>
#include <QStandardPaths>

#include "core/library/conversion/clip_converter.h"
#include "core/media/playable_files.h"

namespace tarvik {

std::optional<std::vector<std::string>> cardClipFiles(const std::string& clip) {
    // The players open the card's own files; nothing is copied on the way.
    PlayableFiles playable = playableFilesOf(clip);
    if (!playable.needsConversion) return std::move(playable.files);
    // Splitting a two-camera AVI copies streams and is quick, but a long
    // clip on a slow card can take a moment: say so with the pointer.
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    auto files = ClipConverter(QFile::encodeName(documents).toStdString()).checkAndConvertVideo(clip);
    QApplication::restoreOverrideCursor();
    return files;
}

}  // namespace tarvik
