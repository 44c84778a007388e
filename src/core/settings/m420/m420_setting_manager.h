#pragma once
// The memory card's identity (root, model, firmware, region, languages) and the
// M420 family's setting record `SETTING/setup.cfg`, with its factory copy
// `default.cfg`. One instance is shared by the whole application.
//
// Every field of the record has a getter named like the field and a setter
// `set` + field name with its first letter raised (`front_resolution()`,
// `setFront_resolution(v)`). Integer fields are 32-bit in memory whatever
// their width on the card; text fields are strings.

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/settings/m420/setting_record_layout.h"

namespace tarvik {

using LanguageList = std::vector<std::pair<int, std::string>>;

class M420SettingManager {
public:
    // Model list, widths and field list built; model type and region unknown,
    // firmware 0, every integer field 0 and every text field empty.
    M420SettingManager();

    // The shared instance, created on first use. Do not keep the reference
    // across ChagneM420SettingManager, which replaces the instance.
    static M420SettingManager& SharedM420SettingManager();
    static void ChagneM420SettingManager(std::unique_ptr<M420SettingManager> manager);

    // --- card identity -------------------------------------------------
    // Root of the card (the volume), under which SETTING/ lies; empty = none.
    const std::string& settingDirPath() const { return settingDirPath_; }
    void setSettingDirPath(std::string path) { settingDirPath_ = std::move(path); }
    // The volume found by the card search; empty = none.
    const std::string& sdcard_url() const { return sdcardUrl_; }
    void setSdcard_url(std::string url) { sdcardUrl_ = std::move(url); }

    std::int64_t modelType() const { return modelType_; }
    void setModelType(std::int64_t type) { modelType_ = type; }
    std::int64_t localID() const { return localID_; }
    void setLocalID(std::int64_t id) { localID_ = id; }
    std::int32_t firmwareVersionInt() const { return firmwareVersionInt_; }
    void setFirmwareVersionInt(std::int32_t v) { firmwareVersionInt_ = v; }
    const std::string& modelName() const { return modelName_; }
    void setModelName(std::string name) { modelName_ = std::move(name); }
    const LanguageList& languages() const { return languages_; }
    void setLanguages(LanguageList list) { languages_ = std::move(list); }

    const std::vector<std::string>& modelNameList() const { return modelNameList_; }
    const std::vector<M420Field>& settingVariableList() const { return settingVariableList_; }
    const std::vector<int>& settingByteSizeList() const { return settingByteSizeList_; }

    // --- record size ----------------------------------------------------
    // How many fields this card's record has (by model type and firmware).
    int getSettingVariableCount() const;
    // Bytes of those fields: the length setup.cfg is written with.
    int getSaveDataSize() const;
    // Byte offset of the field in the file; 0 for the first field or a name
    // that is not a field.
    int offsetFromValue(M420Field field) const;
    int offsetFromValue(std::string_view fieldName) const;

    // --- defaults ---------------------------------------------------------
    void loadDefaultDataForK310();
    void loadDefaultDataForM420();
    void loadDefaultDataForQ610();
    void loadDefaultDataForQ810();  // United Kingdom variant when localID is 3
    void loadDefaultDataForM640();
    // The loader of the current model type (0..5); other types keep the record.
    void loadDefaultValue();
    // Reads SETTING/default.cfg into the record; false when it is missing or
    // unreadable.
    bool loadDefaultDataFromDefaultCfgFile();

    // --- setup.cfg --------------------------------------------------------
    // Reads the card's record (defaults when there is none). Writes nothing:
    // saveData brings the file to the current model's length.
    void loadData();
    // Writes the record atomically; on failure raises the memory-card alert
    // and returns false. Does nothing (true) without a card path.
    bool saveData();
    // The bytes saveData writes.
    std::vector<std::uint8_t> encodeRecord() const;
    // Reads fields 0.. from bytes, at most maxFields of them, stopping where
    // the data ends; a field cut by the end keeps its value. With
    // oneByteAsText a one-byte field goes through the text path the factory
    // file reader has always used (its text converted as an integer).
    void decodeFields(const std::uint8_t* data, std::size_t size, int maxFields, bool oneByteAsText = false);

    // --- card detection ---------------------------------------------------
    // The first mounted volume whose record is recognised; sets sdcard_url to
    // the last removable volume looked at. Empty when none.
    std::string findSDCardPath();
    // -1..26; sets modelName for 26.
    std::int64_t loadModelTypeWithSDPath(const std::string& root);
    // 0..6, or -1.
    static std::int64_t loadLocalIDWithSDPath(const std::string& root);
    // The record's firmware text; nothing for a missing or short record.
    static std::optional<std::string> loadVersionSDPath(const std::string& root);
    // Card search, model type, region (Q810 pair), firmware.
    void loadVersionInfo();
    // The same for a card the user named: root becomes settingDirPath, no search.
    void loadVersionInfoForPath(const std::string& root);
    // Fills languages from SETTING/lang/ver.dat (a fixed list without one).
    void loadLanguages();
    // The language pairs of a ver.dat text (empty when no line matches).
    static LanguageList parseLanguages(std::string_view text);
    // The integer value of the last dot-separated piece; 0 if not a number.
    static std::int32_t firmwareNumberFromVersion(const std::optional<std::string>& version);
    // setup.cfg under root, lower-case folder first; empty when neither exists.
    static std::string recordFilePath(const std::string& root);

    // --- generic field access (for lists, the command line and the panes) --
    std::int32_t intValue(M420Field f) const { return ints_[fieldIndex(f)]; }
    void setIntValue(M420Field f, std::int32_t v) { ints_[fieldIndex(f)] = v; }
    const std::string& textValue(M420Field f) const { return texts_[fieldIndex(f)]; }
    void setTextValue(M420Field f, std::string v) { texts_[fieldIndex(f)] = std::move(v); }
    // The value as text: the number for integer fields.
    std::string valueText(M420Field f) const;

    // --- named fields -------------------------------------------------------
#define TARVIK_M420_ACCESSORS(name, setter, width)                                                   \
    M420FieldValue<width> name() const { return get<width>(fieldIndex(M420Field::name)); }         \
    void set##setter(M420FieldValue<width> v) { put<width>(fieldIndex(M420Field::name), std::move(v)); }
    TARVIK_M420_RECORD_FIELDS(TARVIK_M420_ACCESSORS)
#undef TARVIK_M420_ACCESSORS

private:
    template <int W>
    M420FieldValue<W> get(int i) const {
        if constexpr (isIntegerWidth(W)) return ints_[i];
        else return texts_[i];
    }
    template <int W>
    void put(int i, M420FieldValue<W> v) {
        if constexpr (isIntegerWidth(W)) ints_[i] = v;
        else texts_[i] = std::move(v);
    }

    std::string settingDirPath_;
    std::string sdcardUrl_;
    std::array<std::int32_t, kM420FieldCount> ints_{};
    std::array<std::string, kM420FieldCount> texts_{};
    std::int64_t modelType_ = -1;
    std::int64_t localID_ = -1;
    std::int32_t firmwareVersionInt_ = 0;
    std::vector<std::string> modelNameList_;
    std::vector<M420Field> settingVariableList_;
    std::vector<int> settingByteSizeList_;
    std::string modelName_;
    LanguageList languages_;
};

}  // namespace tarvik
