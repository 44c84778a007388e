#include <gtest/gtest.h>

#include "core/settings/m420/m420_setting_manager.h"
#include "core/settings/m420/setting_time_file.h"
#include "temp_card.h"

using namespace tarvik;
using tarvik::test::TempCard;
namespace fs = std::filesystem;

TEST(SettingDefaults, EachLoaderClaimsItsOwnRecordLength) {
    // The first field of a factory record is its length; detection relies on
    // it, so it must agree with the width table for that model.
    for (int type : {0, 1, 2, 3, 5}) {
        M420SettingManager m;
        m.setModelType(type);
        m.loadDefaultValue();
        EXPECT_EQ(m.checksum(), m.getSaveDataSize()) << "type " << type;
        EXPECT_EQ(m.product_name(), m.modelNameList()[type]);
    }
}

// What differs by model and region, and the oddities a camera expects kept;
// the values themselves are the factory tables'.
TEST(SettingDefaults, ModelSpecificValuesAndOddities) {
    TempCard card;
    M420SettingManager k;
    k.setSettingDirPath(card.path());
    k.setModelType(0);
    k.loadData();  // no setup.cfg: built-in defaults, nothing written
    EXPECT_FALSE(fs::exists(card.file("SETTING/setup.cfg")));
    EXPECT_EQ(k.tz_key(), "Parcific Standard Time");
    ASSERT_TRUE(k.saveData());
    const std::string b = card.read("SETTING/setup.cfg");
    ASSERT_EQ(b.size(), 432u);
    EXPECT_EQ(test::getLe32(b, 0), 432);
    EXPECT_EQ(b.substr(8, 5), std::string("K310\0", 5));

    M420SettingManager q;
    q.setModelType(3);
    q.loadDefaultValue();
    EXPECT_EQ(q.tz_key(), "Pacific Standard Time");
    EXPECT_EQ(q.ldws_offset_bottom(), 218);

    M420SettingManager uk;
    uk.setModelType(4);
    uk.setLocalID(3);
    uk.loadDefaultValue();
    EXPECT_EQ(uk.tz_key(), "GMT Standard Time");
    EXPECT_EQ(uk.local_id(), 3);
    EXPECT_EQ(uk.gmt_offset(), 0);

    M420SettingManager m640;
    m640.setModelType(5);
    m640.setIot_onoff(9);
    m640.loadDefaultValue();
    EXPECT_EQ(m640.iot_onoff(), 9);  // not one of its fields: kept

    // A K310 loader leaves the Q810-only fields alone.
    q.loadDefaultDataForK310();
    EXPECT_EQ(q.ldws_offset_bottom(), 218);
    EXPECT_EQ(q.checksum(), 432);
}

TEST(SettingDefaults, ModelsWithoutBuiltInDefaultsKeepTheRecord) {
    M420SettingManager m;
    m.setModelType(7);
    m.setFront_resolution(9);
    m.setTz_key("kept");
    m.loadDefaultValue();
    EXPECT_EQ(m.front_resolution(), 9);
    EXPECT_EQ(m.tz_key(), "kept");
    EXPECT_EQ(m.checksum(), 0);
}

TEST(SettingDefaults, FactoryFileIsReadUpToTheLastField) {
    TempCard card;
    M420SettingManager m;
    m.setSettingDirPath(card.path());
    EXPECT_FALSE(m.loadDefaultDataFromDefaultCfgFile());  // no file
    card.write("SETTING/default.cfg", "");
    EXPECT_TRUE(m.loadDefaultDataFromDefaultCfgFile());

    // 700 bytes, longer than the whole width table: every field is read and
    // nothing beyond the 116th is touched.
    std::string b = test::recordNamed("Q850", 700, 596);
    test::putLe32(b, 460, 4);
    b[590] = '7';  // a one-byte field goes through the text path: '7' -> 7
    b[595] = 1;    // and a raw byte 1 is no digit: 0
    card.write("SETTING/default.cfg", b);
    m.setAvn_onoff(5);
    ASSERT_TRUE(m.loadDefaultDataFromDefaultCfgFile());
    EXPECT_EQ(m.checksum(), 596);
    EXPECT_EQ(m.product_name(), "Q850");
    EXPECT_EQ(m.local_id(), 4);
    EXPECT_EQ(m.parking_greater_impact_alarm(), 7);
    EXPECT_EQ(m.avn_onoff(), 0);

    // A tiny file bounds the count of fields by its length in bytes.
    M420SettingManager t;
    t.setSettingDirPath(card.path());
    t.setCfg_struct_version(11);
    card.write("SETTING/default.cfg", std::string("\x10\0\0\0\x20\0\0\0", 8));
    ASSERT_TRUE(t.loadDefaultDataFromDefaultCfgFile());
    EXPECT_EQ(t.checksum(), 16);
    EXPECT_EQ(t.cfg_struct_version(), 32);
}

TEST(SettingTimeFile, FormatParseAndFileLifecycle) {
    SettingTime t{2026, 5, 7, 8, 9, 10, 540};
    EXPECT_EQ(formatSettingTime(t), "2026,05,07,08,09,10,+0900");
    EXPECT_EQ(formatSettingTime({2026, 12, 31, 23, 59, 59, -210}), "2026,12,31,23,59,59,-0330");
    EXPECT_EQ(parseSettingTime("2026,05,07,08,09,10,+0900"), t);
    EXPECT_EQ(parseSettingTime("2024,02,29,00,00,00,-0330")->utcOffsetMinutes, -210);
    for (const char* bad : {"", "2026,05,07,08,09,10", "2026,05,07,08,09,10,+0900,1", "2025,02,29,00,00,00,+0000",
                            "2026,13,01,00,00,00,+0000", "2026,05,07,24,00,00,+0000", "2026,05,07,08,09,10,0900",
                            "2026,05,07,08,09,1x,+0900", "2026,05,07,08,09,10,+0900\n"})
        EXPECT_FALSE(parseSettingTime(bad)) << bad;

    TempCard card;
    EXPECT_FALSE(readSettingTimeFile(card.path()));
    ASSERT_TRUE(writeSettingTimeFile(card.path(), t));
    EXPECT_EQ(card.read("SETTING/time.dat"), "2026,05,07,08,09,10,+0900");  // no line end
    EXPECT_EQ(readSettingTimeFile(card.path()), t);
    card.write("SETTING/time.dat", std::string(4096, '1'));
    EXPECT_FALSE(readSettingTimeFile(card.path()));
    EXPECT_TRUE(removeSettingTimeFile(card.path()));
    EXPECT_FALSE(fs::exists(card.file("SETTING/time.dat")));
    EXPECT_TRUE(removeSettingTimeFile(card.path()));  // already gone
    EXPECT_TRUE(parseSettingTime(formatSettingTime(currentSettingTime())));
}
