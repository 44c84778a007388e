#include <gtest/gtest.h>

#include <filesystem>

#include "cardgen/card_plan.h"

namespace fs = std::filesystem;
using namespace tarvik::cardgen;

TEST(DemoCard, WritesEveryPlannedClipAsPlayableVideo) {
    fs::path root = fs::temp_directory_path() / "tarvik-demo-card-test";
    fs::remove_all(root);
    CardOptions o;
    o.seconds = 1;
    o.width = 128;
    o.height = 72;
    CardPlan plan = demoCardPlan(o);
    std::string error;
    ASSERT_TRUE(writeCard(plan, root, &error)) << error;
    for (const auto& c : plan.clips) {
        ASSERT_TRUE(fs::exists(root / c.relPath)) << c.relPath;
        EXPECT_GT(fs::file_size(root / c.relPath), 1000u) << c.relPath;
    }
    for (const auto& f : plan.files) EXPECT_TRUE(fs::exists(root / f.relPath)) << f.relPath;
    fs::remove_all(root);
}
