// `tarvik export` over a generated drive of front/rear pairs, read back by the
// tools a claims handler would use: sha256sum -c, ffprobe, gpsbabel; and the
// card byte for byte as it was, whatever happened.
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <tuple>

#include "cardgen/card_plan.h"
#include "core/library/incident/incident_exporter.h"
#include "core/library/trips/clip_telemetry_loader.h"
#include "core/telemetry/orvo_clip_data.h"
#include "core/util/process_runner.h"
#include "core/util/sha256.h"

using namespace tarvik;
namespace fs = std::filesystem;

namespace {

struct Folder {
    fs::path path;
    explicit Folder(const std::string& name)
        : path(fs::temp_directory_path() / ("tarvik-incident-" + std::to_string(getpid()) + "-" + name)) {
        fs::remove_all(path);
    }
    ~Folder() { fs::remove_all(path); }
};

// Every file below root with its SHA-256.
std::map<std::string, std::string> tree(const fs::path& root) {
    std::map<std::string, std::string> out;
    for (const auto& e : fs::recursive_directory_iterator(root)) {
        if (!e.is_regular_file()) continue;
        std::ifstream in(e.path(), std::ios::binary);
        std::string bytes((std::istreambuf_iterator<char>(in)), {});
        Sha256 h;
        h.update(bytes.data(), bytes.size());
        out[fs::relative(e.path(), root).string()] = h.hexDigest();
    }
    return out;
}

ProcessResult runTarvik(const std::vector<std::string>& args) {
    return ProcessRunner::run(std::string(TARVIK_BINARY_DIR) + "/tarvik", args, std::chrono::minutes(5));
}

ProcessResult shell(const std::string& command) {
    return ProcessRunner::run("/bin/sh", {"-c", command}, std::chrono::minutes(2));
}

// Three pairs of four seconds at ten frames a second, from 10:00:00 on.
struct Drive {
    Folder card{"card"};
    Drive() {
        std::string error;
        EXPECT_TRUE(cardgen::writeCard(cardgen::tripCardPlan(3, 4, 64, 36), card.path, &error)) << error;
    }
};

}  // namespace

TEST(Sha256, KnownDigests) {
    struct Case {
        std::string text;
        const char* digest;
    };
    for (const Case& c : {Case{"", "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855"},
                          Case{"abc", "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad"},
                          Case{std::string(1000000, 'a'), "cdc76e5c9914fb9281a1c7e284d73e67f1809a48a497200e046d39ccc7112cd0"}}) {
        Sha256 whole, pieces;
        whole.update(c.text.data(), c.text.size());
        // Pieces that straddle the 64-byte blocks every way.
        for (std::size_t at = 0, step = 1; at < c.text.size(); at += step, step = step % 97 + 1)
            pieces.update(c.text.data() + at, std::min(step, c.text.size() - at));
        EXPECT_EQ(whole.hexDigest(), c.digest);
        EXPECT_EQ(pieces.hexDigest(), c.digest);
    }
}

// Spans on a drive of two 4 s clips (the second 3.9 s long) from second 100 on.
TEST(IncidentSpan, PartsAndEdges) {
    Trip trip;
    trip.clips = {{"a_F.avi", "a_R.avi", 100, 4.0}, {"b_F.avi", "b_R.avi", 104, 3.9}};
    trip.start = 100, trip.end = 108;
    struct Case {
        double from, to;
        std::vector<std::tuple<std::string, double, double>> parts;  // clip, from, to
    };
    for (const Case& c : {Case{101, 103, {{"a_F.avi", 1, 3}}},
                          Case{102.5, 105.5, {{"a_F.avi", 2.5, 4}, {"b_F.avi", 0, 1.5}}},
                          Case{100, 108, {{"a_F.avi", 0, 4}, {"b_F.avi", 0, 3.9}}},  // to the second after the end
                          Case{100, 109, {}},                                       // past the drive
                          Case{99, 101, {}},                                        // before it
                          Case{103, 103, {}}}) {                                    // empty
        const auto span = spanWithin(trip, c.from, c.to);
        ASSERT_EQ(span.has_value(), !c.parts.empty()) << c.from << " " << c.to;
        if (!span) continue;
        ASSERT_EQ(span->parts.size(), c.parts.size());
        for (std::size_t i = 0; i < c.parts.size(); ++i) {
            EXPECT_EQ(span->parts[i].clip.path, std::get<0>(c.parts[i]));
            EXPECT_DOUBLE_EQ(span->parts[i].from, std::get<1>(c.parts[i]));
            EXPECT_NEAR(span->parts[i].to, std::get<2>(c.parts[i]), 1e-9);
        }
    }
}

