// Clips that shrink or vanish while they are read (a card pulled out, another
// program truncating the file): every reader ends with a neutral value, never
// a signal. Also the bounded text window the text readers walk through.
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <functional>
#include <random>
#include <set>
#include <thread>
#include <vector>
#include <unistd.h>

#include "cardgen/telemetry_encoders.h"
#include "core/telemetry/orvo_clip_data.h"
#include "core/telemetry/subtitle_data.h"
#include "core/telemetry/text_stream.h"
#include "core/util/bounded_file.h"
#include "test_bytes.h"

using namespace tarvik;
using tarvik::test::Avi;
using tarvik::test::TempDir;

namespace {

const std::string kFiller(48 << 10, '\x5a');

// Eighty seconds of the generated drive in a chunk layout, a picture after every chunk.
std::string chunkClip(const std::vector<cardgen::TextChunk>& chunks, std::size_t frame, bool indexed = false) {
    Avi avi;
    for (const auto& c : chunks) avi.chunk(c.tag, c.payload).chunk("00dc", kFiller.substr(0, frame));
    return indexed ? avi.indexed() : avi.bytes;
}

std::string aviClip(bool krt, bool indexed = false) {
    const auto drive = cardgen::driveSeconds(0, 80, 10, krt ? cardgen::quantizeKrtBinary : cardgen::quantizeGeneralBinary);
    return chunkClip(cardgen::binaryChunks(drive, "02tx", krt), 4000, indexed);
}

std::string textRecordClip() {
    return chunkClip(cardgen::textRecordChunks(cardgen::driveSeconds(0, 80, 10, cardgen::quantizeText), "02tx", false),
                     kFiller.size());
}

std::string tailClip() {
    std::string c = std::string(4 << 20, '\x01') + "QZRVT7";
    for (int i = 0; i < 600; ++i) c += std::to_string(i) + ",37.5,126.25,42,1,-2,130\n";
    return c;
}

// Ten cues a second of the generated drive, a position with every tenth.
std::string srtTrack(int seconds) { return cardgen::srtTrack(cardgen::driveSeconds(0, seconds, 10, cardgen::quantizeText)); }

struct Case {
    const char* name;
    std::string bytes;
    std::function<int(const std::string&)> read;
};

std::vector<Case> cases() {
    auto clip = [](int (OrvoClipData::*fn)(const std::string&)) {
        return [fn](const std::string& p) {
            OrvoClipData d;
            const int n = (d.*fn)(p);
            EXPECT_LE(d.gpsDataCount(), n);
            return n;
        };
    };
    auto avi = [](bool krt) {
        return [krt](const std::string& p) {
            OrvoClipData d;
            return krt ? d.getAllDataFromFile_KRT(p.c_str()) : d.getAllDataFromFile(p.c_str());
        };
    };
    return {
        {"avi", aviClip(false), avi(false)},
        {"krt", aviClip(true), avi(true)},
        {"avi indexed", aviClip(false, true), avi(false)},
        {"krt indexed", aviClip(true, true), avi(true)},
        {"records", textRecordClip(), clip(&OrvoClipData::getM420AllDataFromFile)},
        {"tail", tailClip(), clip(&OrvoClipData::getAllDataFromFileTail)},
        {"srt", srtTrack(70), clip(&OrvoClipData::getM420AllDataFromSrtFile)},
        {"track", srtTrack(300), [](const std::string& p) {
             return static_cast<int>(SubtitleData::fromPath(p)->cueCount());
         }},
    };
}

}  // namespace

TEST(CardPulled, ReadersEndNeutrallyWhileTheClipIsCutAndRemoved) {
    TempDir dir;
    int cutSeen = 0;
    for (const Case& c : cases()) {
        const std::string path = (dir.path / c.name).string(), half = path + ".half", fresh = path + ".new";
        dir.write(std::string(c.name) + ".half", c.bytes.substr(0, c.bytes.size() / 2));
        const int full = c.read(dir.write(c.name, c.bytes).string());
        ASSERT_GT(full, 0) << c.name;
        // A clip is whole, cut in half, empty or gone: anything else is a result made of a vanished read.
        const std::set<int> allowed = {0, full, c.read(half)};

        std::atomic<bool> stop{false};
        std::thread cutter([&] {
            std::mt19937 rng(1);
            while (!stop) {
                std::ofstream(fresh, std::ios::binary) << c.bytes;
                std::rename(fresh.c_str(), path.c_str());
                std::this_thread::sleep_for(std::chrono::microseconds(rng() % 3000));
                switch (rng() % 3) {
                case 0: ASSERT_EQ(truncate(path.c_str(), static_cast<off_t>(c.bytes.size() / 2)), 0); [[fallthrough]];
                case 1: ASSERT_EQ(truncate(path.c_str(), 0), 0); break;
                default: ::unlink(path.c_str());
                }
                std::this_thread::sleep_for(std::chrono::microseconds(rng() % 500));
            }
        });
        std::set<int> seen;
        const auto until = std::chrono::steady_clock::now() + std::chrono::milliseconds(700);
        while (std::chrono::steady_clock::now() < until) {
            const int n = c.read(path);
            EXPECT_TRUE(allowed.count(n)) << c.name << " gave " << n;
            seen.insert(n);
        }
        stop = true;
        cutter.join();
        cutSeen += static_cast<int>(seen.count(0));
    }
    EXPECT_GT(cutSeen, 0) << "no reader ever saw the clip cut";
}

