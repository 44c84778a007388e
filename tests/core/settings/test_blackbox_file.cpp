#include <gtest/gtest.h>

#include "core/settings/krt/krt_setting_manager.h"
#include "core/settings/m420/m420_setting_manager.h"
#include "temp_card.h"

using namespace tarvik;
using tarvik::test::TempCard;
namespace fs = std::filesystem;

namespace {

using Lines = std::vector<std::string>;

// Points the shared M420 manager (which owns the card's folder) at a card.
struct CardScope {
    explicit CardScope(const std::string& root, std::int64_t type = 6) {
        auto& m = M420SettingManager::SharedM420SettingManager();
        m.setSettingDirPath(root);
        m.setModelType(type);
    }
    ~CardScope() { M420SettingManager::ChagneM420SettingManager(std::make_unique<M420SettingManager>()); }
};

}  // namespace

TEST(BlackboxFile, LinesSurviveLoadAndSaveUnchanged) {
    TempCard card;
    const std::string text =
        "; written by hand\r\n[capacity]\r\nconst=60\r\nevent=22\r\n\r\nmanual=9\r\npark=4\r\n[extra]\r\nfoo = bar\r\n"
        "[blackbox]\r\nfront_led=1\r\nfront_led=0\r\n[time]\r\nset=0";
    card.write("SETTING/blackbox.cfg", " \t" + text + "\t ");
    CardScope scope(card.path());
    KRTSettingManager k;
    k.loadData();
    EXPECT_EQ(k.linedSettings().size(), 14u);
    EXPECT_EQ(k.linedSettings()[0], "; written by hand");
    EXPECT_EQ(k.valueForKey("front_led="), "1");
    EXPECT_TRUE(k.setValueForKey("front_led=", "0"));
    EXPECT_FALSE(k.setValueForKey("osd_speed=", "2"));  // a missing key is never added
    ASSERT_TRUE(k.saveData());
    std::string expected = text;
    expected.replace(expected.find("front_led=1"), 11, "front_led=0");
    EXPECT_EQ(card.read("SETTING/blackbox.cfg"), expected);

    // A final line end only makes an empty last line, which is written back.
    card.write("SETTING/blackbox.cfg", "[time]\r\nset=1\r\n");
    k.loadData();
    EXPECT_EQ(k.linedSettings(), (Lines{"[time]", "set=1", ""}));
    EXPECT_EQ(KRTSettingManager::joinLines(k.linedSettings()), "[time]\r\nset=1\r\n");
    EXPECT_EQ(KRTSettingManager::splitLines("a\r\nb"), (Lines{"a", "b"}));
}

TEST(BlackboxFile, BareLineFeedsAndJunkGiveOneLineAndNoKeys) {
    TempCard card;
    card.write("SETTING/blackbox.cfg", "[capacity]\nconst=60\nevent=22");
    CardScope scope(card.path());
    KRTSettingManager k;
    k.loadData();
    ASSERT_EQ(k.linedSettings().size(), 1u);
    EXPECT_FALSE(k.setValueForKey("const=", "53"));
    EXPECT_FALSE(k.valueForKey("event="));
    EXPECT_EQ(k.intValueForKey("event="), 0);

    card.write("SETTING/blackbox.cfg", std::string("\xff\xfe\0junk", 7));
    k.loadData();
    EXPECT_TRUE(k.linedSettings().empty());
    k.addTimeDateDelimiters(KRTSettingManager::clockLines(2026, 5, 1, 9, 3, 0));  // appended, no crash
    EXPECT_EQ(k.linedSettings().front(), "year=2026");
}

TEST(BlackboxFile, ClockLines) {
    KRTSettingManager k;
    k.setLinedSettings({"[capacity]", "const=60", "[time]", "set=1", "year=2020", "year=2019", "month=1", "sec=5"});
    k.removeTimeDateDelimiters();
    EXPECT_EQ(k.linedSettings(), (Lines{"[capacity]", "const=60", "[time]", "set=1", "year=2019"}));
    k.addTimeDateDelimiters(KRTSettingManager::clockLines(2026, 5, 7, 8, 0, 9));
    EXPECT_EQ(k.linedSettings(), (Lines{"[capacity]", "const=60", "[time]", "set=1", "year=2026", "month=5", "day=7",
                                        "hour=8", "min=0", "sec=9", "year=2019"}));

    KRTSettingManager noSet;
    noSet.setLinedSettings({"[capacity]", "const=60", "[time]"});
    noSet.addTimeDateDelimiters({"year=2026", "month=5"});
    EXPECT_EQ(noSet.linedSettings(), (Lines{"[capacity]", "year=2026", "month=5", "const=60", "[time]"}));
}

