// `tarvik telemetry` on a generated demo card, run as the real program.
#include <gtest/gtest.h>

#include <set>
#include <sstream>

#include "cardgen/card_plan.h"
#include "core/util/process_runner.h"
#include "test_bytes.h"

using namespace tarvik;
namespace fs = std::filesystem;

namespace {

ProcessResult tarvikTelemetry(const std::vector<std::string>& args) {
    std::vector<std::string> a = {"telemetry"};
    a.insert(a.end(), args.begin(), args.end());
    return ProcessRunner::run(std::string(TARVIK_BINARY_DIR) + "/tarvik", a, std::chrono::minutes(1));
}

int count(const std::string& s, const std::string& what) {
    int n = 0;
    for (std::size_t p = 0; (p = s.find(what, p)) != std::string::npos; p += what.size()) ++n;
    return n;
}

// Non-zero positions listed by the CSV output, each once.
std::set<std::pair<std::string, std::string>> positions(const std::string& csv) {
    std::set<std::pair<std::string, std::string>> out;
    std::istringstream in(csv);
    std::string line;
    std::getline(in, line);
    while (std::getline(in, line)) {
        std::vector<std::string> f;
        std::istringstream l(line);
        for (std::string x; std::getline(l, x, ',');) f.push_back(x);
        if (f.size() == 7 && !(f[4] == "0.000000" && f[5] == "0.000000")) out.insert({f[4], f[5]});
    }
    return out;
}

}  // namespace

TEST(TelemetryCommand, EveryDemoClip) {
    test::TempDir card;
    cardgen::CardOptions o;
    o.seconds = 4;  // puts one clip wholly inside the tunnel
    o.width = 64;
    o.height = 36;
    const cardgen::CardPlan plan = cardgen::demoCardPlan(o);
    std::string error;
    ASSERT_TRUE(cardgen::writeCard(plan, card.path, &error)) << error;

    int withRoute = 0, withoutFix = 0;
    for (const auto& clip : plan.clips) {
        const std::string path = (card.path / clip.relPath).string();
        ProcessResult csv = tarvikTelemetry({path});
        ASSERT_EQ(csv.exitCode, 0) << clip.relPath << csv.output;
        const int lines = count(csv.output, "\n") - 1;
        if (clip.telemetry == cardgen::TelemetryFormat::None) {
            EXPECT_EQ(lines, 0) << clip.relPath;
            continue;
        }
        EXPECT_EQ(lines, 40) << clip.relPath << "\n" << csv.output;

        ProcessResult gpx = tarvikTelemetry({path, "--format", "gpx"});
        ASSERT_EQ(gpx.exitCode, 0);
        EXPECT_EQ(gpx.output.rfind("<?xml", 0), 0u);
        EXPECT_EQ(count(gpx.output, "<trkpt "), static_cast<int>(positions(csv.output).size())) << clip.relPath;
        EXPECT_EQ(count(gpx.output, "</gpx>"), 1);
        if (positions(csv.output).empty()) ++withoutFix;
        else ++withRoute;

        ProcessResult geo = tarvikTelemetry({path, "--format=geojson"});
        ProcessResult kml = tarvikTelemetry({path, "--format", "kml"});
        ASSERT_EQ(geo.exitCode, 0);
        ASSERT_EQ(kml.exitCode, 0);
        if (!positions(csv.output).empty()) {
            // Longitude first: Seoul lies near 127 E, 37.5 N.
            const auto first = geo.output.find("\"coordinates\":");
            ASSERT_NE(first, std::string::npos) << geo.output;
            EXPECT_EQ(geo.output.compare(first + 14, 5, "[[126") == 0 || geo.output.compare(first + 14, 4, "[126") == 0,
                      true)
                << geo.output;
            EXPECT_NE(kml.output.find("<coordinates>126."), std::string::npos) << kml.output;
        } else {
            EXPECT_NE(geo.output.find("\"features\":[]"), std::string::npos);
            EXPECT_EQ(kml.output.find("<Placemark>"), std::string::npos);
        }
    }
    EXPECT_GT(withRoute, 5);
    EXPECT_GT(withoutFix, 0);  // a clip inside the tunnel: an empty route, not an error
}

TEST(TelemetryCommand, BadArguments) {
    EXPECT_EQ(tarvikTelemetry({}).exitCode, 2);
    EXPECT_EQ(tarvikTelemetry({"x.avi", "--format", "svg"}).exitCode, 2);
    EXPECT_EQ(tarvikTelemetry({"/nonexistent/x.avi"}).exitCode, 1);
    test::TempDir dir;
    // An MP4 without a subtitle track: no samples, no failure.
    ProcessResult r = tarvikTelemetry({dir.write("x.mp4", "not a video").string(), "--format", "gpx"});
    EXPECT_EQ(r.exitCode, 0);
    EXPECT_EQ(count(r.output, "<trkpt"), 0);
}
