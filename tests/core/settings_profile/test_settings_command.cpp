// `tarvik settings`, run as the real program on generated cards: round trips
// through a profile for every model group, exact byte changes, and refusals
// that leave every card byte for byte as it was.

#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <map>

#include "../settings/temp_card.h"
#include "cardgen/card_plan.h"
#include "core/settings/m420/m420_model_types.h"
#include "core/settings/profile/card_settings.h"
#include "core/util/process_runner.h"

using namespace tarvik;
using test::TempCard;
namespace fs = std::filesystem;

namespace {

ProcessResult tarvikSettings(const std::vector<std::string>& args) {
    std::vector<std::string> a = {"settings"};
    a.insert(a.end(), args.begin(), args.end());
    return ProcessRunner::run(std::string(TARVIK_BINARY_DIR) + "/tarvik", a, std::chrono::seconds(30));
}

using Tree = std::map<std::string, std::string>;
Tree snapshot(const TempCard& card) {
    Tree t;
    for (const auto& e : fs::recursive_directory_iterator(card.root()))
        if (e.is_regular_file()) t[fs::relative(e.path(), card.root()).string()] = card.read(fs::relative(e.path(), card.root()).string());
    return t;
}

void makeCard(const TempCard& card, std::int64_t type) {
    std::string error;
    ASSERT_TRUE(cardgen::writeSettingsFiles(card.root(), static_cast<int>(type), &error)) << error;
}

CardSettings readBack(const TempCard& card) {
    std::string error;
    auto s = readCardSettings(card.path(), &error);
    EXPECT_TRUE(s) << error;
    return s.value_or(CardSettings{});
}

// Record offsets written out independently of the code's layout table.
constexpr std::size_t kSerialAt = 24, kBrightnessAt = 64, kLanguageAt = 428;

}  // namespace

TEST(SettingsCommand, ProfileRoundTripForEveryModelGroup) {
    for (std::int64_t type : {m420model::K310, m420model::M420, m420model::Q610, m420model::Q810, m420model::M640,
                              m420model::Q650, m420model::M60, m420model::Q260}) {
        SCOPED_TRACE("model type " + std::to_string(type));
        TempCard source, target;
        makeCard(source, type);
        makeCard(target, type);
        const bool krt = type == m420model::Q260;
        // The target camera has settings of its own and an identity of its own.
        std::string file = krt ? "SETTING/blackbox.cfg" : "SETTING/setup.cfg";
        std::string bytes = target.read(file);
        if (krt) {
            bytes.replace(bytes.find("acc_level=3"), 11, "acc_level=5");
            bytes.replace(bytes.find("version=1.0.4"), 13, "version=7.7.7");
        } else {
            test::putLe32(bytes, kBrightnessAt, 7);
            test::putLe32(bytes, kLanguageAt, 3);
            bytes.replace(kSerialAt, 8, "SERIAL-X");
        }
        target.write(file, bytes);

        const ProcessResult exported = tarvikSettings({source.path(), "export"});
        ASSERT_EQ(exported.exitCode, 0) << exported.output;
        TempCard profiles;
        profiles.write("p.json", exported.output);
        const ProcessResult applied = tarvikSettings({"apply", profiles.file("p.json").string(), target.path()});
        ASSERT_EQ(applied.exitCode, 0) << applied.output;
        const std::string changed = krt ? ": changed 1 setting\n" : ": changed 2 settings\n";
        EXPECT_NE(applied.output.find(target.path() + changed), std::string::npos) << applied.output;

        const CardSettings want = readBack(source), got = readBack(target);
        ASSERT_EQ(want.fields.size(), got.fields.size());
        for (std::size_t i = 0; i < want.fields.size(); ++i) {
            if (want.fields[i].identity) continue;
            EXPECT_EQ(got.fields[i].value, want.fields[i].value) << want.fields[i].name;
        }
        const std::string after = target.read(file);
        if (krt) EXPECT_NE(after.find("\r\nversion=7.7.7\r\n"), std::string::npos);
        else EXPECT_EQ(after.substr(kSerialAt, 8), "SERIAL-X");
        EXPECT_EQ(after.size(), bytes.size());
    }
}

