// tarvik card [PATH] [--json]: what the viewer knows about a card. Read only:
// unlike the settings pane, nothing is written back to the card.

#include <cstdio>
#include <string>
#include <vector>

#include "cli/commands.h"
#include "core/settings/krt/krt_setting_manager.h"
#include "core/settings/m420/m420_model_types.h"
#include "core/settings/m420/m420_setting_manager.h"
#include <nlohmann/json.hpp>

#include "core/settings/profile/json_value.h"
#include "core/util/atomic_file.h"

namespace tarvik::cli {

int cardCommand(const CardOptions& o) {
    std::string path = o.path;
    const bool json = o.json;

    M420SettingManager& m = M420SettingManager::SharedM420SettingManager();
    if (path.empty()) {
        m.loadVersionInfo();  // the mounted volumes, as the viewer looks at them
        path = m.settingDirPath();
    } else {
        m.setSettingDirPath(path);
        m.setModelType(m.loadModelTypeWithSDPath(path));
        const auto version = M420SettingManager::loadVersionSDPath(path);
        m.setVersion(version.value_or(""));
        m.setFirmwareVersionInt(M420SettingManager::firmwareNumberFromVersion(version));
    }
    const std::int64_t type = m.modelType();
    if (type != m420model::Newer && type >= 0 && type < m420model::Count) m.setModelName(m.modelNameList()[type]);
    const std::int64_t region = M420SettingManager::loadLocalIDWithSDPath(path);
    if (region != -1) m.setLocalID(region);
    m.loadLanguages();

    // The record's fields, or the blackbox lines of a KRT card.
    std::vector<std::pair<std::string, std::string>> fields;
    std::vector<bool> numeric;
    if (type == m420model::Q260) {
        KRTSettingManager& k = KRTSettingManager::SharedKRTSettingManager();
        k.loadData();
        for (const auto& line : k.linedSettings()) {
            auto eq = line.find('=');
            if (eq == std::string::npos || line.empty() || line[0] == '[') continue;
            fields.emplace_back(line.substr(0, eq), line.substr(eq + 1));
            numeric.push_back(false);
        }
    } else if (type != -1) {
        std::string bytes;
        const std::string file = M420SettingManager::recordFilePath(path);
        if (!file.empty() && readFileHead(file, 4096, &bytes))
            m.decodeFields(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size(),
                           m.getSettingVariableCount());
        for (int i = 0; i < m.getSettingVariableCount(); ++i) {
            const auto f = static_cast<M420Field>(i);
            fields.emplace_back(std::string(kM420FieldNames[i]), m.valueText(f));
            numeric.push_back(isIntegerField(f));
        }
    }

    const std::string name = type == -1 ? "" : m.modelName();
    if (json) {
        nlohmann::ordered_json doc;
        doc["path"] = path;
        doc["model_type"] = type;
        doc["model_name"] = name;
        doc["firmware_version"] = m.version();
        doc["firmware_number"] = m.firmwareVersionInt();
        doc["region"] = m.localID();
        auto& languages = doc["languages"] = nlohmann::ordered_json::array();
        for (const auto& [index, code] : m.languages()) languages.push_back({{"index", index}, {"code", code}});
        auto& out = doc["fields"] = nlohmann::ordered_json::object();
        for (std::size_t i = 0; i < fields.size(); ++i) out[fields[i].first] = jsonSettingValue(fields[i].second, numeric[i]);
        std::fputs(jsonDocument(doc).c_str(), stdout);
    } else {
        std::printf("path=%s\nmodel_type=%lld\nmodel_name=%s\nfirmware_version=%s\nfirmware_number=%d\nregion=%lld\n",
                    path.c_str(), static_cast<long long>(type), type == -1 ? "unknown" : name.c_str(),
                    m.version().c_str(), m.firmwareVersionInt(), static_cast<long long>(m.localID()));
        std::printf("languages=");
        for (std::size_t i = 0; i < m.languages().size(); ++i)
            std::printf("%s%d:%s", i ? " " : "", m.languages()[i].first, m.languages()[i].second.c_str());
        std::printf("\n");
        for (const auto& [k, v] : fields) std::printf("%s=%s\n", k.c_str(), v.c_str());
    }
    return type == -1 ? 1 : 0;
}

}  // namespace tarvik::cli
