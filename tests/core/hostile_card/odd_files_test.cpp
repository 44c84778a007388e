// A FIFO, a socket or a folder where the card keeps a settings file: every
// command answers at once as for an unreadable file, and the card detection
// of the viewer gets through.
#include <gtest/gtest.h>

#include <map>
#include <regex>

#include "../settings/temp_card.h"
#include "cardgen/card_plan.h"
#include "core/settings/krt/krt_setting_manager.h"
#include "core/settings/m420/m420_model_types.h"
#include "core/settings/m420/m420_setting_manager.h"
#include "core/util/process_runner.h"
#include "odd_file.h"

using namespace tarvik;
using test::Special;
using test::TempCard;
namespace fs = std::filesystem;

namespace {

constexpr auto kLimit = std::chrono::milliseconds(1000);

struct Timed {
    ProcessResult result;
    std::chrono::milliseconds took;
};

Timed runTarvik(const std::vector<std::string>& args) {
    const auto start = std::chrono::steady_clock::now();
    // Well past the limit, so that a hang shows as a time, not as a lost test.
    ProcessResult r = ProcessRunner::run(std::string(TARVIK_BINARY_DIR) + "/tarvik", args, std::chrono::seconds(10));
    return {r, std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - start)};
}

std::map<std::string, std::string> regularFiles(const TempCard& card) {
    std::map<std::string, std::string> t;
    for (const auto& e : fs::recursive_directory_iterator(card.root()))
        if (e.is_regular_file()) t[fs::relative(e.path(), card.root()).string()] = card.read(fs::relative(e.path(), card.root()).string());
    return t;
}

struct Place {
    int modelType;
    const char* file;
};
const Place kPlaces[] = {
    {m420model::M640, "SETTING/setup.cfg"},     {m420model::M640, "SETTING/lang/ver.dat"},
    {m420model::M640, "SETTING/time.dat"},      {m420model::M640, "SETTING/default.cfg"},
    {m420model::Q260, "SETTING/blackbox.cfg"},
};

}  // namespace

TEST(SpecialFiles, EveryCommandAnswersAtOnceAsForAnUnreadableFile) {
    for (const Place& place : kPlaces) {
        TempCard profileSource, profiles;
        std::string error;
        ASSERT_TRUE(cardgen::writeSettingsFiles(profileSource.root(), place.modelType, &error)) << error;
        profiles.write("p.json", runTarvik({"settings", profileSource.path(), "export"}).result.output);
        const std::string setting = place.modelType == m420model::Q260 ? "acc_level=4" : "cur_language=1";

        // What each command says is the same whatever stands in the file's place.
        std::map<std::string, std::string> firstAnswer;
        for (Special kind : {Special::Folder, Special::Fifo, Special::Socket}) {
            SCOPED_TRACE(std::string(place.file) + " as " + test::specialName(kind));
            TempCard card;
            ASSERT_TRUE(cardgen::writeSettingsFiles(card.root(), place.modelType, &error)) << error;
            ASSERT_TRUE(test::makeSpecial(card.file(place.file), kind));
            const auto before = regularFiles(card);
            const std::vector<std::vector<std::string>> commands = {
                {"card", card.path()},
                {"card", card.path(), "--json"},
                {"check", card.path()},
                {"trips", card.path(), "--json"},
                {"settings", card.path()},
                {"settings", card.path(), "--json"},
                {"settings", card.path(), "export"},
                {"settings", card.path(), "set", "--dry-run", setting},
                {"settings", "apply", "--dry-run", profiles.file("p.json").string(), card.path()},
            };
            for (const auto& args : commands) {
                std::string line;
                for (const auto& a : args) line += (a == card.path() ? "CARD" : a) + " ";
                const Timed run = runTarvik(args);
                EXPECT_FALSE(run.result.timedOut) << line;
                EXPECT_LT(run.took, kLimit) << line;
                EXPECT_TRUE(run.result.exitCode == 0 || run.result.exitCode == 1) << line << run.result.output;
                std::string out = run.result.output;
                for (std::size_t p; (p = out.find(card.path())) != std::string::npos;) out.replace(p, card.path().size(), "CARD");
                // The card's free space moves as other tests write.
                out = std::regex_replace(out, std::regex(".*(free|_bytes).*"), "");
                // A folder in a file's place reads as unreadable like the others.
                if (!firstAnswer.count(line)) firstAnswer[line] = out;
                else EXPECT_EQ(out, firstAnswer[line]) << line;
            }
            EXPECT_EQ(regularFiles(card), before);
            EXPECT_FALSE(fs::is_regular_file(card.file(place.file)));
        }
    }
}

TEST(SpecialFiles, TheViewersCardDetectionGetsThrough) {
    for (const Place& place : kPlaces) {
        for (Special kind : {Special::Fifo, Special::Socket, Special::Folder}) {
            SCOPED_TRACE(std::string(place.file) + " as " + test::specialName(kind));
            TempCard card;
            std::string error;
            ASSERT_TRUE(cardgen::writeSettingsFiles(card.root(), place.modelType, &error)) << error;
            ASSERT_TRUE(test::makeSpecial(card.file(place.file), kind));
            // The steps the viewer takes when a card comes in and when its settings open.
            EXPECT_TRUE(test::finishesWithin(kLimit, [&] {
                M420SettingManager& m = M420SettingManager::SharedM420SettingManager();
                m.loadModelTypeWithSDPath(card.path());
                m.loadVersionInfoForPath(card.path());
                m.loadData();
                m.loadLanguages();
                KRTSettingManager::SharedKRTSettingManager().loadData();
            }));
        }
    }
}

TEST(SpecialFiles, InAClipsPlaceTheClipIsUnreadable) {
    TempCard card;
    std::string error;
    ASSERT_TRUE(cardgen::writeSettingsFiles(card.root(), m420model::M640, &error)) << error;
    for (const char* clip : {"cont_rec/20261121_083000_F.avi", "cont_rec/20261121_083000_R.mp4", "cont_rec/20261121_083100.srt"})
        ASSERT_TRUE(test::makeSpecial(card.file(clip), Special::Fifo));
    const std::vector<std::vector<std::string>> commands = {
        {"check", card.path()},
        {"trips", card.path(), "--json"},
        {"telemetry", card.file("cont_rec/20261121_083000_F.avi").string()},
        {"telemetry", card.file("cont_rec/20261121_083000_R.mp4").string()},
        {"telemetry", card.file("cont_rec/20261121_083100.srt").string()},
    };
    for (const auto& args : commands) {
        const Timed run = runTarvik(args);
        EXPECT_FALSE(run.result.timedOut) << args[0];
        EXPECT_LT(run.took, kLimit) << args[0];
        EXPECT_TRUE(run.result.exitCode == 0 || run.result.exitCode == 1) << args[0] << run.result.output;
    }
}
