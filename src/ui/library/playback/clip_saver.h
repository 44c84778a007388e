#pragma once
// What the user can take out of the viewer: a byte-for-byte copy of the clip
// the large player stands for, the large player's picture as PNG, and that
// picture printed on one landscape page. All three fail silently.

#include <QObject>
#include <QString>
#include <functional>
#include <memory>
#include <string>

class QImage;
class QPrinter;
class QWidget;

namespace tarvik {

class ClipCatalogue;
class OrvoAVView;
class PlaybackTransport;
class SaveDialogs;

class ClipSaver : public QObject {
    Q_OBJECT
public:
    struct Context {
        QWidget* window = nullptr;               // parent of the dialogs
        const ClipCatalogue* catalogue = nullptr;
        std::function<int()> selectedRow;        // -1 without a selection
        std::function<std::string()> currentVideoUrl;
        OrvoAVView* bigMovieView = nullptr;
        PlaybackTransport* transport = nullptr;
    };

    explicit ClipSaver(Context context, QObject* parent = nullptr);
    ~ClipSaver() override;

    void setDialogs(std::unique_ptr<SaveDialogs> dialogs);
    SaveDialogs& dialogs() { return *dialogs_; }

    void saveFileButtonTouched();
    void snapshotButtonTouched();
    void printButtonTouched();

    // "<base>_<ms>.png" with ms = trunc(seconds * 1000).
    static QString snapshotFileName(const QString& baseName, double seconds);
    // The file name without its last extension.
    static QString baseNameOf(const std::string& path);
    // Writes the image as PNG through a temporary file in the same folder.
    static bool writePng(const QImage& image, const QString& path);
    // One page in the printer's orientation, the picture scaled to fit and centred.
    static bool printImage(const QImage& image, QPrinter& printer);
    // Copies byte for byte, replacing an existing file (the save panel has
    // asked) atomically.
    static bool copyClip(const std::string& source, const QString& destination);

private:
    Context c_;
    std::unique_ptr<SaveDialogs> dialogs_;
};

}  // namespace tarvik
