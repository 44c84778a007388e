// A generated drive of five one-minute pairs, and cards with one fault of each
// kind, through the core and the real `tarvik` program.
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>

#include "../settings/temp_card.h"
#include "cardgen/card_plan.h"
#include "core/library/check/card_report.h"
#include "core/library/trips/clip_container.h"
#include "core/library/trips/clip_telemetry_loader.h"
#include "core/library/trips/trip_route.h"
#include "core/library/trips/trip_scanner.h"
#include "core/settings/m420/m420_setting_manager.h"
#include "core/telemetry/events/driving_event_finder.h"
#include "core/telemetry/orvo_clip_data.h"
#include "core/util/process_runner.h"

using namespace tarvik;
namespace fs = std::filesystem;

namespace {

// A fresh card written to `plan`.
struct Card : test::TempCard {
    explicit Card(const cardgen::CardPlan& plan) {
        std::string error;
        EXPECT_TRUE(cardgen::writeCard(plan, root(), &error)) << error;
    }
};

ProcessResult runTarvik(const std::vector<std::string>& args) {
    return ProcessRunner::run(std::string(TARVIK_BINARY_DIR) + "/tarvik", args, std::chrono::minutes(2));
}

// The few rules of GPX 1.1 a route file can break: the root element and its
// namespace, version and creator, well-nested trk/trkseg/trkpt, and lat/lon
// as decimals within range.
void expectGpx11(const std::string& gpx) {
    EXPECT_EQ(gpx.rfind("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n", 0), 0u);
    EXPECT_NE(gpx.find("<gpx version=\"1.1\" creator=\""), std::string::npos);
    EXPECT_NE(gpx.find("xmlns=\"http://www.topografix.com/GPX/1/1\""), std::string::npos);
    std::vector<std::string> open;
    const std::regex tag(R"(<(/?)([a-z]+)([^>]*?)(/?)>)");
    for (auto it = std::sregex_iterator(gpx.begin(), gpx.end(), tag); it != std::sregex_iterator(); ++it) {
        const std::string name = (*it)[2], attrs = (*it)[3];
        if ((*it)[1] == "/") {
            ASSERT_FALSE(open.empty());
            ASSERT_EQ(open.back(), name);
            open.pop_back();
            continue;
        }
        static const std::map<std::string, std::string> parent = {
            {"gpx", ""},         {"trk", "gpx"},    {"name", "trk"}, {"trkseg", "trk"},
            {"trkpt", "trkseg"}, {"time", "trkpt"}, {"desc", "trkpt"}};
        ASSERT_TRUE(parent.count(name)) << name;
        ASSERT_EQ(open.empty() ? "" : open.back(), parent.at(name)) << name;
        if (name == "trkpt") {
            std::smatch m;
            ASSERT_TRUE(std::regex_search(attrs, m, std::regex(R"re(lat="(-?\d+\.\d+)" lon="(-?\d+\.\d+)")re")));
            EXPECT_LE(std::abs(std::stod(m[1])), 90.0);
            EXPECT_LE(std::abs(std::stod(m[2])), 180.0);
        }
        if ((*it)[4] != "/") open.push_back(name);
    }
    EXPECT_TRUE(open.empty());
}

// The point times gpsbabel, the tool people convert routes with, reads from a
// GPX file, as it writes them out again (a time it could not read is dropped).
std::vector<std::string> gpsbabelTimes(const std::string& gpx) {
    const fs::path file = fs::temp_directory_path() / ("tarvik-route-" + std::to_string(getpid()) + ".gpx");
    std::ofstream(file) << gpx;
    const ProcessResult r = ProcessRunner::run("gpsbabel", {"-t", "-i", "gpx", "-f", file.string(), "-o", "gpx", "-F", "-"},
                                               std::chrono::minutes(1));
    fs::remove(file);
    EXPECT_EQ(r.exitCode, 0) << r.output;
    std::vector<std::string> times;
    const std::regex point(R"(<trkpt[^>]*>\s*<time>([^<]*)</time>)");
    for (auto it = std::sregex_iterator(r.output.begin(), r.output.end(), point); it != std::sregex_iterator(); ++it)
        times.push_back((*it)[1]);
    return times;
}

}  // namespace

