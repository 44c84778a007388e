// Cards as cameras and interrupted writes leave them: preallocated clips that
// were never recorded, and hidden copies of a settings write that was killed.
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <fstream>

#include "cardgen/card_plan.h"
#include "core/library/check/card_report.h"
#include "core/util/process_runner.h"

using namespace tarvik;
namespace fs = std::filesystem;

namespace {

struct TempRoot {
    fs::path root;
    TempRoot() {
        std::string tmpl = (fs::temp_directory_path() / "tarvik-odd-XXXXXX").string();
        root = ::mkdtemp(tmpl.data());
    }
    ~TempRoot() {
        std::error_code ec;
        fs::remove_all(root, ec);
    }
    fs::path file(const std::string& rel, const std::string& bytes = {}) const {
        fs::create_directories((root / rel).parent_path());
        std::ofstream(root / rel, std::ios::binary) << bytes;
        return root / rel;
    }
};

ProcessResult runCommand(const std::vector<std::string>& args) {
    return ProcessRunner::run(std::string(TARVIK_BINARY_DIR) + "/tarvik", args, std::chrono::seconds(60));
}

}  // namespace

TEST(CardOddFiles, PreallocatedClipsAreNamedAndCostNothing) {
    TempRoot card;
    std::string error;
    ASSERT_TRUE(cardgen::writeSettingsFiles(card.root, cardgen::demoModelType(), &error)) << error;
    // Sparse: twenty clips of 5 GiB zeros take no disk.
    for (int i = 0; i < 10; ++i) {
        fs::resize_file(card.file("cont_rec/20261121_0830" + std::to_string(10 + i) + "_F.avi"), 5ull << 30);
        fs::resize_file(card.file("cont_rec/20261121_0830" + std::to_string(10 + i) + "_R.mp4"), 5ull << 30);
    }
    const auto start = std::chrono::steady_clock::now();
    const ProcessResult check = runCommand({"check", card.root.string()});
    const ProcessResult trips = runCommand({"trips", card.root.string(), "--json"});
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2));
    EXPECT_EQ(trips.exitCode, 0) << trips.output;
    EXPECT_NE(check.output.find("! unplayable " + card.root.string() +
                                "/cont_rec/20261121_083010_F.avi: preallocated, never recorded"),
              std::string::npos)
        << check.output;
    const CardReport report = checkCard(card.root.string());
    int preallocated = 0;
    for (const CardFinding& f : report.findings) preallocated += f.detail == "preallocated, never recorded";
    EXPECT_EQ(preallocated, 20);
}

TEST(CardOddFiles, LeftoversOfAKilledWriteAreListed) {
    TempRoot card;
    std::string error;
    ASSERT_TRUE(cardgen::writeSettingsFiles(card.root, cardgen::demoModelType(), &error)) << error;
    const fs::path leftover = card.file("SETTING/.setup.cfg.tarvik-tmp-Ab12Cd", "copy");
    const fs::path atRoot = card.file(".Set_touch_cal.txt.tarvik-tmp-x9Y8z7");
    // Not ours: a hidden file of the camera, and a name that only looks alike.
    card.file("SETTING/.hidden");
    card.file("SETTING/setup.cfg.tarvik-tmp-visible");
    card.file("DCIM/100/.deep/.x.tarvik-tmp-000000");

    const ProcessResult r = runCommand({"check", card.root.string()});
    for (const fs::path& p : {leftover, atRoot})
        EXPECT_NE(r.output.find(p.string() + ": left by an interrupted settings write"), std::string::npos)
            << r.output;
    int listed = 0;
    for (const CardFinding& f : checkCard(card.root.string()).findings) listed += f.kind == "write-leftover";
    EXPECT_EQ(listed, 2);
    // Listing is not removing: only a write touches the card.
    EXPECT_TRUE(fs::exists(leftover));
}
