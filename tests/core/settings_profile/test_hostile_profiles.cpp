// Profiles that are JSON but not what the profile document allows, or not
// quite JSON: each refused with its own reason, every card byte as it was.
#include <gtest/gtest.h>

#include <map>

#include "../settings/temp_card.h"
#include "cardgen/card_plan.h"
#include "core/settings/m420/m420_model_types.h"
#include "core/settings/profile/settings_profile.h"
#include "core/util/process_runner.h"

using namespace tarvik;
using test::TempCard;
namespace fs = std::filesystem;

namespace {

std::map<std::string, std::string> everyByte(const TempCard& card) {
    std::map<std::string, std::string> t;
    for (const auto& e : fs::recursive_directory_iterator(card.root()))
        if (e.is_regular_file()) t[fs::relative(e.path(), card.root()).string()] = card.read(fs::relative(e.path(), card.root()).string());
    return t;
}

std::string profile(const std::string& settings, const std::string& head = R"("model_type":5)") {
    return R"({"tarvik_settings_profile":1,"family":"m420",)" + head + R"(,"settings":{)" + settings + "}}";
}

}  // namespace

TEST(HostileProfiles, EachRefusedWithItsOwnReasonAndNoCardByteChanged) {
    TempCard m640, krt, files;
    std::string error;
    ASSERT_TRUE(cardgen::writeSettingsFiles(m640.root(), m420model::M640, &error)) << error;
    ASSERT_TRUE(cardgen::writeSettingsFiles(krt.root(), m420model::Q260, &error)) << error;
    const auto m640Before = everyByte(m640), krtBefore = everyByte(krt);

    struct Case {
        const char* name;
        std::string json;
        const TempCard* card;
        std::string reason;
    };
    const std::vector<Case> cases = {
        {"text for a number", profile(R"("wdr":"1")"), &m640, "wdr: a whole number is expected, not a text"},
        {"number for a text", profile(R"("tz_key":5)"), &m640, "tz_key: a text is expected, not a number"},
        {"number for a blackbox.cfg value",
         R"({"tarvik_settings_profile":1,"family":"krt","model_type":6,"settings":{"acc_level":3}})", &krt,
         "acc_level: a text is expected, not a number"},
        {"leading zero", profile(R"("wdr":01)"), &m640, "a number with a leading zero"},
        {"negative leading zero", profile(R"("gmt_offset":-0480)"), &m640, "a number with a leading zero"},
        {"duplicate setting", profile(R"("wdr":1,"wdr":0)"), &m640, "duplicate member \"wdr\""},
        {"duplicate model", profile("", R"("model_type":3,"model_type":5)"), &m640, "duplicate member \"model_type\""},
        {"NUL in a name", profile(R"("front_resolution\u0000x":1)"), &m640,
         "setting \"front_resolution\\u0000x\": a control character in the name"},
        {"format as text", R"({"tarvik_settings_profile":"1","family":"m420","model_type":5,"settings":{}})", &m640,
         "\"tarvik_settings_profile\" must be the number 1"},
        {"format 2", R"({"tarvik_settings_profile":2,"family":"m420","model_type":5,"settings":{}})", &m640,
         "profile format 2 is not one this version reads"},
        {"invalid UTF-8", profile("\"tz_key\":\"\xff\xfe\""), &m640, "invalid UTF-8"},
        {"fraction", profile(R"("wdr":1.0)"), &m640, "only whole numbers are allowed"},
        {"beyond 64 bits", profile(R"("wdr":9223372036854775808)"), &m640, "number too large"},
        {"too deep", profile(R"("wdr":[[[[[[[[1]]]]]]]])"), &m640, "nested too deeply"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        files.write("p.json", c.json);
        const ProcessResult r = ProcessRunner::run(std::string(TARVIK_BINARY_DIR) + "/tarvik",
                                                   {"settings", "apply", files.file("p.json").string(), c.card->path()},
                                                   std::chrono::seconds(30));
        EXPECT_EQ(r.exitCode, 1) << r.output;
        EXPECT_NE(r.output.find(c.reason), std::string::npos) << r.output;
    }
    EXPECT_EQ(everyByte(m640), m640Before);
    EXPECT_EQ(everyByte(krt), krtBefore);
}

TEST(HostileProfiles, TheGrammarsEdgesStillRead) {
    // Escapes, a top-level value of every kind inside "settings" refused by
    // kind, and the deepest nesting allowed.
    std::string error;
    const auto ok = parseSettingsProfile(profile(R"("tz_key":"K\u00f6rea \ud83d\ude97","wdr":-0,"x":0)"), &error);
    ASSERT_TRUE(ok) << error;
    ASSERT_EQ(ok->settings.size(), 3u);
    EXPECT_EQ(ok->settings[0].value, "K\xc3\xb6rea \xf0\x9f\x9a\x97");
    EXPECT_EQ(ok->settings[0].given, ValueKind::Text);
    EXPECT_EQ(ok->settings[1].value, "0");
    EXPECT_EQ(ok->settings[1].given, ValueKind::Number);
    EXPECT_FALSE(parseSettingsProfile(profile(R"("wdr":true)"), &error));
    EXPECT_NE(error.find("a number or a short text"), std::string::npos) << error;
    EXPECT_FALSE(parseSettingsProfile(profile("") + " x", &error));
    EXPECT_NE(error.find("text after the end"), std::string::npos) << error;
    EXPECT_FALSE(parseSettingsProfile(profile(R"("a":"\ud800")"), &error));
    EXPECT_NE(error.find("lone surrogate"), std::string::npos) << error;
    // The largest whole number read, and the deepest nesting (a value eight
    // levels down: refused for its kind, not for its depth).
    const auto big = parseSettingsProfile(profile(R"("wdr":9223372036854775807,"x":-9223372036854775808)"), &error);
    ASSERT_TRUE(big) << error;
    EXPECT_EQ(big->settings[0].value, "9223372036854775807");
    EXPECT_EQ(big->settings[1].value, "-9223372036854775808");
    EXPECT_FALSE(parseSettingsProfile(profile(R"("wdr":[[[[[[1]]]]]])"), &error));
    EXPECT_NE(error.find("a number or a short text"), std::string::npos) << error;
    EXPECT_FALSE(parseSettingsProfile(profile(R"("wdr":[[[[[[[1]]]]]]])"), &error));
    EXPECT_NE(error.find("nested too deeply"), std::string::npos) << error;
}
