// The settings pane's logic without a screen: time zones, the per-model
// control table, and record <-> control positions.

#include <gtest/gtest.h>

#include <random>

#include "core/settings/m420/m420_factory_reset.h"
#include "core/settings/m420/m420_model_types.h"
#include "core/settings/m420/m420_pane_mapping.h"
#include "core/settings/m420/m420_setting_manager.h"
#include "core/settings/m420/m420_time_zones.h"
#include "temp_card.h"

namespace tarvik {
namespace {

using namespace m420pane;
using test::TempCard;

M420SettingManager managerFor(std::int64_t type, int firmware = 17) {
    M420SettingManager m;
    m.setModelType(type);
    m.setFirmwareVersionInt(firmware);
    m.setLanguages({{0, "en"}, {1, "fr"}, {4, "ja"}});
    return m;
}

TEST(M420PaneTimeZones, OffsetsNamesAndTheIndexPastTheNameList) {
    ASSERT_EQ(gmtDescList().size(), 39u);
    ASSERT_EQ(timezoneNameList().size(), 32u);
    for (auto [desc, minutes] : {std::pair{"UTC+05:45", 345}, {"UTC-09:30", -570}, {"UTC-03:30", -210}, {"UTC", 0}})
        EXPECT_EQ(gmtOffsetFromDesc(desc), minutes) << desc;
    EXPECT_EQ(gmtHourList().front(), -720);
    EXPECT_EQ(gmtHourList().back(), 840);

    M420SettingManager m = managerFor(m420model::M420);
    const PaneFeatures f = paneFeaturesFor(m);
    m.setTz_key("kept");
    PaneState s;
    s[Control::TimeZone] = 24;  // "UTC+05:45", paired by index with the 25th name
    saveSettingData(s, f, m);
    EXPECT_EQ(m.gmt_offset(), 345);
    EXPECT_EQ(m.tz_key(), "SA Western Standard Time");
    s[Control::TimeZone] = 35;  // no name at this index: the offset changes, the name stays
    saveSettingData(s, f, m);
    EXPECT_EQ(m.gmt_offset(), 720);
    EXPECT_EQ(m.tz_key(), "SA Western Standard Time");
    EXPECT_EQ(applySettingData(m, f)[Control::TimeZone], 35);
    m.setGmt_offset(17);  // no entry shows it
    EXPECT_EQ(applySettingData(m, f)[Control::TimeZone], kNoPosition);
}

TEST(M420PaneFeatures, TheRecordLengthDecidesWhatAGroupShows) {
    // The Q810's older firmware has a 68-field record without the driver-assistance fields.
    const PaneFeatures oldQ810 = paneFeatures(m420model::Q810, managerFor(m420model::Q810, 16).getSettingVariableCount());
    const PaneFeatures newQ810 = paneFeatures(m420model::Q810, managerFor(m420model::Q810, 17).getSettingVariableCount());
    EXPECT_FALSE(oldQ810.isShown(Control::LdwsOnOff));
    EXPECT_TRUE(newQ810.isShown(Control::LdwsOnOff));
    EXPECT_TRUE(oldQ810.isShown(Control::TouchCalibration));
    // The K310 records no rear camera.
    const PaneFeatures k310 = paneFeatures(m420model::K310, 60);
    EXPECT_FALSE(k310.isShown(Control::RearResolution));
    EXPECT_TRUE(k310.isShown(Control::FrontResolution));
    // Every shown control of every model lies inside that model's record.
    for (std::int64_t t = -1; t < m420model::Count; ++t) {
        M420SettingManager m = managerFor(t);
        const PaneFeatures f = paneFeaturesFor(m);
        const bool native = m420model::settingsPaneFor(t) == m420model::SettingsPane::Native && t != m420model::Newer;
        EXPECT_EQ(f.group != ModelGroup::None, native && t <= m420model::RQ_T4_ZN) << t;
        for (int i = 0; i < kControlCount; ++i) {
            const ControlSpec& s = controlSpec(static_cast<Control>(i));
            if (f.shown[i] && s.mapping != Mapping::None)
                EXPECT_LT(fieldIndex(s.field), m.getSettingVariableCount()) << t << " " << s.name;
        }
    }
    EXPECT_TRUE(paneFeatures(m420model::M640, 79).timeLimitWith36Hours);
    EXPECT_FALSE(paneFeatures(m420model::M420, 60).timeLimitWith36Hours);
    EXPECT_TRUE(paneFeatures(m420model::Q850, 81).parkingTimeLapse);
    EXPECT_FALSE(paneFeatures(m420model::Q810, 78).parkingTimeLapse);
}

TEST(M420PaneMapping, EdgePositions) {
    const PaneFeatures m420 = paneFeatures(m420model::M420, 60);
    const PaneFeatures m640 = paneFeatures(m420model::M640, 79);
    const PaneFeatures m670 = paneFeatures(m420model::M670, 81);
    struct Edge { Control c; const PaneFeatures& f; int position; std::optional<int> value; };
    for (const Edge& e : std::initializer_list<Edge>{
             {Control::FrontBrightness, m420, 0, 2}, {Control::FrontBrightness, m420, 2, 0},
             {Control::ParkingTimeLimit, m640, 7, 36}, {Control::ParkingTimeLimit, m420, 7, 48},  // no 36-hour step
             {Control::ParkingTimeLimit, m420, 8, std::nullopt}, {Control::ParkingMotionSensitivity, m420, 9, 3},
             {Control::SecurityLed, m420, 3, 0}, {Control::SecurityLed, m420, 4, std::nullopt},
             {Control::RearResolution, m420, 2, std::nullopt}, {Control::SpeedUnit, m420, 1, 1},
             {Control::ParkingMode, m420, 2, std::nullopt}, {Control::ParkingMode, m670, 1, 2}})
        EXPECT_EQ(recordValue(e.c, e.f, e.position), e.value) << controlSpec(e.c).name << " " << e.position;
    EXPECT_EQ(controlPosition(Control::ParkingMotionSensitivity, m420, 4), kNoPosition);
    EXPECT_EQ(controlPosition(Control::ParkingMode, m670, 0), 2);
    EXPECT_EQ(controlPosition(Control::ParkingTimeLimit, m640, 36), 7);
    EXPECT_EQ(controlPosition(Control::ParkingTimeLimit, m420, 36), kNoPosition);

    // A position that maps to nothing leaves the field as it was.
    M420SettingManager m = managerFor(m420model::M420);
    m.setPartition_type(3);
    m.setParking_time_limit(5);
    PaneState s;
    s[Control::Partition] = 7;
    s[Control::ParkingTimeLimit] = 0;
    saveSettingData(s, m420, m);
    EXPECT_EQ(m.partition_type(), 3);
    EXPECT_EQ(m.parking_time_limit(), 5);
    EXPECT_EQ(m.product_name(), "M420");
}

// Apply is the inverse of save: positions taken from a record and saved into
// a record of other values give back the first record, field by field, for
// every model with a pane.
TEST(M420PaneMapping, ApplyThenSaveReproducesTheRecordForEveryModel) {
    std::mt19937 rng(11);
    for (std::int64_t t = 0; t <= m420model::RQ_T4_ZN; ++t) {
        M420SettingManager m = managerFor(t);
        const PaneFeatures f = paneFeaturesFor(m);
        if (f.group == ModelGroup::None) continue;
        for (int round = 0; round < 20; ++round) {
            PaneState chosen;
            for (int i = 0; i < kControlCount; ++i) {
                const auto c = static_cast<Control>(i);
                const ControlSpec& s = controlSpec(c);
                int hi = s.widget == Widget::Slider ? f.sliderMaximum(c) : s.positions - 1;
                if (s.mapping == Mapping::ParkingMode) hi = f.parkingTimeLapse ? 2 : 1;
                if (s.mapping == Mapping::Language) hi = 2;
                const int lo = s.widget == Widget::Slider ? f.sliderMinimum(c) : 0;
                chosen.pos[i] = hi >= lo ? std::uniform_int_distribution<int>(lo, hi)(rng) : kNoPosition;
            }
            M420SettingManager a = managerFor(t);
            saveSettingData(chosen, f, a);
            const PaneState back = applySettingData(a, f);
            M420SettingManager b = managerFor(t);
            b.setGmt_offset(99999);
            saveSettingData(back, f, b);
            for (int i = 0; i < m.getSettingVariableCount(); ++i) {
                const auto field = static_cast<M420Field>(i);
                if (field == M420Field::tz_key && a.gmt_offset() > 0 && back[Control::TimeZone] >= 32) continue;
                EXPECT_EQ(a.valueText(field), b.valueText(field)) << "type " << t << " " << kM420FieldNames[i];
            }
            for (int i = 0; i < kControlCount; ++i)
                if (f.shown[i] && controlSpec(static_cast<Control>(i)).mapping != Mapping::None &&
                    controlSpec(static_cast<Control>(i)).mapping != Mapping::MotionSensitivity)
                    EXPECT_EQ(back.pos[i], chosen.pos[i]) << t << " " << controlSpec(static_cast<Control>(i)).name;
        }
    }
}

TEST(M420PaneMapping, ModelsWithoutAPaneKeepTheirRecord) {
    for (std::int64_t t : {m420model::Q260, m420model::M900, m420model::Newer, std::int64_t{-1}}) {
        M420SettingManager m = managerFor(t);
        m.setFront_resolution(3);
        m.setProduct_name("X");
        PaneState s;
        s.pos.fill(0);
        saveSettingData(s, paneFeaturesFor(m), m);
        EXPECT_EQ(m.front_resolution(), 3);
        EXPECT_EQ(m.product_name(), "X");
    }
}

// The pane's graph and its lane-departure labels are checked on screen in the pane's tests.
TEST(M420PanePartition, SharesPerModelGroup) {
    EXPECT_DOUBLE_EQ(partitionShares(m420model::Q850, 0)[0], 60.6);
    EXPECT_DOUBLE_EQ(partitionShares(m420model::M420, 2)[3], 15);
    EXPECT_EQ(partitionShares(m420model::M420, 3), (std::array<double, 5>{}));
    EXPECT_STREQ((*ldwsSpeedLabels(m420model::M60, false))[0], "50km");
    EXPECT_FALSE(ldwsSpeedLabels(m420model::M420, true));
}

TEST(M420PaneReset, FactoryFileReplacesTheManagerElseBuiltInDefaults) {
    TempCard card;
    M420SettingManager& m = M420SettingManager::SharedM420SettingManager();
    m.setSettingDirPath(card.path());
    m.setModelType(m420model::Q810UK);
    m.setFirmwareVersionInt(17);
    m.setLocalID(3);
    m.setVersion("1.0.17");
    m.setFront_resolution(1);
    m.setLanguages({{2, "ja"}});
    resetM420SettingsToFactory();  // no default.cfg: the Q810 loader in place, UK variant
    M420SettingManager& same = M420SettingManager::SharedM420SettingManager();
    EXPECT_EQ(&same, &m);
    EXPECT_EQ(same.front_resolution(), 3);
    EXPECT_EQ(same.tz_key(), "GMT Standard Time");
    same.setVersion("1.0.17");  // the built-in loader empties it; the card's firmware text is put back

    std::string factory = test::recordNamed("Q810", 504);
    test::putLe32(factory, 52, 2);  // front_resolution
    card.write("SETTING/default.cfg", factory);
    resetM420SettingsToFactory();
    M420SettingManager& fresh = M420SettingManager::SharedM420SettingManager();
    EXPECT_EQ(fresh.front_resolution(), 2);
    EXPECT_EQ(fresh.version(), "1.0.17");
    EXPECT_EQ(fresh.firmwareVersionInt(), 17);
    EXPECT_EQ(fresh.settingDirPath(), card.path());
    EXPECT_EQ(fresh.languages(), (LanguageList{{2, "ja"}}));
    EXPECT_FALSE(std::filesystem::exists(card.file("SETTING/setup.cfg"))) << "a reset writes nothing";
}

}  // namespace
}  // namespace tarvik
