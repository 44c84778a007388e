// Deleting clips through the clip list: asked first with the partner named,
// moved to the trash (and restorable from there), refused while playing.
#include <QSettings>
#include <QStandardPaths>
#include <QTableView>
#include <QTest>
#include <filesystem>
#include <fstream>

#include "ui/shell/catalogue_controller.h"
#include "ui/shell/main_window_controller.h"

using namespace tarvik;
namespace fs = std::filesystem;

namespace {
struct Answers : DeleteDialogs {
    bool yes = false;
    QList<QStringList> asked;
    QStringList told;
    bool confirm(QWidget*, const QStringList& files) override {
        asked << files;
        return yes;
    }
    void tell(QWidget*, const QString& m) override { told << m; }
};
}  // namespace

class ClipDeleterTest : public QObject {
    Q_OBJECT
    fs::path root_, card_;

    void touch(const fs::path& p) {
        fs::create_directories(p.parent_path());
        std::ofstream(p) << p.filename().string();
    }

private slots:
    void initTestCase() {
        root_ = fs::temp_directory_path() / ("tarvik-delete-test-" + std::to_string(QCoreApplication::applicationPid()));
        card_ = root_ / "card";
        fs::remove_all(root_);
        qputenv("XDG_DATA_HOME", QByteArray::fromStdString((root_ / "data").string()));
        touch(card_ / "cont_rec/A_F.mp4");
        touch(card_ / "cont_rec/A_R.mp4");
        touch(card_ / "option_rec/C.mov");
    }
    void cleanupTestCase() { fs::remove_all(root_); }

    void deletesToTheTrashAndTheClipCanBeRestored() {
        MainWindowController c;
        const MainWindowViews& v = c.views();
        CatalogueController& cat = c.catalogue();
        auto owned = std::make_unique<Answers>();
        Answers& answers = *owned;
        cat.deleter().setDialogs(std::move(owned));
        cat.chooseFolder(card_.string());
        QTableView* table = v.fileListTableView;
        auto names = [&] {
            QStringList out;
            for (int r = 0; r < table->model()->rowCount(); ++r) out << table->model()->index(r, 0).data().toString();
            return out;
        };
        QCOMPARE(names(), (QStringList{"A_F.mp4", "A_R.mp4", "C.mov"}));

        // Declined: the question names the clip and its partner, nothing moves.
        table->selectRow(1);
        cat.removeFileButtonTouched();
        QCOMPARE(answers.asked.size(), 1);
        QStringList named;
        for (const QString& f : answers.asked[0]) named << QFileInfo(f).fileName();
        QCOMPARE(named, (QStringList{"A_R.mp4", "A_F.mp4"}));
        QVERIFY(fs::exists(card_ / "cont_rec/A_R.mp4"));

        // The partner is playing: refused before anything is asked.
        cat.deleter().setPlayingCheck([&](const std::string& p) { return p == (card_ / "cont_rec/A_F.mp4").string(); });
        cat.removeFileButtonTouched();
        QCOMPARE(answers.asked.size(), 1);
        QCOMPARE(answers.told.size(), 1);
        QVERIFY(fs::exists(card_ / "cont_rec/A_F.mp4"));
        cat.deleter().setPlayingCheck({});

        // Confirmed: both files are in the trash (the desktop's, or the
        // volume's own .Trash-<uid> folder), each with where it came from.
        answers.yes = true;
        table->selectRow(1);
        cat.removeFileButtonTouched();
        QCOMPARE(names(), (QStringList{"C.mov"}));
        const QStringList trashed = cat.deleter().lastTrashed();
        QCOMPARE(trashed.size(), 2);
        for (const QString& t : trashed) {
            const fs::path inTrash = t.toStdString(), files = inTrash.parent_path();
            const std::string name = inTrash.filename().string();
            QVERIFY2(!fs::exists(card_ / "cont_rec" / name), name.c_str());
            QVERIFY(fs::exists(inTrash));
            QCOMPARE(QString::fromStdString(files.filename().string()), QString("files"));
            const fs::path info = files.parent_path() / "info" / (name + ".trashinfo");
            std::ifstream in(info);
            const std::string text((std::istreambuf_iterator<char>(in)), {});
            QVERIFY2(text.find("Path=" + (card_ / "cont_rec" / name).string()) != std::string::npos, text.c_str());
            // Restored the way a file manager does: moved back to its Path.
            fs::rename(inTrash, card_ / "cont_rec" / name);
            fs::remove(info);
        }
        cat.refreshVideoFileList();
        QCOMPARE(names(), (QStringList{"A_F.mp4", "A_R.mp4", "C.mov"}));
        std::ifstream restored(card_ / "cont_rec/A_F.mp4");
        QCOMPARE(std::string((std::istreambuf_iterator<char>(restored)), {}), std::string("A_F.mp4"));

        // A clip without partner goes alone.
        table->selectRow(2);
        cat.removeFileButtonTouched();
        QCOMPARE(answers.asked.last().size(), 1);
        QCOMPARE(cat.deleter().lastTrashed().size(), 1);
        const fs::path cmov = cat.deleter().lastTrashed()[0].toStdString();
        QVERIFY(fs::exists(cmov));
        fs::remove(cmov);
        fs::remove(cmov.parent_path().parent_path() / "info/C.mov.trashinfo");
        QCOMPARE(names(), (QStringList{"A_F.mp4", "A_R.mp4"}));
    }
};

QTEST_MAIN(ClipDeleterTest)
#include "test_clip_deleter.moc"
