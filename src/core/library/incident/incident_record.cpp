#include "core/library/incident/incident_record.h"

#include <cmath>
#include <ctime>
#include <filesystem>
#include <nlohmann/json.hpp>

#include "core/settings/m420/m420_model_types.h"
#include "core/settings/m420/m420_setting_manager.h"

namespace tarvik {

namespace {

// "2026-11-21 08:30:12.400": the camera's clock, to the tenth.
std::string cameraTime(double t) {
    const double whole = std::floor(t);
    char tenth[8];
    std::snprintf(tenth, sizeof tenth, ".%01d", int(std::lround((t - whole) * 10)) % 10);
    return tripTimeText(std::int64_t(whole)) + tenth;
}

std::string utcNow() {
    const std::time_t now = std::time(nullptr);
    std::tm t{};
    gmtime_r(&now, &t);
    char out[32];
    std::strftime(out, sizeof out, "%Y-%m-%dT%H:%M:%SZ", &t);
    return out;
}

nlohmann::json cameraOf(const std::string& root) {
    M420SettingManager m;
    const std::int64_t type = m.loadModelTypeWithSDPath(root);
    nlohmann::json camera = {{"model_type", type}, {"model", nullptr}, {"firmware", nullptr}};
    if (type == m420model::Newer) camera["model"] = m.modelName();
    else if (type >= 0 && type < m420model::Count) camera["model"] = m.modelNameList()[std::size_t(type)];
    if (const auto version = M420SettingManager::loadVersionSDPath(root)) camera["firmware"] = *version;
    return camera;
}

}  // namespace

std::string IncidentRecord::json() const {
    namespace fs = std::filesystem;
    nlohmann::json clips = nlohmann::json::array();
    for (const IncidentPart& p : span->parts) {
        std::error_code ec;
        clips.push_back({{"front", fs::relative(p.clip.path, span->root, ec).string()},
                         {"rear", p.clip.partner.empty() ? nlohmann::json(nullptr)
                                                         : nlohmann::json(fs::relative(p.clip.partner, span->root, ec).string())},
                         {"recorded", tripTimeText(p.clip.start)},
                         {"from_seconds", p.from},
                         {"to_seconds", p.to}});
    }
    const nlohmann::json doc = {
        {"card", cameraOf(span->root)},
        {"span", {{"from", cameraTime(span->start())}, {"to", cameraTime(span->start() + span->seconds())},
                  {"seconds", span->seconds()}, {"clock", "the camera's"}}},
        {"layout", layout},
        {"clips", clips},
        {"program", {{"name", "tarvik"}, {"version", programVersion}}},
        {"exported", utcNow()},
        {"sha256", files}};
    return doc.dump(2) + "\n";
}

}  // namespace tarvik
