// Preallocated clips: gigabytes of zeros, never recorded or recorded only at
// their start. Sparse files, so they cost no disk. Every reader answers in
// moments, and a clip recorded at its start keeps what it recorded.
#include <gtest/gtest.h>

#include <chrono>
#include <functional>

#include "cardgen/telemetry_encoders.h"
#include "core/telemetry/orvo_clip_data.h"
#include "core/telemetry/subtitle_data.h"
#include "test_bytes.h"

using namespace tarvik;
using tarvik::test::Avi;
using tarvik::test::TempDir;

namespace {

constexpr std::uintmax_t kPreallocated = 5ull << 30;
// Far above what the bounded readers take, far below what stepping through gigabytes does.
constexpr auto kMoments = std::chrono::milliseconds(200);

using Reader = std::function<int(const std::string&)>;

struct Named {
    const char* name;
    Reader read;
};

std::vector<Named> readers() {
    auto member = [](int (OrvoClipData::*fn)(const std::string&)) {
        return [fn](const std::string& p) { return (std::make_unique<OrvoClipData>().get()->*fn)(p); };
    };
    return {
        {"first found", [](const std::string& p) {
             auto d = std::make_unique<OrvoClipData>();
             d->loadVideoFileCilpDataFromFilePath(p);
             return d->clipDataCount();
         }},
        {"records", member(&OrvoClipData::getM420AllDataFromFile)},
        {"tail", member(&OrvoClipData::getAllDataFromFileTail)},
        {"srt", member(&OrvoClipData::getM420AllDataFromSrtFile)},
        {"avi", [](const std::string& p) { return std::make_unique<OrvoClipData>()->getAllDataFromFile(p.c_str()); }},
        {"krt", [](const std::string& p) { return std::make_unique<OrvoClipData>()->getAllDataFromFile_KRT(p.c_str()); }},
        {"track", [](const std::string& p) { return static_cast<int>(SubtitleData::fromPath(p)->cueCount()); }},
    };
}

// The count and how long the read took.
std::pair<int, std::chrono::milliseconds> timed(const Reader& read, const std::string& path) {
    const auto start = std::chrono::steady_clock::now();
    const int n = read(path);
    return {n, std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - start)};
}

std::string preallocated(const TempDir& dir, const std::string& name, const std::string& recorded) {
    const auto path = dir.write(name, recorded);
    std::filesystem::resize_file(path, kPreallocated);
    return path.string();
}

// Five seconds of the generated drive in a chunk layout, a picture after every chunk.
Avi chunkClip(const std::vector<cardgen::TextChunk>& chunks) {
    Avi avi;
    for (const auto& c : chunks) avi.chunk(c.tag, c.payload).chunk("00dc", std::string(3000, '\x5a'));
    return avi;
}

Avi aviClip(bool krt) {
    const auto drive = cardgen::driveSeconds(0, 5, 10, krt ? cardgen::quantizeKrtBinary : cardgen::quantizeGeneralBinary);
    return chunkClip(cardgen::binaryChunks(drive, "02tx", krt));
}

std::string textRecordClip() {
    return chunkClip(cardgen::textRecordChunks(cardgen::driveSeconds(0, 5, 10, cardgen::quantizeText), "02tx", false)).bytes;
}

}  // namespace

TEST(UnrecordedClips, NeverRecordedGivesNothingAtOnce) {
    TempDir dir;
    const std::string path = preallocated(dir, "zeros.avi", "");
    for (const Named& r : readers()) {
        const auto [n, took] = timed(r.read, path);
        EXPECT_EQ(n, 0) << r.name;
        EXPECT_LT(took, kMoments) << r.name;
    }
}

TEST(UnrecordedClips, RecordedAtItsStartKeepsWhatItRecorded) {
    TempDir dir;
    const Named all = readers()[0], records = readers()[1], avi = readers()[4], krt = readers()[5];
    struct Case {
        const char* name;
        std::string recorded;
        Named reader;
    };
    const std::vector<Case> cases = {
        {"records", textRecordClip(), records},
        {"records, first found", textRecordClip(), all},
        {"avi", aviClip(false).bytes, avi},
        {"avi indexed", aviClip(false).indexed(), avi},
        {"krt", aviClip(true).bytes, krt},
        {"krt indexed", aviClip(true).indexed(), krt},
    };
    // Text at the start, zeros after: not a tail-text clip (its text ends the file).
    std::string lines = "XXXXXX";
    for (int i = 0; i < 40; ++i) lines += std::to_string(i) + ",37.5,126.25,42,1,-2,130\n";
    const std::string text = preallocated(dir, "text", lines);
    const auto [textSamples, textTook] = timed(readers()[2].read, text);
    EXPECT_EQ(textSamples, 0);
    EXPECT_LT(textTook, kMoments);
    // A recorded start without telemetry: every reader tried, none reads on into the zeros.
    Avi pictures;
    for (int i = 0; i < 50; ++i) pictures.chunk("00dc", std::string(3000, '\x5a'));
    for (const Named& r : readers()) {
        const auto [n, took] = timed(r.read, preallocated(dir, std::string("pictures ") + r.name, pictures.bytes));
        EXPECT_EQ(n, 0) << r.name;
        EXPECT_LT(took, kMoments) << r.name;
    }
    for (const Case& c : cases) {
        const int whole = c.reader.read(dir.write(std::string(c.name) + ".whole", c.recorded).string());
        ASSERT_GT(whole, 0) << c.name;
        const auto [n, took] = timed(c.reader.read, preallocated(dir, c.name, c.recorded));
        EXPECT_EQ(n, whole) << c.name;
        EXPECT_LT(took, kMoments) << c.name;
    }
}
