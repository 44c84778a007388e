#pragma once
// Cards "mounted" in a test folder of volumes, which the viewer searches
// instead of the system's when TARVIK_VOLUMES_DIR names it, and a digest of a
// card's files to show that nothing on it changed.

#include <unistd.h>

#include <QCryptographicHash>
#include <QDirIterator>
#include <QFile>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "cardgen/card_plan.h"
#include "core/device/external_memory.h"

namespace tarvik::test {

namespace fs = std::filesystem;

// Every file of the card, names and bytes, so any change anywhere shows.
inline QByteArray cardHash(const fs::path& root) {
    QStringList files;
    QDirIterator it(QString::fromStdString(root.string()), QDir::Files | QDir::Hidden | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) files << it.next();
    files.sort();
    QCryptographicHash h(QCryptographicHash::Sha256);
    for (const QString& f : files) {
        QFile file(f);
        h.addData((f + "\n").toUtf8());
        if (file.open(QIODevice::ReadOnly)) h.addData(file.readAll());
    }
    return h.result().toHex();
}

inline std::string readFile(const fs::path& p) {
    std::ifstream in(p, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

// A fresh folder of volumes for one test, removed with it.
class TestVolumes {
public:
    explicit TestVolumes(const std::string& tag)
        : root_(fs::temp_directory_path() / ("tarvik-volumes-" + tag + "-" + std::to_string(::getpid()))) {
        fs::remove_all(root_);
        fs::create_directories(root_);
        ::setenv("TARVIK_VOLUMES_DIR", root_.c_str(), 1);
    }
    ~TestVolumes() {
        std::error_code ec;
        fs::remove_all(root_, ec);
    }
    const fs::path& root() const { return root_; }

    // A card named `name` with the settings files of `modelType` (none when negative).
    fs::path mount(const std::string& name, int modelType, bool removable = true) const {
        const fs::path card = root_ / name;
        fs::create_directories(card);
        if (removable) std::ofstream(card / kRemovableMarkerFile);
        std::string error;
        if (modelType >= 0 && !cardgen::writeSettingsFiles(card, modelType, &error))
            qWarning("cannot write the card's settings: %s", error.c_str());
        return card;
    }

private:
    fs::path root_;
};

}  // namespace tarvik::test