TEST(IncidentExport, SpanAcrossClipsIsOneExactVideoWithItsEvidence) {
    Drive drive;
    const auto before = tree(drive.card.path);
    Folder out("side");
    // 10:00:02 to 10:00:07: the last two seconds of the first pair, three of the second.
    ProcessResult r = runTarvik({"export", drive.card.path.string(), "--from", "2026-11-21 10:00:02", "--to",
                              "2026-11-21 10:00:07", "--out", out.path.string()});
    ASSERT_EQ(r.exitCode, 0) << r.output;
    EXPECT_NE(r.output.find("encoding incident.mp4"), std::string::npos);  // progress on the way

    ProcessResult sums = shell("cd '" + out.path.string() + "' && sha256sum -c SHA256SUMS");
    EXPECT_EQ(sums.exitCode, 0) << sums.output;
    for (const char* f : {"incident.mp4", "incident.json", "route.gpx", "telemetry.csv",
                          "originals/cont_rec/20261121_100000_F.avi", "originals/cont_rec/20261121_100000_R.avi",
                          "originals/cont_rec/20261121_100004_F.avi", "originals/cont_rec/20261121_100004_R.avi"})
        EXPECT_NE(sums.output.find(std::string(f) + ": OK"), std::string::npos) << f << "\n" << sums.output;
    EXPECT_EQ(sums.output.find("20261121_100008"), std::string::npos);  // the third pair is not touched
    // The originals are the card's bytes.
    const auto copied = tree(out.path / "originals");
    for (const auto& [name, hash] : copied) EXPECT_EQ(hash, before.at(name)) << name;

    // Five seconds at ten frames a second, both cameras side by side.
    ProcessResult probe = shell("ffprobe -v error -count_frames -select_streams v:0 -show_entries "
                                "stream=width,height,nb_read_frames -of csv=p=0 '" + (out.path / "incident.mp4").string() + "'");
    EXPECT_EQ(probe.output, "128,36,50\n");

    // The route holds the span's points with their times, as gpsbabel reads them.
    ProcessResult gpx = shell("gpsbabel -t -i gpx -f '" + (out.path / "route.gpx").string() + "' -o gpx -F -");
    ASSERT_EQ(gpx.exitCode, 0) << gpx.output;
    std::vector<std::string> times;
    const std::regex time("<time>2026-11-21T(\\d\\d:\\d\\d:\\d\\d)");
    for (auto it = std::sregex_iterator(gpx.output.begin(), gpx.output.end(), time); it != std::sregex_iterator(); ++it)
        times.push_back((*it)[1]);
    ASSERT_FALSE(times.empty());
    EXPECT_GE(times.front(), "10:00:02");
    EXPECT_LE(times.back(), "10:00:07");

    std::ifstream json(out.path / "incident.json");
    const std::string record((std::istreambuf_iterator<char>(json)), {});
    EXPECT_NE(record.find("\"from\": \"2026-11-21 10:00:02.0\""), std::string::npos) << record;
    EXPECT_NE(record.find("\"seconds\": 5.0"), std::string::npos) << record;
    EXPECT_EQ(tree(drive.card.path), before);
}