TEST(CardPulled, AFailedReadSticks) {
    TempDir dir;
    const std::string path = dir.write("a.avi", aviClip(false)).string();
    BoundedFile f;
    ASSERT_TRUE(f.open(path));
    char buf[16];
    EXPECT_TRUE(f.readAt(100, buf, sizeof buf));
    EXPECT_FALSE(f.readAt(f.size() - 4, buf, sizeof buf));  // past the end: no failure
    EXPECT_FALSE(f.failed());
    // Batched reads too: all in, anything past the end refused.
    char many[8][16];
    std::vector<BoundedFile::Piece> pieces;
    for (std::size_t i = 0; i < 8; ++i) pieces.push_back({i * 1000, many[i], sizeof many[i]});
    EXPECT_TRUE(f.readPieces(pieces.data(), pieces.size()));
    const std::string bytes = aviClip(false);
    for (std::size_t i = 0; i < 8; ++i) EXPECT_EQ(std::string(many[i], 16), bytes.substr(i * 1000, 16));
    pieces.push_back({f.size() - 4, buf, sizeof buf});
    EXPECT_FALSE(f.readPieces(pieces.data(), pieces.size()));
    EXPECT_FALSE(f.failed());
    ASSERT_EQ(truncate(path.c_str(), 50), 0);
    pieces.pop_back();
    EXPECT_FALSE(f.readPieces(pieces.data(), pieces.size()));
    EXPECT_TRUE(f.failed());
    EXPECT_FALSE(f.readAt(100, buf, sizeof buf));
    EXPECT_FALSE(f.open(dir.path.string()));  // a folder
}

TEST(CardPulled, TextWindowAnswersAsTheWholeText) {
    std::mt19937 rng(3);
    std::string t;
    for (int i = 0; i < 3000; ++i) t += "ab\n\r -->"[rng() % 8];
    const BoundedFile f(t.data(), t.size());
    const std::string_view w(t);
    for (std::size_t cap : {16u, 37u, 4096u}) {
        text::TextStream s(f, 0, t.size(), cap);
        for (std::size_t pos = 0; pos <= t.size(); pos += 1 + rng() % 40) {
            for (std::string_view stop : {"\n", "\n\n", " --> ", "-->b"}) {
                const std::size_t want = std::min(w.find(stop, pos), t.size());
                ASSERT_EQ(s.find(stop, pos), want) << cap << " " << pos;
                ASSERT_EQ(s.view(pos, want), w.substr(pos, std::min(want - pos, cap)));
            }
            ASSERT_EQ(s.findAny("\r\n", pos), std::min(w.find_first_of("\r\n", pos), t.size()));
            ASSERT_EQ(s.at(pos), pos < t.size() ? t[pos] : -1);
        }
        // A shorter stretch ends where it is told to, even inside the window.
        s.reset(10, 40);
        EXPECT_EQ(s.find("\n", 10), std::min<std::size_t>(w.find('\n', 10), 40));
        EXPECT_EQ(s.at(40), -1);
    }
}

TEST(CardPulled, ATrackReadFromDiskMatchesTheSameTextInMemory) {
    // 3 MiB: cues straddle the windows the file is read through.
    const std::string text = srtTrack(3000) + "x";
    TempDir dir;
    const auto disk = SubtitleData::fromPath(dir.write("t.srt", text).string());
    SubtitleData mem;
    mem.loadFromText(text);
    ASSERT_EQ(disk->cueCount(), 30000u);
    ASSERT_EQ(mem.cueCount(), 30000u);
    for (unsigned t = 0; t < 30010; t += 7) {
        int x = 1, y = 1, z = 1, a = 1, b = 1, c = 1;
        float la = 0, ln = 0, lb = 0, lc = 0;
        unsigned sa = 0, sb = 0;
        ASSERT_EQ(disk->getSensorAt(t, x, y, z), mem.getSensorAt(t, a, b, c));
        ASSERT_EQ(x, a);
        ASSERT_EQ(disk->getGpsAt(t, la, ln, sa), mem.getGpsAt(t, lb, lc, sb));
        ASSERT_EQ(la, lb);
        ASSERT_EQ(sa, sb);
    }
}
