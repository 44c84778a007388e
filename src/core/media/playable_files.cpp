#include "core/media/playable_files.h"

#include <algorithm>
#include <cctype>
#include <filesystem>

#include "core/library/clip_catalogue.h"
#include "core/library/conversion/clip_converter.h"
#include "core/media/media_probe.h"
#include "core/telemetry/mp4_clip_path.h"

namespace tarvik {

namespace fs = std::filesystem;

PlayableFiles playableFilesOf(const std::string& clipPath) {
    std::string ext = fs::path(clipPath).extension().string();
    std::transform(ext.begin(), ext.end(), ext.begin(), [](unsigned char c) { return std::tolower(c); });
    PlayableFiles out;
    auto withPartner = [&] {
        // Lettered A/B pairs too (the partner's name carries the same time).
        std::string partner = ClipConverter::partnerPathOf(clipPath);
        if (partner.empty()) partner = ClipCatalogue::cameraPartnerPath(clipPath);
        std::error_code ec;
        if (!partner.empty() && fs::is_regular_file(partner, ec)) out.files.push_back(partner);
    };
    if (ext != ".avi" && ext != ".mp4") {
        out.files = {clipPath};
        if (isPairedClipPath(clipPath)) withPartner();
        return out;
    }
    // Headers only: the player would refuse what libavformat cannot open.
    const int pictures = videoStreamCount(clipPath);
    if (pictures <= 0) return out;
    if (pictures >= 2) {
        out.needsConversion = true;
        return out;
    }
    out.files = {clipPath};
    if (ext == ".mp4") withPartner();
    return out;
}

}  // namespace tarvik
