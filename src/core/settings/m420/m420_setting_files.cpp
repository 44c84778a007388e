// setup.cfg and default.cfg: the record's bytes on the card.

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "core/settings/m420/m420_setting_manager.h"
#include "core/settings/m420/record_text.h"
#include "core/settings/m420/settings_alert_sink.h"
#include "core/util/atomic_file.h"

namespace tarvik {

namespace fs = std::filesystem;
using namespace recordtext;

namespace {

// No record is longer than the whole width table; a bigger file is read only
// that far.
constexpr std::size_t kMaxRecordBytes = recordLength(kM420FieldCount + 1);

// Bytes of s that fit in width without splitting a UTF-8 character.
std::size_t fittingBytes(const std::string& s, std::size_t width) {
    if (s.size() <= width) return s.size();
    std::size_t n = width;
    while (n > 0 && (static_cast<unsigned char>(s[n]) & 0xC0) == 0x80) --n;
    return n;
}

}  // namespace

void M420SettingManager::decodeFields(const std::uint8_t* data, std::size_t size, int maxFields,
                                      bool oneByteAsText) {
    const int count = std::min({maxFields, kM420FieldCount, static_cast<int>(settingByteSizeList_.size())});
    std::size_t pos = 0;
    for (int i = 0; i < count && pos < size; ++i) {
        const auto w = static_cast<std::size_t>(settingByteSizeList_[i]);
        if (pos + w > size) break;  // a field cut by the end of the file keeps its value
        const std::uint8_t* p = data + pos;
        if (w == 1 && !oneByteAsText) {
            ints_[i] = p[0];
        } else if (w == 4) {
            ints_[i] = readLe32(p);
        } else if (w == 2) {
            ints_[i] = static_cast<std::int32_t>(p[0] | (p[1] << 8));
        } else if (isIntegerWidth(static_cast<int>(w))) {
            // The factory-file reader never had a one-byte case: the byte is
            // taken as text and that text's number is stored.
            ints_[i] = static_cast<std::int32_t>(leadingInteger(utf8UpToNul(p, w).value_or("")));
        } else {
            texts_[i] = utf8UpToNul(p, w).value_or("");
        }
        pos += w;
    }
}

std::vector<std::uint8_t> M420SettingManager::encodeRecord() const {
    std::vector<std::uint8_t> buf(static_cast<std::size_t>(getSaveDataSize()), 0);
    const int count = std::min(getSettingVariableCount(), kM420FieldCount);
    std::size_t pos = 0;
    for (int i = 0; i < count; ++i) {
        const auto w = static_cast<std::size_t>(settingByteSizeList_[i]);
        std::uint8_t* p = buf.data() + pos;
        const auto v = static_cast<std::uint32_t>(ints_[i]);
        if (w == 1) {
            p[0] = static_cast<std::uint8_t>(v);
        } else if (w == 4) {
            writeLe32(p, v);
        } else if (w == 2) {
            p[0] = static_cast<std::uint8_t>(v);
            p[1] = static_cast<std::uint8_t>(v >> 8);
        } else {
            const std::string& s = texts_[i];
            std::copy_n(s.begin(), fittingBytes(s, w), p);
        }
        pos += w;
    }
    return buf;
}

void M420SettingManager::loadData() {
    std::error_code ec;
    const fs::path file = fs::path(settingDirPath_) / "SETTING" / "setup.cfg";
    if (settingDirPath_.empty() || !fs::exists(file, ec)) {
        loadDefaultValue();
        return;
    }
    loadLanguages();
    std::string bytes;
    if (!readFileHead(file.string(), kMaxRecordBytes, &bytes)) return;
    const int n = getSettingVariableCount();
    // Nothing is written here: the card's file is brought to this model's
    // length by the next save, so merely looking at the settings leaves the
    // card as it was.
    if (n >= 1) decodeFields(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size(), n);
}

bool M420SettingManager::saveData() {
    if (settingDirPath_.empty()) return true;
    const std::vector<std::uint8_t> buf = encodeRecord();
    const fs::path dir = fs::path(settingDirPath_) / "SETTING";
    std::error_code ec;
    bool ok = fs::is_directory(dir, ec) || fs::create_directories(dir, ec);
    ok = ok && writeFileAtomically((dir / "setup.cfg").string(), buf.data(), buf.size());
    if (!ok) raiseMemoryCardAlert();
    return ok;
}

bool M420SettingManager::loadDefaultDataFromDefaultCfgFile() {
    const std::string file = settingDirPath_ + "/SETTING/default.cfg";
    std::string bytes;
    std::size_t fileSize = 0;
    if (settingDirPath_.empty() || !readFileHead(file, kMaxRecordBytes, &bytes, &fileSize)) return false;
    if (bytes.empty()) return true;
    // The file's length doubles as a bound on the number of fields read.
    const int maxFields = static_cast<int>(std::min<std::size_t>(fileSize, kM420FieldCount));
    decodeFields(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size(), maxFields, true);
    return true;
}

}  // namespace tarvik
