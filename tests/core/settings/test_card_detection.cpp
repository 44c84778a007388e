#include <gtest/gtest.h>

#include <cstdlib>

#include "core/device/external_memory.h"
#include "core/device/volume_list.h"
#include "core/settings/m420/m420_model_types.h"
#include "core/settings/m420/m420_setting_manager.h"
#include "temp_card.h"

using namespace tarvik;
using tarvik::test::TempCard;
namespace fs = std::filesystem;

namespace {

std::int64_t typeOf(const TempCard& card) {
    M420SettingManager m;
    return m.loadModelTypeWithSDPath(card.path());
}

// TARVIK_VOLUMES_DIR pointing at a folder for one test.
struct VolumesDir {
    explicit VolumesDir(const std::string& dir) { ::setenv(kVolumesDirEnv, dir.c_str(), 1); }
    ~VolumesDir() { ::unsetenv(kVolumesDirEnv); }
};

}  // namespace

TEST(CardDetection, ModelTypeFromProductName) {
    const std::vector<std::pair<std::string, std::int64_t>> cases = {
        {"K310", 0},   {"m420", 1},    {"M420", 1},      {"Q610", 2},   {"610", 2},        {"Q810", 3},
        {"M640", 5},   {"M900", 16},   {"M900MAX", 17},  {"Dvr-M900max", 24}, {"MB600", 18}, {"M60", 11},
        {"M30", 20},   {"RQ-T4-ZN", 19}, {"QV20", 14},   {"MB240", 22}, {"DVR-M240", 25},  {"Q970", 23},
        {"Q810 UK", -1}, {"Q260", -1}, {"", -1},         {" m420", -1}};
    for (const auto& [name, type] : cases) {
        TempCard card;
        card.write("SETTING/setup.cfg", test::recordNamed(name, 432, 1));  // first field is no length
        EXPECT_EQ(typeOf(card), type) << "'" << name << "'";
    }
    // Lower-case folder first; a recognised record beats a blackbox.cfg.
    TempCard both;
    both.write("setting/setup.cfg", test::recordNamed("M420", 432, 1));
    both.write("SETTING/blackbox.cfg", "[blackbox]");
    EXPECT_EQ(typeOf(both), m420model::M420);
}

TEST(CardDetection, NewerCamerasByLengthThenBlackboxThenUnknown) {
    TempCard card;
    card.write("SETTING/setup.cfg", test::recordNamed("ABC-1", 596));
    M420SettingManager m;
    EXPECT_EQ(m.loadModelTypeWithSDPath(card.path()), 26);
    EXPECT_EQ(m.modelName(), "ABC-1");
    card.write("SETTING/setup.cfg", test::recordNamed("DVR-N570", 580));
    EXPECT_EQ(m.loadModelTypeWithSDPath(card.path()), 26);
    EXPECT_EQ(m.modelName(), "DVR-N570");

    card.write("SETTING/setup.cfg", test::recordNamed("ABC-1", 596, 500));
    EXPECT_EQ(typeOf(card), -1);
    card.write("SETTING/blackbox.cfg", "[capacity]\r\nconst=60");
    EXPECT_EQ(typeOf(card), m420model::Q260);
    fs::remove(card.file("SETTING/setup.cfg"));
    EXPECT_EQ(typeOf(card), m420model::Q260);
    fs::remove(card.file("SETTING/blackbox.cfg"));
    EXPECT_EQ(typeOf(card), -1);
    M420SettingManager none;
    EXPECT_EQ(none.loadModelTypeWithSDPath(""), -1);  // never the file system's root
}