TEST(CardTrips, FiveMinutePairsAreOneTrip) {
    Card card(cardgen::tripCardPlan(5, 60));
    const std::vector<Trip> trips = scanCardTrips(card.path(), true);
    ASSERT_EQ(trips.size(), 1u);
    const Trip& t = trips[0];
    ASSERT_EQ(t.clips.size(), 5u);
    EXPECT_EQ(t.seconds(), 300);
    EXPECT_EQ(tripTimeText(t.start), "2026-11-21 10:00:00");
    EXPECT_TRUE(t.hasTelemetry);
    // The drive's profile tops 54 km/h and covers 460 m a minute.
    EXPECT_EQ(t.topSpeedKmh, 54u);
    EXPECT_NEAR(t.distanceMetres, 5 * 460.0, 50.0);

    // The trip's route is every clip's route, in order, nothing dropped or added.
    const TripRoute route = readTripRoute(t, true);
    std::vector<RoutePoint> expected;
    auto data = std::make_unique<OrvoClipData>();
    for (const TripClip& c : t.clips) {
        loadClipTelemetry(c.path, *data);
        for (RoutePoint p : RouteExporter::route(*data)) expected.push_back(p);
    }
    ASSERT_GT(expected.size(), 100u);
    ASSERT_EQ(route.points.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(route.points[i].lat, expected[i].lat) << i;
        EXPECT_EQ(route.points[i].lng, expected[i].lng) << i;
        if (i) { EXPECT_GT(route.points[i].seconds, route.points[i - 1].seconds) << i; }
    }
    // The camera's clock is the computer's local time; here that is UTC.
    setenv("TZ", "UTC", 1);
    tzset();
    const std::string gpx = exportTripRoute(route, "gpx", "trip & <drive>");
    expectGpx11(gpx);
    // Every point has its time, and the tools read them back as recorded.
    const std::vector<std::string> times = gpsbabelTimes(gpx);
    ASSERT_EQ(times.size(), expected.size()) << gpx.substr(0, 2000);
    EXPECT_EQ(times.front().substr(0, 19), "2026-11-21T10:00:00") << times.front();
    for (std::size_t i : {std::size_t(1), expected.size() / 2, expected.size() - 1})
        EXPECT_EQ(times[i].substr(0, 19), RouteExporter::gpxTime(t.start, route.points[i].seconds).substr(0, 19)) << i;
    std::size_t at = 0;
    for (const RoutePoint& p : expected) {
        char buf[64];
        std::snprintf(buf, sizeof buf, "lat=\"%.6f\" lon=\"%.6f\"", p.lat, p.lng);
        at = gpx.find(buf, at);
        ASSERT_NE(at, std::string::npos) << buf;
    }
    // The events of a minute (a bump at 22 s, hard braking from 30 s) and
    // stepping between them are the trip window's; here, that every minute has them.
    for (const TripClip& c : t.clips) {
        loadClipTelemetry(c.path, *data);
        const auto events = findDrivingEvents(*data);
        ASSERT_EQ(events.size(), 2u) << c.path;
        EXPECT_EQ(events[0].kind, DrivingEventKind::GPeak);
        EXPECT_EQ(events[1].kind, DrivingEventKind::HardBraking);
        EXPECT_EQ(previousDrivingEvent(events, 10), -1);
        EXPECT_EQ(nextDrivingEvent(events, 59), -1);
    }
    EXPECT_EQ(std::count(route.csvRows.begin(), route.csvRows.end(), '\n'), 3000);
    EXPECT_EQ(exportTripRoute(route, "gif", "x"), "");

    ProcessResult text = runTarvik({"trips", card.path()});
    EXPECT_EQ(text.exitCode, 0);
    EXPECT_NE(text.output.find("2026-11-21 10:00:00  10:05:00  5:00"), std::string::npos) << text.output;
    ProcessResult json = runTarvik({"trips", card.path(), "--json"});
    EXPECT_EQ(json.exitCode, 0);
    EXPECT_NE(json.output.find("\"duration_seconds\": 300,"), std::string::npos) << json.output;
    EXPECT_EQ(runTarvik({"trips", "/no/such/card"}).exitCode, 2);
    // A drive without faults needs no attention (the rear clips carry no telemetry of their own).
    EXPECT_EQ(runTarvik({"check", card.path()}).exitCode, 0);
}

