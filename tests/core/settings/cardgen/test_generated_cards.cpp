// Cards written by the card generator are recognised the way a camera's are,
// and `tarvik card` reports them.

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "cardgen/card_plan.h"
#include "core/settings/m420/m420_model_types.h"
#include "core/settings/m420/m420_setting_manager.h"
#include "core/settings/m420/setting_time_file.h"
#include "core/util/process_runner.h"

using namespace tarvik;
namespace fs = std::filesystem;

namespace {
struct TempDir {
    TempDir() {
        std::string t = (fs::temp_directory_path() / "tarvik-gen-XXXXXX").string();
        path = ::mkdtemp(t.data());
    }
    ~TempDir() { fs::remove_all(path); }
    fs::path path;
};
}  // namespace

TEST(GeneratedCards, EveryModelIsDetectedWithItsRecordLength) {
    for (int type = 0; type < m420model::Count; ++type) {
        TempDir card;
        std::string error;
        ASSERT_TRUE(cardgen::writeSettingsFiles(card.path, type, &error)) << error;
        M420SettingManager m;
        const std::int64_t expected = type == m420model::Q810UK ? m420model::Q810 : std::min(type, 26);
        EXPECT_EQ(m.loadModelTypeWithSDPath(card.path.string()), expected) << "type " << type;
        if (type == m420model::Q260) {
            EXPECT_FALSE(fs::exists(card.path / "SETTING" / "setup.cfg"));
            continue;
        }
        m.setModelType(type);
        m.setFirmwareVersionInt(M420SettingManager::firmwareNumberFromVersion(
            M420SettingManager::loadVersionSDPath(card.path.string())));
        EXPECT_EQ(fs::file_size(card.path / "SETTING" / "setup.cfg"), static_cast<std::uintmax_t>(m.getSaveDataSize()))
            << "type " << type;
        EXPECT_EQ(fs::file_size(card.path / "SETTING" / "default.cfg"), fs::file_size(card.path / "SETTING" / "setup.cfg"));
        EXPECT_TRUE(readSettingTimeFile(card.path.string()));
        m.setSettingDirPath(card.path.string());
        m.loadLanguages();
        EXPECT_EQ(m.languages().size(), 5u);
        if (type >= 26) EXPECT_EQ(m.modelName(), m.modelNameList()[type]);
    }
    const int demo = cardgen::demoModelType();
    EXPECT_EQ(m420model::settingsPaneFor(demo), m420model::SettingsPane::Native);
}

TEST(GeneratedCards, CardCommandPrintsModelAndFields) {
    TempDir card;
    ASSERT_TRUE(cardgen::writeSettingsFiles(card.path, cardgen::demoModelType()));
    std::ifstream original(card.path / "SETTING" / "setup.cfg", std::ios::binary);
    const std::string before{std::istreambuf_iterator<char>(original), {}};
    const std::string tarvik = std::string(TARVIK_BINARY_DIR) + "/tarvik";
    ProcessResult r = ProcessRunner::run(tarvik, {"card", card.path.string()}, std::chrono::seconds(30));
    ASSERT_TRUE(r.started);
    EXPECT_EQ(r.exitCode, 0) << r.output;
    EXPECT_NE(r.output.find("model_type=5\n"), std::string::npos) << r.output;
    EXPECT_NE(r.output.find("model_name=M640\n"), std::string::npos);
    EXPECT_NE(r.output.find("firmware_version=1.0.17\n"), std::string::npos);
    EXPECT_NE(r.output.find("languages=0:en 1:fr 2:es 3:ko 4:ja\n"), std::string::npos);
    EXPECT_NE(r.output.find("\ntz_key=Pacific Standard Time\n"), std::string::npos);
    EXPECT_NE(r.output.find("\nset_resolution=0\n"), std::string::npos);  // the M640's last field
    EXPECT_EQ(r.output.find("parking_night_vision="), std::string::npos);  // not an M640 field

    r = ProcessRunner::run(tarvik, {"card", card.path.string(), "--json"}, std::chrono::seconds(30));
    EXPECT_EQ(r.exitCode, 0);
    EXPECT_NE(r.output.find("\"model_name\": \"M640\""), std::string::npos) << r.output;
    EXPECT_NE(r.output.find("\"lcd_off_timer\": 30000"), std::string::npos);
    EXPECT_NE(r.output.find("\"setting_path\": \"SETTING/M640_Setting.exe\""), std::string::npos);

    // Looking never writes.
    std::ifstream in(card.path / "SETTING" / "setup.cfg", std::ios::binary);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(in), {}), before);

    TempDir krt;
    ASSERT_TRUE(cardgen::writeSettingsFiles(krt.path, m420model::Q260));
    r = ProcessRunner::run(tarvik, {"card", krt.path.string()}, std::chrono::seconds(30));
    EXPECT_EQ(r.exitCode, 0);
    EXPECT_NE(r.output.find("model_name=Q260\n"), std::string::npos) << r.output;
    EXPECT_NE(r.output.find("\npower_off_vlt=12000\n"), std::string::npos);

    TempDir empty;
    r = ProcessRunner::run(tarvik, {"card", empty.path.string()}, std::chrono::seconds(30));
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_NE(r.output.find("model_type=-1\n"), std::string::npos);
}