TEST(SettingsCommand, SetChangesOnlyTheFieldsBytes) {
    TempCard card;
    makeCard(card, m420model::M640);
    const std::string before = card.read("SETTING/setup.cfg");
    ASSERT_NE(test::getLe32(before, kLanguageAt), 1);

    const ProcessResult dry = tarvikSettings({card.path(), "set", "--dry-run", "cur_language=1"});
    EXPECT_EQ(dry.exitCode, 0) << dry.output;
    EXPECT_NE(dry.output.find("would change 1 setting"), std::string::npos) << dry.output;
    EXPECT_EQ(card.read("SETTING/setup.cfg"), before);

    const ProcessResult set = tarvikSettings({card.path(), "set", "cur_language=1"});
    ASSERT_EQ(set.exitCode, 0) << set.output;
    const std::string after = card.read("SETTING/setup.cfg");
    ASSERT_EQ(after.size(), before.size());
    for (std::size_t i = 0; i < after.size(); ++i)
        if (i < kLanguageAt || i > kLanguageAt + 3) ASSERT_EQ(after[i], before[i]) << "byte " << i;
    EXPECT_EQ(test::getLe32(after, kLanguageAt), 1);

    // A KRT card: the value replaced in place, line ends and other lines kept.
    TempCard krt;
    makeCard(krt, m420model::Q260);
    std::string lines = krt.read("SETTING/blackbox.cfg") + "\r\n# fleet note\r\nunknown_key=4";
    krt.write("SETTING/blackbox.cfg", lines);
    ASSERT_EQ(tarvikSettings({krt.path(), "set", "local_time=-3", "power_off_vlt=12200"}).exitCode, 0);
    lines.replace(lines.find("local_time=9.000000"), 19, "local_time=-3.000000");
    lines.replace(lines.find("power_off_vlt=12000"), 19, "power_off_vlt=12200");
    EXPECT_EQ(krt.read("SETTING/blackbox.cfg"), lines);
}

