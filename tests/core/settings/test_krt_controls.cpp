#include <gtest/gtest.h>

#include "core/settings/krt/krt_control_rules.h"
#include "core/settings/krt/krt_setting_manager.h"
#include "core/settings/m420/m420_setting_manager.h"
#include "core/settings/m420/settings_alert_sink.h"
#include "temp_card.h"

using namespace tarvik;
using namespace tarvik::krtrules;
using tarvik::test::TempCard;

namespace {

using Lines = std::vector<std::string>;
using C = KrtControl;

struct CountingAlerts : SettingsAlertSink {
    CountingAlerts() { setSettingsAlertSink(this); }
    ~CountingAlerts() override { setSettingsAlertSink(nullptr); }
    void showSettingsAlert(const std::string&, const std::string&, const std::string&) override { ++count; }
    int count = 0;
};

struct CardScope {
    explicit CardScope(const std::string& root) {
        M420SettingManager::SharedM420SettingManager().setSettingDirPath(root);
        M420SettingManager::SharedM420SettingManager().setModelType(6);
    }
    ~CardScope() { M420SettingManager::ChagneM420SettingManager(std::make_unique<M420SettingManager>()); }
};

}  // namespace

// The values a card shows as its pane opens and what OK writes are checked in
// the pane's own tests; these are the edges around them.
TEST(KrtControls, ReadingTolerantValuesAndWritingThem) {
    struct Read { C control; const char* value; int index; };
    for (const Read& r : std::initializer_list<Read>{
             // Cut-off voltage goes by whole tenths of a volt.
             {C::PowerOffVoltage, "0", 0}, {C::PowerOffVoltage, "99", 0}, {C::PowerOffVoltage, "12299", 3},
             {C::PowerOffVoltage, "11700", 2}, {C::PowerOffVoltage, "abc", 0},
             // Time zones: whole hours only; hours the camera lacks fall to Pacific.
             {C::TimeZone, "-10.000000", 0}, {C::TimeZone, "-4.000000", 6}, {C::TimeZone, "0.000000", 7},
             {C::TimeZone, "1", 8}, {C::TimeZone, "5", 2}, {C::TimeZone, "8.000000", 9}, {C::TimeZone, "10.000000", 11},
             {C::TimeZone, "11", 2}, {C::TimeZone, "-11", 2}, {C::TimeZone, "99999999999999", 2},
             // Sliders: impact accepts 2-4, the others 1, 3 and 5.
             {C::ImpactSensitivity, "4", 4}, {C::ImpactSensitivity, "5", 3}, {C::VoiceVolume, "5", 5},
             {C::MotionSensitivity, "1", 1}, {C::MotionSensitivity, "4", 3},
             // On/off groups differ in what counts as on.
             {C::ParkMode, "2", 1}, {C::SoundRecording, "2", 0}, {C::VoiceGuidance, "-1", 0}, {C::SpeedUnit, "3", 0},
             {C::Language, "FR", 0}})
        EXPECT_EQ(readIndex(r.control, r.value), r.index) << r.value;

    struct Write { C control; int index; const char* value; };
    for (const Write& w : std::initializer_list<Write>{
             {C::TimeZone, 0, "-10.000000"}, {C::TimeZone, 7, "0.000000"}, {C::TimeZone, 12, "-8.000000"},
             {C::TimeZone, -1, "-8.000000"}, {C::PowerOffVoltage, 0, "0"}, {C::PowerOffVoltage, 1, "11800"},
             {C::PowerOffVoltage, 3, "12200"}, {C::PowerOffVoltage, 7, "12000"}, {C::SpeedUnit, 0, "1"},
             {C::ParkMode, 1, "0"}, {C::Language, 1, "fr"}, {C::Language, 0, "us"}})
        EXPECT_EQ(writeValue(w.control, w.index), w.value) << w.index;
    EXPECT_EQ(timeZoneKeys().size(), std::size_t(kTimeZoneCount));
    // Every item reads back as itself, Adelaide's half hour included.
    for (int item = 0; item < kTimeZoneCount; ++item)
        EXPECT_EQ(readIndex(C::TimeZone, writeValue(C::TimeZone, item)), item) << item;
}

TEST(KrtControls, ControlsEditTheirLineInPlaceOnly) {
    KRTSettingManager k;
    k.setLinedSettings({"[blackbox]", "; power_off_vlt=0 is off", "power_off_vlt=11850", "x=1", "local_time=9.500000",
                        "power_off_vlt=0"});
    EXPECT_EQ(readControl(k, C::PowerOffVoltage), 1);
    EXPECT_EQ(readControl(k, C::TimeZone), 10);
    EXPECT_EQ(readControl(k, C::Language), 0);  // a missing line reads as the first row
    EXPECT_TRUE(writeControl(k, C::PowerOffVoltage, 3));
    EXPECT_FALSE(writeControl(k, C::Language, 1));
    EXPECT_EQ(k.linedSettings(), (Lines{"[blackbox]", "; power_off_vlt=0 is off", "power_off_vlt=12200", "x=1",
                                        "local_time=9.500000", "power_off_vlt=0"}));
}

TEST(KrtControls, PartitionWithALineMissing) {
    KRTSettingManager k;
    k.setLinedSettings({"const=60", "event=22", "park=4"});  // manual= missing reads as 0
    EXPECT_EQ(memoryPartitionColumn(k), 0);
    EXPECT_EQ(memoryPartitionPercents(k)[3], 0);
}

TEST(KrtControls, ClockSwitchAndCommit) {
    KRTSettingManager k;
    k.setLinedSettings({"[time]", "set=1", "set=1"});
    setClockEnabled(k, false);
    EXPECT_EQ(k.linedSettings(), (Lines{"[time]", "set=0", "set=1"}));
    k.setLinedSettings({});
    EXPECT_FALSE(setClockEnabled(k, true));
    EXPECT_TRUE(k.linedSettings().empty());

    // A file that could not be read is never overwritten, the clock left off too.
    TempCard card;
    CardScope scope(card.path());
    CountingAlerts alerts;
    const std::string junk("\xc3\x28 not utf-8", 13);
    card.write("SETTING/blackbox.cfg", junk);
    k.loadData();
    EXPECT_FALSE(commitSettings(k, nullptr));
    EXPECT_EQ(card.read("SETTING/blackbox.cfg"), junk);

    // The card taken out while the pane is open: an alert, and nothing made
    // where it was.
    const ClockDate date{2026, 5, 7, 8, 0, 9};
    k.setLinedSettings({"[time]", "set=0"});
    std::filesystem::remove_all(card.root());
    EXPECT_FALSE(commitSettings(k, &date));
    EXPECT_EQ(alerts.count, 2);
    EXPECT_FALSE(std::filesystem::exists(card.root()));
}
