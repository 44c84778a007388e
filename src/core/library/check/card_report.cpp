#include "core/library/check/card_report.h"

#include <sys/statvfs.h>

#include <cstdio>
#include <filesystem>
#include <memory>
#include <map>
#include <set>
#include <algorithm>

#include "core/library/check/write_leftovers.h"
#include "core/library/clip_catalogue.h"
#include "core/library/trips/clip_container.h"
#include "core/library/trips/clip_telemetry_loader.h"
#include "core/library/trips/trip_builder.h"
#include "core/settings/m420/m420_model_types.h"
#include "core/settings/m420/m420_setting_manager.h"
#include "core/telemetry/orvo_clip_data.h"
#include "core/util/atomic_file.h"

namespace tarvik {

namespace fs = std::filesystem;

namespace {

// Cards this full stop recording new clips over old ones in time.
constexpr double kLowSpaceShare = 0.02;
constexpr std::uint64_t kLowSpaceBytes = 256ull << 20;
// A pause longer than this in continuous recording is the car parked, not a fault.
constexpr double kLongestGapSeconds = 30 * 60;

// "_F." / "_R." in the file name: the camera's own front/rear marking.
char cameraSide(std::string_view name) {
    if (name.find("_F.") != std::string_view::npos) return 'F';
    if (name.find("_R.") != std::string_view::npos) return 'R';
    return 0;
}

SettingsState readSettings(const std::string& root) {
    SettingsState s;
    M420SettingManager m;
    s.modelType = m.loadModelTypeWithSDPath(root);
    const std::string record = M420SettingManager::recordFilePath(root);
    std::error_code ec;
    if (!record.empty()) {
        s.present = true;
        std::string head;
        std::size_t size = 0;
        const bool opened = readFileHead(record, 1, &head, &size);
        s.readable = opened && !head.empty();
        s.length = opened ? static_cast<std::int64_t>(size) : -1;
    } else {
        for (const char* folder : {"setting", "SETTING"}) {
            const fs::path p = fs::path(root) / folder / "blackbox.cfg";
            if (fs::exists(fs::symlink_status(p, ec))) {
                std::string head;
                std::size_t size = 0;
                s.present = true;
                s.readable = readFileHead(p.string(), 1, &head, &size);
                s.length = s.readable ? static_cast<std::int64_t>(size) : -1;
            }
        }
    }
    if (s.modelType == 26) s.modelName = m.modelName();
    else if (s.modelType >= 0 && s.modelType < m420model::Count) s.modelName = m.modelNameList()[s.modelType];
    if (s.modelType >= 0 && s.modelType < m420model::Count && s.modelType != m420model::Q260 && !record.empty()) {
        m.setModelType(s.modelType);
        m.setFirmwareVersionInt(M420SettingManager::firmwareNumberFromVersion(M420SettingManager::loadVersionSDPath(root)));
        s.expectedLength = m.getSaveDataSize();
    }
    return s;
}

void add(CardReport& r, FindingSeverity sev, std::string kind, std::string path, std::string detail) {
    r.findings.push_back({sev, std::move(kind), std::move(path), std::move(detail)});
}

}  // namespace

bool CardReport::needsAttention() const { return count(FindingSeverity::Attention) > 0; }

int CardReport::count(FindingSeverity severity) const {
    int n = 0;
    for (const CardFinding& f : findings) n += f.severity == severity;
    return n;
}

CardReport checkCard(const std::string& root) {
    using S = FindingSeverity;
    CardReport r;
    r.root = root;
    std::error_code missing;
    if (!fs::is_directory(root, missing)) {
        r.folderFound = false;
        add(r, S::Attention, "missing", root, "no such folder");
        return r;
    }
    ClipCatalogue catalogue;
    catalogue.refreshVideoFileListWithURL(root);
    std::vector<std::string> clips = catalogue.allVideoFileList();
    std::sort(clips.begin(), clips.end());
    r.clipCount = static_cast<int>(clips.size());
    const std::set<std::string> all(clips.begin(), clips.end());

    std::map<std::string, double> seconds;
    auto data = std::make_unique<OrvoClipData>();
    for (const std::string& clip : clips) {
        const ContainerInfo info = inspectClipContainer(clip);
        seconds[clip] = info.state == ContainerState::Playable ? info.seconds : 0.0;
        if (info.state != ContainerState::Playable)
            add(r, S::Attention, "unplayable", clip, containerStateText(info.state));

        const char side = cameraSide(ClipCatalogue::fileName(clip));
        if (side && !all.count(ClipCatalogue::partnerPath(clip)))
            add(r, S::Attention, side == 'F' ? "front-without-rear" : "rear-without-front", clip, "");

        // The rear camera of a pair may leave the telemetry to the front one.
        if (info.state == ContainerState::Playable && side != 'R') {
            loadClipTelemetry(clip, *data);
            if (data->clipDataCount() == 0) add(r, S::Note, "no-telemetry", clip, "recorded without GPS or G-sensor data");
        }
    }

    const std::vector<Trip> trips =
        TripBuilder::build(root, clips, [&](const std::string& p) { return seconds.count(p) ? seconds[p] : 0.0; });
    r.tripCount = static_cast<int>(trips.size());
    for (std::size_t i = 1; i < trips.size(); ++i) {
        const Trip& a = trips[i - 1];
        const Trip& b = trips[i];
        if (a.folder != b.folder || (b.folder != "cont_rec" && !b.folder.empty())) continue;
        const TripClip& last = a.clips.back();
        if (last.seconds <= 0) continue;  // already named as unplayable
        const double gap = double(b.start) - double(a.end);
        if (gap > kTripMaxGapSeconds && gap <= kLongestGapSeconds) {
            char text[160];
            std::snprintf(text, sizeof text, "%.0f s after %s", gap,
                          std::string(ClipCatalogue::fileName(last.path)).c_str());
            add(r, S::Note, "gap", b.clips.front().path, text);
        }
    }

    r.settings = readSettings(root);
    const SettingsState& s = r.settings;
    if (!s.present) add(r, S::Note, "settings", "", "no settings files");
    else if (!s.readable) add(r, S::Attention, "settings", "", "settings file unreadable");
    else if (s.modelType == -1) add(r, S::Attention, "settings", "", "camera model not recognised");
    else if (s.expectedLength > 0 && s.length != s.expectedLength)
        add(r, S::Attention, "settings", M420SettingManager::recordFilePath(root),
            "length " + std::to_string(s.length) + ", expected " + std::to_string(s.expectedLength));
    for (const std::string& leftover : findWriteLeftovers(root))
        add(r, S::Note, "write-leftover", leftover, "left by an interrupted settings write; the next write removes it");

    struct statvfs v {};
    if (::statvfs(root.c_str(), &v) == 0) {
        r.freeBytes = std::uint64_t(v.f_bavail) * v.f_frsize;
        r.totalBytes = std::uint64_t(v.f_blocks) * v.f_frsize;
        if (r.totalBytes > 0 && (r.freeBytes < kLowSpaceBytes || r.freeBytes < kLowSpaceShare * double(r.totalBytes)))
            add(r, S::Attention, "free-space", "", std::to_string(r.freeBytes >> 20) + " MiB free");
    }
    return r;
}

}  // namespace tarvik
