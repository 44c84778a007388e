#include "core/settings/profile/card_settings.h"

#include <filesystem>

#include "core/settings/krt/krt_setting_manager.h"
#include "core/settings/m420/m420_model_types.h"
#include "core/settings/profile/setting_rules.h"
#include "core/util/atomic_file.h"

namespace tarvik {

namespace fs = std::filesystem;

namespace {

// Far beyond any camera's settings file; a larger one is not one.
constexpr std::size_t kMaxSettingsFileBytes = 1 << 20;

bool fail(std::string* error, std::string why) {
    if (error) *error = std::move(why);
    return false;
}

bool readWhole(const std::string& path, std::string* out, std::string* error) {
    std::size_t size = 0;
    if (!readFileHead(path, kMaxSettingsFileBytes, out, &size)) return fail(error, "cannot read " + path);
    if (size != out->size()) return fail(error, path + " is larger than any settings file");
    return true;
}

std::string krtFile(const std::string& root) {
    for (const char* rel : {"SETTING/blackbox.cfg", "setting/blackbox.cfg"}) {
        const fs::path p = fs::path(root) / rel;
        std::error_code ec;
        if (fs::is_regular_file(p, ec)) return p.string();
    }
    return {};
}

bool readKrt(CardSettings& card, std::string* error) {
    card.family = SettingsFamily::Krt;
    card.file = krtFile(card.root);
    if (card.file.empty()) return fail(error, "no SETTING/blackbox.cfg on the card");
    if (!readWhole(card.file, &card.bytes, error)) return false;
    for (const std::string& line : KRTSettingManager::splitLines(card.bytes)) {
        const auto eq = line.find('=');
        if (line.empty() || line[0] == '[' || eq == std::string::npos || eq == 0) continue;
        const std::string name = line.substr(0, eq);
        if (card.find(name)) continue;  // the first line of a key is the one the camera reads
        card.fields.push_back({name, line.substr(eq + 1), false, isIdentitySetting(card.family, name)});
    }
    return true;
}

bool readM420(CardSettings& card, M420SettingManager& m, std::string* error) {
    card.family = SettingsFamily::M420;
    card.file = M420SettingManager::recordFilePath(card.root);
    if (card.file.empty()) return fail(error, "no SETTING/setup.cfg on the card");
    if (!readWhole(card.file, &card.bytes, error)) return false;
    const int length = m.getSaveDataSize();
    if (card.bytes.size() < static_cast<std::size_t>(length))
        return fail(error, "setup.cfg holds " + std::to_string(card.bytes.size()) + " bytes, less than the " +
                               std::to_string(length) + "-byte record of the " + card.modelName +
                               ": it cannot be read whole");
    card.recordFieldCount = m.getSettingVariableCount();
    m.decodeFields(reinterpret_cast<const std::uint8_t*>(card.bytes.data()), card.bytes.size(),
                   card.recordFieldCount);
    for (int i = 0; i < card.recordFieldCount; ++i) {
        const auto f = static_cast<M420Field>(i);
        const std::string name(kM420FieldNames[i]);
        card.fields.push_back({name, m.valueText(f), isIntegerField(f), isIdentitySetting(card.family, name)});
    }
    return true;
}

}  // namespace

const SettingValue* CardSettings::find(const std::string& name) const {
    for (const auto& f : fields)
        if (f.name == name) return &f;
    return nullptr;
}

std::optional<CardSettings> readCardSettings(const std::string& root, std::string* error) {
    std::error_code ec;
    if (root.empty() || !fs::is_directory(root, ec)) {
        fail(error, "not a folder: " + root);
        return std::nullopt;
    }
    M420SettingManager m;
    m.setSettingDirPath(root);
    CardSettings card;
    card.root = root;
    card.modelType = m.loadModelTypeWithSDPath(root);
    if (card.modelType == m420model::Unknown) {
        fail(error, "no camera recognised on " + root);
        return std::nullopt;
    }
    const auto version = M420SettingManager::loadVersionSDPath(root);
    card.firmware = version.value_or("");
    card.firmwareNumber = M420SettingManager::firmwareNumberFromVersion(version);
    card.region = M420SettingManager::loadLocalIDWithSDPath(root);
    m.setModelType(card.modelType);
    m.setFirmwareVersionInt(card.firmwareNumber);
    if (card.region != -1) m.setLocalID(card.region);
    if (card.modelType != m420model::Newer && card.modelType >= 0 && card.modelType < m420model::Count)
        m.setModelName(m.modelNameList()[static_cast<std::size_t>(card.modelType)]);
    card.modelName = m.modelName();
    m.loadLanguages();
    card.languages = m.languages();

    const bool ok = card.modelType == m420model::Q260 ? readKrt(card, error) : readM420(card, m, error);
    if (!ok) return std::nullopt;
    return card;
}

}  // namespace tarvik
