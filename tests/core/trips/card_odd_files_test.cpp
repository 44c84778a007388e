// Cards as cameras and interrupted writes leave them: preallocated clips that
// were never recorded, and hidden copies of a settings write that was killed.
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>

#include "../settings/temp_card.h"
#include "cardgen/card_plan.h"
#include "core/library/check/card_report.h"
#include "core/util/process_runner.h"

using namespace tarvik;
using test::TempCard;
namespace fs = std::filesystem;

namespace {

ProcessResult runCommand(const std::vector<std::string>& args) {
    return ProcessRunner::run(std::string(TARVIK_BINARY_DIR) + "/tarvik", args, std::chrono::seconds(60));
}

}  // namespace

TEST(CardOddFiles, PreallocatedClipsAreNamedAndCostNothing) {
    TempCard card;
    std::string error;
    ASSERT_TRUE(cardgen::writeSettingsFiles(card.root(), cardgen::demoModelType(), &error)) << error;
    // Sparse: twenty clips of 5 GiB zeros take no disk.
    for (int i = 0; i < 10; ++i) {
        fs::resize_file(card.write("cont_rec/20261121_0830" + std::to_string(10 + i) + "_F.avi", ""), 5ull << 30);
        fs::resize_file(card.write("cont_rec/20261121_0830" + std::to_string(10 + i) + "_R.mp4", ""), 5ull << 30);
    }
    const auto start = std::chrono::steady_clock::now();
    const ProcessResult check = runCommand({"check", card.path()});
    const ProcessResult trips = runCommand({"trips", card.path(), "--json"});
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2));
    EXPECT_EQ(trips.exitCode, 0) << trips.output;
    EXPECT_NE(check.output.find("! unplayable " + card.path() +
                                "/cont_rec/20261121_083010_F.avi: preallocated, never recorded"),
              std::string::npos)
        << check.output;
    const CardReport report = checkCard(card.path());
    int preallocated = 0;
    for (const CardFinding& f : report.findings) preallocated += f.detail == "preallocated, never recorded";
    EXPECT_EQ(preallocated, 20);
}

TEST(CardOddFiles, LeftoversOfAKilledWriteAreListed) {
    TempCard card;
    std::string error;
    ASSERT_TRUE(cardgen::writeSettingsFiles(card.root(), cardgen::demoModelType(), &error)) << error;
    const fs::path leftover = card.write("SETTING/.setup.cfg.tarvik-tmp-Ab12Cd", "copy");
    const fs::path atRoot = card.write(".Set_touch_cal.txt.tarvik-tmp-x9Y8z7", "");
    // Not ours: a hidden file of the camera, and a name that only looks alike.
    card.write("SETTING/.hidden", "");
    card.write("SETTING/setup.cfg.tarvik-tmp-visible", "");
    card.write("DCIM/100/.deep/.x.tarvik-tmp-000000", "");

    const ProcessResult r = runCommand({"check", card.path()});
    for (const fs::path& p : {leftover, atRoot})
        EXPECT_NE(r.output.find(p.string() + ": left by an interrupted settings write"), std::string::npos)
            << r.output;
    int listed = 0;
    for (const CardFinding& f : checkCard(card.path()).findings) listed += f.kind == "write-leftover";
    EXPECT_EQ(listed, 2);
    // Listing is not removing: only a write touches the card.
    EXPECT_TRUE(fs::exists(leftover));
}