TEST(IncidentExport, RefusalsLeaveNoVideoAndTheCardAsItWas) {
    Drive drive;
    const auto before = tree(drive.card.path);
    struct Case {
        const char* what;
        const char* from;
        const char* to;
        std::string out;
        const char* layout;
        int exitCode;
    };
    Folder out("refused");
    const std::string dest = out.path.string(), onCard = (drive.card.path / "evidence").string();
    for (const Case& c : {Case{"destination on the card", "2026-11-21 10:00:02", "2026-11-21 10:00:05", onCard, "side", 1},
                          Case{"span past the drive", "2026-11-21 10:00:02", "2026-11-21 10:00:30", dest, "side", 1},
                          Case{"no clip at the start", "2026-11-21 09:00:00", "2026-11-21 10:00:05", dest, "side", 1},
                          Case{"out before in", "2026-11-21 10:00:02", "2026-11-21 10:00:01", dest, "side", 1},
                          Case{"not a time", "ten o'clock", "2026-11-21 10:00:05", dest, "side", 2},
                          Case{"unknown layout", "2026-11-21 10:00:02", "2026-11-21 10:00:05", dest, "mosaic", 2}}) {
        ProcessResult r = runTarvik({"export", drive.card.path.string(), "--from", c.from, "--to", c.to, "--out", c.out,
                                     "--layout", c.layout});
        EXPECT_EQ(r.exitCode, c.exitCode) << c.what << "\n" << r.output;
        EXPECT_FALSE(fs::exists(fs::path(c.out) / "incident.mp4")) << c.what;
        EXPECT_EQ(tree(drive.card.path), before) << c.what;
    }

    // A rear clip gone: side by side cannot be made, the front alone can.
    fs::remove(drive.card.path / "cont_rec/20261121_100004_R.avi");
    Folder front("front");
    ProcessResult side = runTarvik({"export", drive.card.path.string(), "--from", "2026-11-21 10:00:02", "--to",
                                 "2026-11-21 10:00:06", "--out", dest});
    EXPECT_EQ(side.exitCode, 1);
    EXPECT_NE(side.output.find("no rear clip"), std::string::npos) << side.output;
    EXPECT_FALSE(fs::exists(out.path / "incident.mp4"));
    ProcessResult alone = runTarvik({"export", drive.card.path.string(), "--from", "2026-11-21 10:00:02", "--to",
                                  "2026-11-21 10:00:06", "--layout", "front", "--out", front.path.string()});
    EXPECT_EQ(alone.exitCode, 0) << alone.output;
    EXPECT_EQ(shell("cd '" + front.path.string() + "' && sha256sum -c --quiet SHA256SUMS").exitCode, 0);
}

// A clip of the span cut short (the camera lost power while writing it), of
// either camera: the clip is named, nothing is written, the card is as it was.
TEST(IncidentExport, TruncatedClipInTheSpanIsNamed) {
    for (const char* cut : {"cont_rec/20261121_100004_F.avi", "cont_rec/20261121_100004_R.avi"}) {
        Drive drive;
        const fs::path clip = drive.card.path / cut;
        fs::resize_file(clip, fs::file_size(clip) / 2);
        const auto before = tree(drive.card.path);
        Folder out("truncated");
        ProcessResult r = runTarvik({"export", drive.card.path.string(), "--from", "2026-11-21 10:00:02", "--to",
                                     "2026-11-21 10:00:10", "--out", out.path.string()});
        EXPECT_EQ(r.exitCode, 1) << cut << "\n" << r.output;
        EXPECT_NE(r.output.find(clip.filename().string()), std::string::npos) << r.output;
        EXPECT_NE(r.output.find("cannot be exported whole"), std::string::npos) << r.output;
        EXPECT_FALSE(fs::exists(out.path / "incident.mp4"));
        EXPECT_FALSE(fs::exists(out.path / "originals"));
        EXPECT_EQ(tree(drive.card.path), before);
    }
}

