#include <fstream>

#include "cardgen/card_plan.h"

namespace tarvik::cardgen {

namespace fs = std::filesystem;

bool writeCard(const CardPlan& plan, const fs::path& root, std::string* error, const CardProgress& progress) {
    std::error_code ec;
    fs::create_directories(root, ec);
    for (std::size_t i = 0; i < plan.clips.size(); ++i) {
        const ClipPlan& clip = plan.clips[i];
        if (progress) progress(i, plan.clips.size(), clip.relPath);
        std::string log;
        if (!writeClip(clip, root / clip.relPath, &log)) {
            if (error) *error = "could not write " + clip.relPath + ": " + log;
            return false;
        }
    }
    for (const auto& f : plan.files) {
        fs::path p = root / f.relPath;
        fs::create_directories(p.parent_path(), ec);
        std::ofstream(p, std::ios::binary) << f.content;
    }
    if (plan.modelType >= 0) return writeSettingsFiles(root, plan.modelType, error);
    return true;
}

void writeNamedTree(const fs::path& root, int count, int depth) {
    static const char* folders[] = {"cont_rec", "motion_rec", "evt_rec", "manual_rec",
                                    "parking_rec", "motion_timelapse_rec", "Saved_Videos", "option_rec"};
    static const char* exts[] = {".mp4", ".avi", ".MOV", ".mp4"};
    std::error_code ec;
    for (int i = 0; i < count; ++i) {
        fs::path dir = root / folders[i % 8];
        // Spread files over nested day/hour folders, as long-running cameras do.
        for (int d = 0; d < depth; ++d) dir /= "d" + std::to_string(d) + "_" + std::to_string((i / 8 / (d + 3)) % 10);
        fs::create_directories(dir, ec);
        char name[64];
        std::snprintf(name, sizeof name, "20261121_%06d_%c%s", i, (i % 2) ? 'R' : 'F', exts[i % 4]);
        std::ofstream(dir / name);
        if (i % 10 == 0) std::ofstream(dir / (std::string(name) + ".txt"));  // side files the scan skips
    }
}

}  // namespace tarvik::cardgen
