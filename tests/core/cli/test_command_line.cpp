// `tarvik` as a shell user meets it: help and the version on standard output
// with status 0, usage errors on standard error with status 2 and the usage of
// the sub-command concerned, for every sub-command.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "core/util/process_runner.h"

using namespace tarvik;

namespace {

const std::string kTarvik = std::string(TARVIK_BINARY_DIR) + "/tarvik";

// One stream of the program: "out" keeps standard output, "err" standard error.
ProcessResult stream(const std::string& which, const std::string& args) {
    const std::string drop = which == "out" ? "2>/dev/null" : "2>&1 >/dev/null";
    return ProcessRunner::run("/bin/sh", {"-c", "'" + kTarvik + "' " + args + " " + drop}, std::chrono::seconds(30));
}

}  // namespace

TEST(CommandLine, HelpAndVersionGoToStandardOutput) {
    ProcessResult version = stream("out", "--version");
    EXPECT_EQ(version.exitCode, 0);
    EXPECT_EQ(version.output, "tarvik " TARVIK_VERSION_TEXT "\n");

    ProcessResult help = stream("out", "--help");
    EXPECT_EQ(help.exitCode, 0);
    for (const char* sub : {"telemetry", "card", "settings", "trips", "check"})
        EXPECT_NE(help.output.find(std::string("\n  ") + sub + " "), std::string::npos) << sub;

    const std::vector<std::pair<std::string, std::string>> subs = {
        {"telemetry", "Usage: tarvik telemetry [OPTIONS] CLIP"}, {"card", "Usage: tarvik card [OPTIONS] [PATH]"},
        {"settings", "Usage: tarvik settings"},                  {"settings set", "Usage: tarvik settings set"},
        {"settings apply", "Usage: tarvik settings apply"},      {"trips", "Usage: tarvik trips [OPTIONS] CARD"},
        {"check", "Usage: tarvik check [OPTIONS] CARD"}};
    for (const auto& [sub, usage] : subs) {
        ProcessResult r = stream("out", sub + " --help");
        EXPECT_EQ(r.exitCode, 0) << sub;
        EXPECT_NE(r.output.find(usage), std::string::npos) << sub << "\n" << r.output;
        EXPECT_TRUE(stream("err", sub + " --help").output.empty()) << sub;
    }
}

TEST(CommandLine, UsageErrorsNameTheirSubCommandOnStandardError) {
    struct Case {
        const char* args;
        const char* usage;  // the usage shown
    };
    for (const Case& c : {Case{"", "Usage: tarvik [OPTIONS] SUBCOMMAND"},
                          Case{"frobnicate", "Usage: tarvik [OPTIONS] SUBCOMMAND"},
                          Case{"telemetry", "Usage: tarvik telemetry"},
                          Case{"telemetry x.avi --format svg", "Usage: tarvik telemetry"},
                          Case{"check /no/such/card", "Usage: tarvik check"},
                          Case{"trips", "Usage: tarvik trips"},
                          Case{"settings", "Usage: tarvik settings"},
                          Case{"settings /tmp set novalue", "Usage: tarvik settings set"},
                          Case{"settings apply", "Usage: tarvik settings apply"},
                          Case{"settings /tmp export --json", "Usage: tarvik settings"}}) {
        ProcessResult err = stream("err", c.args);
        EXPECT_EQ(err.exitCode, 2) << c.args;
        EXPECT_NE(err.output.find(c.usage), std::string::npos) << c.args << "\n" << err.output;
        EXPECT_TRUE(stream("out", c.args).output.empty()) << c.args;
        // A sub-command's own usage only, not glued to the program's list.
        if (std::string(c.usage) != "Usage: tarvik [OPTIONS] SUBCOMMAND")
            EXPECT_EQ(err.output.find("Subcommands:\n  telemetry"), std::string::npos) << c.args;
    }
    EXPECT_NE(stream("err", "check /no/such/card").output.find("/no/such/card"), std::string::npos);
}

// Every `--json` output is one document a JSON reader accepts, also where a
// card's file names are not UTF-8 (a camera writes what bytes it likes).
TEST(CommandLine, JsonOutputsParseOnACardWithForeignNames) {
    const std::filesystem::path card = std::filesystem::path(testing::TempDir()) / "json-card-\xff\xfe";
    std::filesystem::remove_all(card);
    std::filesystem::create_directories(card / "cont_rec");
    { std::ofstream(card / "cont_rec" / "20261121_080000\xe9.avi") << "not a clip"; }
    for (const char* command : {"check", "trips", "card"}) {
        const ProcessResult r = stream("out", std::string(command) + " --json '" + card.string() + "'");
        SCOPED_TRACE(command);
        const auto doc = nlohmann::json::parse(r.output, nullptr, false);
        EXPECT_FALSE(doc.is_discarded()) << r.output;
    }
    std::filesystem::remove_all(card);
}