// The overlay says what the dashboard says at the same moment: the sample at
// trunc(t x 10), G as raw x 4 / 512 to three places, degrees to four.
TEST(IncidentExport, OverlayTextsAreTheDashboardsValues) {
    Drive drive;
    Folder out("overlay");
    ProcessResult r = runTarvik({"export", drive.card.path.string(), "--from", "2026-11-21 10:00:02", "--to",
                                 "2026-11-21 10:00:07", "--overlay", "--out", out.path.string()});
    ASSERT_EQ(r.exitCode, 0) << r.output;
    std::ifstream in(out.path / "overlay.ass");
    const std::string ass((std::istreambuf_iterator<char>(in)), {});
    auto shownAt = [&](double t) {
        const std::regex line(R"(Dialogue: 0,0:00:(\d\d\.\d\d),0:00:(\d\d\.\d\d),Telemetry,([^\n]*))");
        for (auto it = std::sregex_iterator(ass.begin(), ass.end(), line); it != std::sregex_iterator(); ++it)
            if (std::stod((*it)[1]) <= t + 1e-9 && t < std::stod((*it)[2]) - 1e-9) return std::string((*it)[3]);
        return std::string("nothing");
    };
    auto data = std::make_unique<OrvoClipData>();
    // Moments in the first pair, just after the join, and late in the second pair.
    for (const auto& [videoTime, clip, clipTime, clock] :
         {std::tuple{0.0, "20261121_100000_F.avi", 2.0, "10:00:02"}, std::tuple{2.05, "20261121_100004_F.avi", 0.05, "10:00:04"},
          std::tuple{4.75, "20261121_100004_F.avi", 2.75, "10:00:06"}}) {
        loadClipTelemetry((drive.card.path / "cont_rec" / clip).string(), *data);
        int x, y, z;
        float lat, lng;
        unsigned kmh;
        data->getClipDataWithIndex(int(clipTime * 10 + 1e-9), x, y, z, lat, lng, kmh);
        char want[200];
        std::snprintf(want, sizeof want, "2026-11-21 %s   %u km/h   G %.3f %.3f %.3f   %.4f %.4f", clock, kmh, x * 4 / 512.0,
                      y * 4 / 512.0, z * 4 / 512.0, lat, lng);
        EXPECT_EQ(shownAt(videoTime), want) << videoTime;
    }
    EXPECT_EQ(ProcessRunner::run("/bin/sh", {"-c", "cd '" + out.path.string() + "' && sha256sum -c --quiet SHA256SUMS"}).exitCode, 0);
}

// Cancelled halfway through the encoding, or a destination too small: a
// reason, and nothing of the export left behind.
TEST(IncidentExport, CancelAndAFullDestinationLeaveNothing) {
    Drive drive;
    const auto before = tree(drive.card.path);
    std::string why;
    const auto span = findIncidentSpan(drive.card.path.string(), parseCameraTime("2026-11-21 10:00:01").value(),
                                       parseCameraTime("2026-11-21 10:00:11").value(), true, &why);
    ASSERT_TRUE(span) << why;
    Folder out("cancelled");
    IncidentExport to;
    to.folder = out.path.string();
    std::vector<std::string> steps;
    const bool done = IncidentExporter::write(*span, to, [&](const std::string& step, double) {
        steps.push_back(step);
        return step != "encoding incident.mp4";
    }, &why);
    EXPECT_FALSE(done);
    EXPECT_EQ(why, "cancelled");
    EXPECT_FALSE(fs::exists(out.path)) << "the folder it made is gone";
    ASSERT_FALSE(steps.empty());
    EXPECT_EQ(steps.front().rfind("copying originals/", 0), 0u);

    // A 16 KiB file system of its own, in a mount namespace of the test's own.
    if (geteuid() != 0) GTEST_SKIP() << "mounting a small file system needs root";
    Folder small("small");
    fs::create_directories(small.path);
    const std::string script = "mount -t tmpfs -o size=16k none '" + small.path.string() + "' && '" +
                               std::string(TARVIK_BINARY_DIR) + "/tarvik' export '" + drive.card.path.string() +
                               "' --from '2026-11-21 10:00:01' --to '2026-11-21 10:00:11' --out '" +
                               (small.path / "incident").string() + "'; echo \"exit $?\"; ls -A '" +
                               small.path.string() + "'";
    ProcessResult r = ProcessRunner::run("unshare", {"-m", "--propagation", "private", "sh", "-c", script},
                                         std::chrono::minutes(2));
    EXPECT_NE(r.output.find("exit 1\n"), std::string::npos) << r.output;
    EXPECT_TRUE(r.output.find("No space left") != std::string::npos || r.output.find("is full") != std::string::npos)
        << r.output;
    EXPECT_EQ(r.output.substr(r.output.find("exit 1\n") + 7), "") << "left behind: " << r.output;
    EXPECT_EQ(tree(drive.card.path), before);
}

