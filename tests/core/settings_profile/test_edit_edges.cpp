// The edges of a settings edit: the last value a field's width holds, and a
// file changed between the read and the write without changing its size.
#include <gtest/gtest.h>

#include "../settings/temp_card.h"
#include "cardgen/card_plan.h"
#include "core/settings/m420/m420_model_types.h"
#include "core/settings/profile/card_settings.h"
#include "core/settings/profile/settings_edit.h"

using namespace tarvik;
using test::TempCard;

namespace {

std::optional<CardSettings> cardOf(const TempCard& card, int type) {
    std::string error;
    if (!cardgen::writeSettingsFiles(card.root(), type, &error)) return std::nullopt;
    return readCardSettings(card.path(), &error);
}

}  // namespace

TEST(EditEdges, EachWidthTakesItsLastValueAndNotOneMore) {
    // A 1-byte and a 4-byte field; the 1-byte fields come only with the longest records.
    for (int type = 0; type < m420model::Count; ++type) {
        TempCard card;
        const auto s = cardOf(card, type);
        if (!s || !s->find("iot_onoff")) continue;
        SCOPED_TRACE("model type " + std::to_string(type));
        struct Case {
            const char* name;
            std::string first, last, beyond, below;
        };
        for (const Case& c : {Case{"iot_onoff", "0", "255", "256", "-1"},
                              Case{"front_resolution", "-2147483648", "2147483647", "2147483648", "-2147483649"}}) {
            std::string error;
            EXPECT_TRUE(planSettingsEdit(*s, {{c.name, c.first}}, &error)) << c.name << error;
            EXPECT_TRUE(planSettingsEdit(*s, {{c.name, c.last}}, &error)) << c.name << error;
            EXPECT_FALSE(planSettingsEdit(*s, {{c.name, c.beyond}}, &error)) << c.name;
            EXPECT_NE(error.find("whole number from"), std::string::npos) << error;
            EXPECT_FALSE(planSettingsEdit(*s, {{c.name, c.below}}, &error)) << c.name;
        }
        const auto edit = planSettingsEdit(*s, {{"iot_onoff", "255"}}, nullptr);
        ASSERT_TRUE(edit);
        ASSERT_TRUE(commitSettingsEdit(*s, *edit, nullptr));
        const auto back = readCardSettings(card.path(), nullptr);
        ASSERT_TRUE(back);
        EXPECT_EQ(back->find("iot_onoff")->value, "255");
        return;
    }
    FAIL() << "no model with 1-byte fields";
}

TEST(EditEdges, KrtHoursFromMinusTwelveToFourteen) {
    TempCard card;
    const auto s = cardOf(card, m420model::Q260);
    ASSERT_TRUE(s);
    for (const char* ok : {"-12", "14", "14.000000", "5.5"}) EXPECT_TRUE(planSettingsEdit(*s, {{"local_time", ok}}, nullptr)) << ok;
    for (const char* bad : {"-12.5", "14.01", "15", "inf", "nan"})
        EXPECT_FALSE(planSettingsEdit(*s, {{"local_time", bad}}, nullptr)) << bad;
}

TEST(EditEdges, ASameSizeChangeBetweenReadAndWriteIsSeen) {
    TempCard card;
    const auto s = cardOf(card, m420model::M640);
    ASSERT_TRUE(s);
    const auto edit = planSettingsEdit(*s, {{"cur_language", "1"}}, nullptr);
    ASSERT_TRUE(edit);
    // The camera (or another program) rewrote one byte meanwhile.
    const std::string rel = "SETTING/setup.cfg";
    std::string other = card.read(rel);
    other[100] = static_cast<char>(other[100] ^ 0x5a);
    card.write(rel, other);
    std::string error;
    EXPECT_FALSE(commitSettingsEdit(*s, *edit, &error));
    EXPECT_NE(error.find("changed while it was being edited"), std::string::npos) << error;
    EXPECT_EQ(card.read(rel), other);
}