TEST(CardDetection, RegionAndVersionThresholds) {
    TempCard card;
    std::string rec = test::recordNamed("Q810", 464, 464);
    test::putLe32(rec, 460, 3);
    card.write("SETTING/setup.cfg", rec);
    EXPECT_EQ(M420SettingManager::loadLocalIDWithSDPath(card.path()), 3);
    card.write("SETTING/setup.cfg", rec.substr(0, 463));
    EXPECT_EQ(M420SettingManager::loadLocalIDWithSDPath(card.path()), -1);
    for (auto [value, expected] : std::vector<std::pair<int, int>>{{6, 6}, {7, -1}, {-1, -1}, {-2, -1}, {0, 0}}) {
        test::putLe32(rec, 460, value);
        card.write("SETTING/setup.cfg", rec);
        EXPECT_EQ(M420SettingManager::loadLocalIDWithSDPath(card.path()), expected) << value;
    }

    std::string v = test::recordNamed("Q810", 50);
    v.replace(40, 10, "1.0.17ABCD");
    card.write("SETTING/setup.cfg", v.substr(0, 47));
    EXPECT_FALSE(M420SettingManager::loadVersionSDPath(card.path()));
    card.write("SETTING/setup.cfg", v.substr(0, 48));
    EXPECT_EQ(M420SettingManager::loadVersionSDPath(card.path()), "1.0.17AB");
    card.write("SETTING/setup.cfg", v);
    EXPECT_EQ(M420SettingManager::loadVersionSDPath(card.path()), "1.0.17ABCD");

    for (auto [version, number] : {std::pair{"1.0.17", 17}, {"1.0.16", 16}, {"1.0.beta", 0}, {"2", 2}})
        EXPECT_EQ(M420SettingManager::firmwareNumberFromVersion(version), number) << version;
    EXPECT_EQ(M420SettingManager::firmwareNumberFromVersion(std::nullopt), 0);
}

TEST(CardDetection, LanguagePairsFromVerDat) {
    using L = LanguageList;
    EXPECT_EQ(M420SettingManager::parseLanguages("# Language ISO Code: en fr"), (L{{0, ""}, {1, "en"}, {2, "fr"}}));
    EXPECT_EQ(M420SettingManager::parseLanguages("#\tLanguage ISO Code:en  ko \r\nx\n# Language ISO Code:ja"),
              (L{{0, "en"}, {1, ""}, {2, "ko"}, {0, "ja"}}));
    EXPECT_EQ(M420SettingManager::parseLanguages("FW 1.0 # Language ISO Code:de"), (L{{0, "de"}}));
    EXPECT_EQ(M420SettingManager::parseLanguages("# Language ISO Code: "), (L{{0, ""}, {1, ""}}));
    EXPECT_TRUE(M420SettingManager::parseLanguages("#Language ISO Code: en").empty());
    EXPECT_TRUE(M420SettingManager::parseLanguages("# language iso code: en").empty());
    EXPECT_TRUE(M420SettingManager::parseLanguages("# Language ISO Code:").empty());

    TempCard card;
    M420SettingManager m;
    m.setSettingDirPath(card.path());
    m.loadLanguages();
    const L fallback{{0, "en"}, {1, "fr"}, {4, "es"}};
    EXPECT_EQ(m.languages(), fallback);
    card.write("SETTING/lang/ver.dat", "version 3\r\n# Language ISO Code:en ko\r\n");
    m.loadLanguages();
    EXPECT_EQ(m.languages(), (L{{0, "en"}, {1, "ko"}}));
    card.write("SETTING/lang/ver.dat", "no language line here");
    m.loadLanguages();
    EXPECT_EQ(m.languages(), fallback);
}

TEST(CardDetection, FirstRecognisedVolumeWinsAndIdentityIsStored) {
    TempCard volumes;
    volumes.write("a_stick/.tarvik-removable", "");
    volumes.write("a_stick/notes.txt", "no camera");
    volumes.write("b_card/.tarvik-removable", "");
    std::string rec = test::recordNamed("Q810", 504, 504);
    rec.replace(40, 6, "1.0.17");
    test::putLe32(rec, 460, 3);
    volumes.write("b_card/SETTING/setup.cfg", rec);
    volumes.write("c_card/.tarvik-removable", "");
    volumes.write("c_card/SETTING/setup.cfg", test::recordNamed("M420", 432));
    VolumesDir env(volumes.path());

    EXPECT_EQ(mountedVolumePaths().size(), 3u);
    M420SettingManager m;
    m.setSettingDirPath("/chosen/before");
    m.loadVersionInfo();
    auto identity = [&m] {
        return m.settingDirPath() + "|" + m.sdcard_url() + "|" + std::to_string(m.modelType()) + "|" +
               std::to_string(m.localID()) + "|" + m.version() + "|" + std::to_string(m.firmwareVersionInt());
    };
    const std::string b = (volumes.root() / "b_card").string();
    EXPECT_EQ(identity(), b + "|" + b + "|3|3|1.0.17|17");
    EXPECT_EQ(m.getSaveDataSize(), 504);

    // The cards go away: nothing found, identity cleared; an unknown card
    // leaves the last region.
    fs::remove_all(volumes.file("b_card"));
    fs::remove_all(volumes.file("c_card"));
    m.loadVersionInfo();
    EXPECT_EQ(identity(), "||-1|3||0");
}