TEST(BlackboxFile, PartitionPresets) {
    const auto& presets = KRTSettingManager::memoryPartitionRatiosArray();
    ASSERT_EQ(presets.size(), 3u);
    for (const auto& p : presets) {
        int sum = 0;
        for (const auto& [kind, percent] : p) sum += std::stoi(percent);
        EXPECT_EQ(sum, 95);
    }
    KRTSettingManager k;
    k.setLinedSettings({"[capacity]", "park=4", "const=60", "manual=9", "event=22", "[blackbox]"});
    EXPECT_EQ(k.currentMemoryPartitionPreset(), 0);
    k.applyMemoryPartitionPreset(2);
    EXPECT_EQ(k.linedSettings(), (Lines{"[capacity]", "park=14", "const=53", "manual=9", "event=19", "[blackbox]"}));
    EXPECT_EQ(k.currentMemoryPartitionPreset(), 2);
    k.setValueForKey("manual=", "10");
    EXPECT_EQ(k.currentMemoryPartitionPreset(), -1);
}

TEST(BlackboxFile, FactoryFileCoversEverySectionAndKey) {
    KRTSettingManager::setFactoryDefaultsText(std::nullopt);
    // Found beside the test program, in the build tree.
    const auto text = KRTSettingManager::factoryDefaultsText();
    ASSERT_TRUE(text) << "settings/default_Q260.cfg not found near the program";
    KRTSettingManager k;
    k.setLinedSettings(KRTSettingManager::splitLines(*text));
    EXPECT_EQ(KRTSettingManager::joinLines(k.linedSettings()), *text);
    int capacity = k.indexOfLineWithPrefix("[capacity]"), blackbox = k.indexOfLineWithPrefix("[blackbox]"),
        time = k.indexOfLineWithPrefix("[time]");
    EXPECT_TRUE(capacity == 0 && capacity < blackbox && blackbox < time);
    for (const char* key : {"const=", "event=", "manual=", "park="}) {
        EXPECT_GT(k.indexOfLineWithPrefix(key), capacity) << key;
        EXPECT_LT(k.indexOfLineWithPrefix(key), blackbox) << key;
    }
    for (const char* key : {"front_led=", "model=", "version=", "park_mode=", "power_off_vlt=", "language=",
                            "local_time=", "summer_time=", "osd_speed=", "mic_in=", "voice_out=", "voice_volume=",
                            "acc_level=", "motion_level="}) {
        EXPECT_GT(k.indexOfLineWithPrefix(key), blackbox) << key;
        EXPECT_LT(k.indexOfLineWithPrefix(key), time) << key;
    }
    EXPECT_GT(k.indexOfLineWithPrefix("set="), time);
    EXPECT_EQ(k.currentMemoryPartitionPreset(), 0);

    // Without a card file the factory lines are loaded; other models never reset.
    TempCard card;
    {
        CardScope scope(card.path(), 1);
        KRTSettingManager::setFactoryDefaultsText("[capacity]\r\nconst=1");
        KRTSettingManager fresh;
        fresh.loadData();
        EXPECT_EQ(fresh.linedSettings(), (Lines{"[capacity]", "const=1"}));
        fresh.setLinedSettings({"mine"});
        fresh.loadDefaultValue();
        EXPECT_EQ(fresh.linedSettings(), (Lines{"mine"}));
        M420SettingManager::SharedM420SettingManager().setModelType(6);
        fresh.loadDefaultValue();
        EXPECT_EQ(fresh.linedSettings(), (Lines{"[capacity]", "const=1"}));
        // Saving to a card without SETTING/ creates it.
        ASSERT_TRUE(fresh.saveData());
        EXPECT_EQ(card.read("SETTING/blackbox.cfg"), "[capacity]\r\nconst=1");
    }
    KRTSettingManager::setFactoryDefaultsText(std::nullopt);
}