TEST(CardCheck, NamesEveryKindOfFault) {
    cardgen::CardPlan plan = cardgen::tripCardPlan(3, 4);
    cardgen::VideoSpec v;
    v.width = 64;
    v.height = 36;
    plan.clips.push_back({"cont_rec/20261121_100020_F.mp4", v, cardgen::TelemetryFormat::SrtTrack, 0});
    plan.clips.push_back({"cont_rec/20261121_120100_R.mp4", v, cardgen::TelemetryFormat::SrtTrack, 0});
    plan.clips.push_back({"evt_rec/20261121_130000.mp4", v, cardgen::TelemetryFormat::None, 0});
    plan.clips.push_back({"evt_rec/20261121_130100.mp4", v, cardgen::TelemetryFormat::SrtTrack, 0});
    plan.clips.push_back({"evt_rec/20261121_130200.avi", v, cardgen::TelemetryFormat::TextRecords, 0});
    plan.files = {{"evt_rec/20261121_130300.mp4", ""}};
    plan.modelType = cardgen::demoModelType();
    Card card(plan);
    const fs::path noIndex = card.root() / "evt_rec/20261121_130100.mp4";
    const fs::path truncated = card.root() / "evt_rec/20261121_130200.avi";
    // The camera lost power: an MP4 before its index was written, an AVI mid-stream.
    {
        std::string bytes;
        std::ifstream in(noIndex, std::ios::binary);
        bytes.assign(std::istreambuf_iterator<char>(in), {});
        const std::size_t moov = bytes.rfind("moov");
        ASSERT_NE(moov, std::string::npos);
        fs::resize_file(noIndex, moov - 4);
    }
    fs::resize_file(truncated, fs::file_size(truncated) / 2);
    EXPECT_EQ(inspectClipContainer(noIndex.string()).state, ContainerState::NoIndex);
    EXPECT_EQ(inspectClipContainer(truncated.string()).state, ContainerState::Truncated);
    const ContainerInfo good = inspectClipContainer((card.root() / "cont_rec/20261121_100000_F.avi").string());
    EXPECT_EQ(good.state, ContainerState::Playable);
    EXPECT_NEAR(good.seconds, 4.0, 0.01);
    EXPECT_NEAR(inspectClipContainer((card.root() / "cont_rec/20261121_100020_F.mp4").string()).seconds, 2.0, 0.1);

    ProcessResult r = runTarvik({"check", card.path()});
    EXPECT_EQ(r.exitCode, 1) << r.output;
    for (const char* line : {"! unplayable %s/evt_rec/20261121_130300.mp4: zero bytes",
                             // Cameras without a GPS fix record all the same: a note, not a fault.
                             "- no-telemetry %s/evt_rec/20261121_130000.mp4: recorded without GPS or G-sensor data",
                             "! unplayable %s/evt_rec/20261121_130100.mp4: no index",
                             "! unplayable %s/evt_rec/20261121_130200.avi: truncated",
                             "! front-without-rear %s/cont_rec/20261121_100020_F.mp4",
                             "! rear-without-front %s/cont_rec/20261121_120100_R.mp4",
                             "- gap %s/cont_rec/20261121_100020_F.mp4: 8 s after 20261121_100008_F.avi"}) {
        char want[512];
        std::snprintf(want, sizeof want, line, card.root().c_str());
        EXPECT_NE(r.output.find(want), std::string::npos) << want << "\n" << r.output;
    }
    EXPECT_NE(r.output.find("settings: readable, model "), std::string::npos) << r.output;
    // FFmpeg's own complaints about the damaged clips stay out of the answer unless asked for.
    EXPECT_EQ(r.output.find("moov atom"), std::string::npos) << r.output;
    EXPECT_EQ(runTarvik({"trips", card.path()}).output.find("moov atom"), std::string::npos);
    EXPECT_NE(runTarvik({"trips", "--verbose", card.path()}).output.find("moov atom"), std::string::npos);
    const CardReport report = checkCard(card.path());
    EXPECT_EQ(report.count(FindingSeverity::Attention), 5);
    EXPECT_NE(r.output.find("\n5 things need attention\n"), std::string::npos) << r.output;
    EXPECT_EQ(report.clipCount, 12);
    EXPECT_EQ(report.settings.length, report.settings.expectedLength);

    // A settings file cut short is named too; the JSON form says the same.
    const std::string record = M420SettingManager::recordFilePath(card.path());
    ASSERT_FALSE(record.empty());
    {
        fs::resize_file(record, 10);
        ProcessResult j = runTarvik({"check", "--json", card.path()});
        EXPECT_EQ(j.exitCode, 1);
        EXPECT_NE(j.output.find("\"kind\": \"settings\""), std::string::npos) << j.output;
        EXPECT_NE(j.output.find("\"needs_attention\": true"), std::string::npos);
    }
    EXPECT_EQ(runTarvik({"check"}).exitCode, 2);
    EXPECT_EQ(runTarvik({"check", card.path(), "--bogus"}).exitCode, 2);
}

TEST(CardCheck, DemoCardIsWell) {
    cardgen::CardOptions o;
    o.seconds = 30;  // long enough that the tail text after a MOV's boxes looks like a box
    o.width = 64;
    o.height = 36;
    Card card(cardgen::demoCardPlan(o));
    ProcessResult r = runTarvik({"check", card.path()});
    EXPECT_EQ(r.exitCode, 0) << r.output;
    // Notes listed above the verdict are never followed by "all well".
    int notes = 0;
    for (std::size_t at = r.output.find("\n- "); at != std::string::npos; at = r.output.find("\n- ", at + 1)) ++notes;
    const std::string verdict = notes ? "nothing needs attention, " + std::to_string(notes) + (notes == 1 ? " note" : " notes")
                                      : std::string("all well");
    EXPECT_NE(r.output.find("\n" + verdict + "\n"), std::string::npos) << r.output;
}

// The command's answer to a missing card (exit 2, the path named) is the command line test's.
TEST(CardCheck, MissingFolder) {
    const CardReport report = checkCard("/no/such/card");
    EXPECT_FALSE(report.folderFound);
    EXPECT_TRUE(report.needsAttention());
    EXPECT_EQ(report.clipCount, 0);
}