// A whole clip of one camera without an overlay goes over as the camera's own
// picture: not one frame re-encoded (the decoded frames are the original's),
// and the same span with the overlay is drawn anew.
TEST(IncidentExport, AWholeClipWithoutOverlayKeepsTheCamerasPicture) {
    Drive drive;
    const auto framesOf = [](const fs::path& clip) {
        return shell("ffmpeg -v error -i '" + clip.string() + "' -map 0:v:0 -f framemd5 - | grep -v '^#' | cut -d, -f6")
            .output;
    };
    const fs::path clip = drive.card.path / "cont_rec/20261121_100004_R.avi";
    for (bool overlay : {false, true}) {
        Folder out(overlay ? "whole-overlay" : "whole");
        std::vector<std::string> args = {"export", drive.card.path.string(), "--from", "2026-11-21 10:00:04", "--to",
                                         "2026-11-21 10:00:08", "--layout", "rear", "--out", out.path.string()};
        if (overlay) args.push_back("--overlay");
        ProcessResult r = runTarvik(args);
        ASSERT_EQ(r.exitCode, 0) << r.output;
        const std::string original = framesOf(clip), exported = framesOf(out.path / "incident.mp4");
        EXPECT_EQ(std::count(exported.begin(), exported.end(), '\n'), 40);
        EXPECT_EQ(exported == original, !overlay) << "overlay " << overlay;
        EXPECT_EQ(shell("cd '" + out.path.string() + "' && sha256sum -c --quiet SHA256SUMS").exitCode, 0);
    }
}

// The route inset: the car's dot stays inside a square inset and moves the way
// the positions do (east to the right, north up), from the span's first
// position to its last.
TEST(IncidentExport, RouteInsetFollowsThePositions) {
    Drive drive;
    Folder out("inset");
    ProcessResult r = runTarvik({"export", drive.card.path.string(), "--from", "2026-11-21 10:00:02", "--to",
                                 "2026-11-21 10:00:07", "--route-inset", "--layout", "side", "--out",
                                 out.path.string()});
    ASSERT_EQ(r.exitCode, 0) << r.output;
    std::ifstream in(out.path / "overlay.ass");
    const std::string ass((std::istreambuf_iterator<char>(in)), {});
    // Two 16:9 pictures side by side: the frame is drawn twice as wide, so the inset stays square.
    EXPECT_NE(ass.find("PlayResX: 2560\nPlayResY: 720\n"), std::string::npos);
    const std::regex dot(R"(Dialogue: 1,[^,]*,[^,]*,Route,\{\\pos\((\d+),(\d+)\))");
    std::vector<std::pair<int, int>> dots;
    for (auto it = std::sregex_iterator(ass.begin(), ass.end(), dot); it != std::sregex_iterator(); ++it)
        dots.emplace_back(std::stoi((*it)[1]) + 5, std::stoi((*it)[2]) + 5);
    ASSERT_GE(dots.size(), 2u) << ass;
    for (const auto& [x, y] : dots) {
        EXPECT_GE(x, kRouteInsetLeft);
        EXPECT_LE(x, kRouteInsetLeft + kRouteInsetSize);
        EXPECT_GE(y, kRouteInsetTop);
        EXPECT_LE(y, kRouteInsetTop + kRouteInsetSize);
    }
    auto data = std::make_unique<OrvoClipData>();
    auto position = [&](const char* clip, double t) {
        loadClipTelemetry((drive.card.path / "cont_rec" / clip).string(), *data);
        int x, y, z;
        float lat, lng;
        unsigned kmh;
        data->getClipDataWithIndex(int(t * 10 + 1e-9), x, y, z, lat, lng, kmh);
        return std::pair{lat, lng};
    };
    const auto [lat0, lng0] = position("20261121_100000_F.avi", 2.0);
    const auto [lat1, lng1] = position("20261121_100004_F.avi", 2.9);
    auto sign = [](double v) { return (v > 1e-9) - (v < -1e-9); };
    EXPECT_EQ(sign(dots.back().first - dots.front().first), sign(lng1 - lng0));
    EXPECT_EQ(sign(dots.back().second - dots.front().second), -sign(lat1 - lat0));
    EXPECT_NE(dots.front(), dots.back());
}