TEST(SettingsCommand, RefusalsLeaveEveryCardAsItWas) {
    TempCard m640, krt, other, files;
    makeCard(m640, m420model::M640);
    makeCard(krt, m420model::Q260);
    makeCard(other, m420model::Q810);
    const Tree m640Before = snapshot(m640), krtBefore = snapshot(krt), otherBefore = snapshot(other);

    struct Case { const TempCard* card; std::vector<std::string> set; std::string reason; };
    const std::vector<Case> sets = {
        {&m640, {"no_such_field=1"}, "no such setting"},
        {&m640, {"front_brightness=2", "cur_language=99999999999"}, "whole number"},
        {&m640, {"product_name=Q810"}, "never changed"},
        {&m640, {"iot_onoff=1"}, "no such setting"},  // beyond the M640's record
        {&m640, {"tz_key=" + std::string(40, 'x')}, "at most 32 bytes"},
        {&krt, {"acc_level=6"}, "from 1 to 5"},
        {&krt, {"power_off_vlt=11850"}, "one of"},
        {&krt, {"local_time=nine"}, "hours"},
        {&krt, {"year=2030"}, "never changed"},
    };
    for (const auto& c : sets) {
        std::vector<std::string> args = {c.card->path(), "set"};
        args.insert(args.end(), c.set.begin(), c.set.end());
        const ProcessResult r = tarvikSettings(args);
        EXPECT_EQ(r.exitCode, 1) << c.set.back() << r.output;
        EXPECT_NE(r.output.find(c.reason), std::string::npos) << r.output;
    }

    // Hostile and foreign profiles: a reason each, nothing written.
    const std::string exported = tarvikSettings({m640.path(), "export"}).output;
    files.write("ok.json", exported);
    files.write("types.json", R"({"tarvik_settings_profile":1,"family":"m420","model_type":5,"settings":{"wdr":[1]}})");
    files.write("huge.json", R"({"tarvik_settings_profile":1,"family":"m420","model_type":5,"settings":{"wdr":123456789012345678901234}})");
    files.write("deep.json", std::string(100000, '[') + std::string(100000, ']'));
    files.write("float.json", R"({"tarvik_settings_profile":1,"family":"m420","model_type":5,"settings":{"wdr":1e400}})");
    files.write("garbage.json", "\xff\xfe{not json");
    { std::ofstream big(files.file("big.json")); }
    fs::resize_file(files.file("big.json"), 100u << 20);
    for (const char* name : {"types.json", "huge.json", "deep.json", "float.json", "garbage.json", "big.json"}) {
        const ProcessResult r = tarvikSettings({"apply", files.file(name).string(), m640.path()});
        EXPECT_EQ(r.exitCode, 1) << name << r.output;
        EXPECT_NE(r.output.find("tarvik settings: "), std::string::npos) << name << r.output;
    }
    // One card right, two wrong: a line each, and the status says not all succeeded.
    const ProcessResult mixed =
        tarvikSettings({"apply", files.file("ok.json").string(), m640.path(), other.path(), krt.path()});
    EXPECT_EQ(mixed.exitCode, 1) << mixed.output;
    EXPECT_NE(mixed.output.find(m640.path() + ": changed 0 settings"), std::string::npos) << mixed.output;
    EXPECT_NE(mixed.output.find(other.path() + ": refused: the profile is for a M640, this card is from a Q810"),
              std::string::npos) << mixed.output;
    EXPECT_NE(mixed.output.find(krt.path() + ": refused:"), std::string::npos) << mixed.output;

    // A record shorter than the model's is never written to.
    TempCard shortCard;
    makeCard(shortCard, m420model::M640);
    shortCard.write("SETTING/setup.cfg", shortCard.read("SETTING/setup.cfg").substr(0, 300));
    const Tree shortBefore = snapshot(shortCard);
    const ProcessResult cut = tarvikSettings({shortCard.path(), "set", "cur_language=1"});
    EXPECT_EQ(cut.exitCode, 1);
    EXPECT_NE(cut.output.find("cannot be read whole"), std::string::npos) << cut.output;

    EXPECT_EQ(snapshot(m640), m640Before);
    EXPECT_EQ(snapshot(krt), krtBefore);
    EXPECT_EQ(snapshot(other), otherBefore);
    EXPECT_EQ(snapshot(shortCard), shortBefore);
    EXPECT_EQ(tarvikSettings({"apply"}).exitCode, 2);
    EXPECT_EQ(tarvikSettings({m640.path(), "frobnicate"}).exitCode, 2);
}

TEST(SettingsCommand, ReadOnlyCardIsReportedAndUntouched) {
    TempCard card;
    makeCard(card, m420model::M420);
    const Tree before = snapshot(card);
    pid_t pid = ::fork();
    ASSERT_GE(pid, 0);
    if (pid == 0) {
        // A private read-only bind mount of the card, seen by this child and the program it runs.
        if (::geteuid() == 0) {
            if (::unshare(CLONE_NEWNS) != 0 || ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
                ::mount(card.path().c_str(), card.path().c_str(), nullptr, MS_BIND, nullptr) != 0 ||
                ::mount(nullptr, card.path().c_str(), nullptr, MS_REMOUNT | MS_BIND | MS_RDONLY, nullptr) != 0)
                ::_exit(77);
        } else if (::chmod(card.file("SETTING").c_str(), 0555) != 0) {
            ::_exit(77);
        }
        const ProcessResult r = tarvikSettings({card.path(), "set", "cur_language=1"});
        ::_exit(r.exitCode == 1 && r.output.find("read-only or full") != std::string::npos ? 0 : 1);
    }
    int status = 0;
    ::waitpid(pid, &status, 0);
    ::chmod(card.file("SETTING").c_str(), 0755);
    ASSERT_TRUE(WIFEXITED(status));
    if (WEXITSTATUS(status) == 77) GTEST_SKIP() << "cannot make a read-only card here";
    EXPECT_EQ(WEXITSTATUS(status), 0) << "the write was not refused with its reason";
    EXPECT_EQ(snapshot(card), before);
}
