// Cards written by the card generator are recognised the way a camera's are,
// and `tarvik card` reports them.

#include <gtest/gtest.h>
#include <filesystem>

#include "../temp_card.h"
#include "cardgen/card_plan.h"
#include "core/settings/m420/m420_model_types.h"
#include "core/settings/m420/m420_setting_manager.h"
#include "core/settings/m420/setting_time_file.h"
#include "core/util/process_runner.h"

using namespace tarvik;
using test::TempCard;
namespace fs = std::filesystem;

TEST(GeneratedCards, EveryModelIsDetectedWithItsRecordLength) {
    for (int type = 0; type < m420model::Count; ++type) {
        TempCard card;
        std::string error;
        ASSERT_TRUE(cardgen::writeSettingsFiles(card.root(), type, &error)) << error;
        M420SettingManager m;
        const std::int64_t expected = type == m420model::Q810UK ? m420model::Q810 : std::min(type, 26);
        EXPECT_EQ(m.loadModelTypeWithSDPath(card.path()), expected) << "type " << type;
        if (type == m420model::Q260) {
            EXPECT_FALSE(fs::exists(card.root() / "SETTING" / "setup.cfg"));
            continue;
        }
        m.setModelType(type);
        m.setFirmwareVersionInt(M420SettingManager::firmwareNumberFromVersion(
            M420SettingManager::loadVersionSDPath(card.path())));
        EXPECT_EQ(fs::file_size(card.root() / "SETTING" / "setup.cfg"), static_cast<std::uintmax_t>(m.getSaveDataSize()))
            << "type " << type;
        EXPECT_EQ(fs::file_size(card.root() / "SETTING" / "default.cfg"), fs::file_size(card.root() / "SETTING" / "setup.cfg"));
        EXPECT_TRUE(readSettingTimeFile(card.path()));
        m.setSettingDirPath(card.path());
        m.loadLanguages();
        EXPECT_EQ(m.languages().size(), 5u);
        if (type >= 26) EXPECT_EQ(m.modelName(), m.modelNameList()[type]);
    }
    const int demo = cardgen::demoModelType();
    EXPECT_EQ(m420model::settingsPaneFor(demo), m420model::SettingsPane::Native);
}

TEST(GeneratedCards, CardCommandPrintsModelAndFields) {
    TempCard card;
    ASSERT_TRUE(cardgen::writeSettingsFiles(card.root(), cardgen::demoModelType()));
    const std::string before = card.read("SETTING/setup.cfg");
    const std::string tarvik = std::string(TARVIK_BINARY_DIR) + "/tarvik";
    ProcessResult r = ProcessRunner::run(tarvik, {"card", card.path()}, std::chrono::seconds(30));
    ASSERT_TRUE(r.started);
    EXPECT_EQ(r.exitCode, 0) << r.output;
    EXPECT_NE(r.output.find("model_type=5\n"), std::string::npos) << r.output;
    EXPECT_NE(r.output.find("model_name=M640\n"), std::string::npos);
    EXPECT_NE(r.output.find("firmware_version=1.0.17\n"), std::string::npos);
    EXPECT_NE(r.output.find("languages=0:en 1:fr 2:es 3:ko 4:ja\n"), std::string::npos);
    EXPECT_NE(r.output.find("\ntz_key=Pacific Standard Time\n"), std::string::npos);
    EXPECT_NE(r.output.find("\nset_resolution=0\n"), std::string::npos);  // the M640's last field
    EXPECT_EQ(r.output.find("parking_night_vision="), std::string::npos);  // not an M640 field

    r = ProcessRunner::run(tarvik, {"card", card.path(), "--json"}, std::chrono::seconds(30));
    EXPECT_EQ(r.exitCode, 0);
    EXPECT_NE(r.output.find("\"model_name\": \"M640\""), std::string::npos) << r.output;
    EXPECT_NE(r.output.find("\"lcd_off_timer\": 30000"), std::string::npos);
    EXPECT_NE(r.output.find("\"setting_path\": \"SETTING/M640_Setting.exe\""), std::string::npos);

    // Looking never writes.
    EXPECT_EQ(card.read("SETTING/setup.cfg"), before);

    TempCard krt;
    ASSERT_TRUE(cardgen::writeSettingsFiles(krt.root(), m420model::Q260));
    r = ProcessRunner::run(tarvik, {"card", krt.path()}, std::chrono::seconds(30));
    EXPECT_EQ(r.exitCode, 0);
    EXPECT_NE(r.output.find("model_name=Q260\n"), std::string::npos) << r.output;
    EXPECT_NE(r.output.find("\npower_off_vlt=12000\n"), std::string::npos);

    TempCard empty;
    r = ProcessRunner::run(tarvik, {"card", empty.path()}, std::chrono::seconds(30));
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_NE(r.output.find("model_type=-1\n"), std::string::npos);
}
