// Other camera families' telemetry on 1 GiB MP4s (and an MPEG-TS), each against a plain read of
// the same file in the same run (warm): the layouts with an index (GPMF track,
// "gps " box, boxes beside mdat, text track) and the freeGPS scan of mdat
// without one; peak resident memory while reading.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "bench_reading.h"
#include "bench_table.h"
#include "cardgen/mp4_box_writer.h"
#include "cardgen/other_camera_layouts.h"
#include "cardgen/ts_private_stream.h"
#include "core/telemetry/content_telemetry.h"
#include "core/telemetry/orvo_clip_data.h"

namespace fs = std::filesystem;
using namespace tarvik;
using namespace tarvik::cardgen;

using tarvik::bench::plainReadSeconds;
using tarvik::bench::statusKiB;

namespace {

constexpr std::uint64_t kGiB = 1ull << 30;
constexpr int kSeconds = 65;  // what a clip's 650 samples cover
double gPeakMiB = 0;

fs::path workDir() {
    static fs::path dir = [] {
        fs::path d = fs::temp_directory_path() / ("tarvik-bench-other-" + std::to_string(getpid()));
        fs::create_directories(d);
        return d;
    }();
    return dir;
}

// Picture-like filler: random bytes, with any accidental "freeGPS " broken up.
void filler(std::string& out, std::size_t n, std::uint64_t& seed) {
    const std::size_t at = out.size();
    out.resize(at + n);
    for (std::size_t i = 0; i < n; i += 8) {
        seed ^= seed << 13, seed ^= seed >> 7, seed ^= seed << 17;
        std::memcpy(&out[at + i], &seed, std::min<std::size_t>(8, n - i));
    }
}

std::string ftyp() { return box("ftyp", std::string("isom\0\0\2\0isommp41", 16)); }

std::string mvhd() {
    std::string p(12, '\0');
    putBe32(p, 1000);
    putBe32(p, kSeconds * 1000);
    p.append(80, '\0');
    return fullBox("mvhd", p);
}

// ftyp, one mdat of 1 GiB holding `perSecond` payloads spread over it (one a
// second of the clip, as a camera interleaves them with the pictures), then
// `after` top-level boxes and a moov made by `moov` from the payloads' offsets.
fs::path makeClip(const std::string& name, const std::vector<std::string>& perSecond,
                  const std::function<std::string(const std::vector<std::uint64_t>&)>& moovChildren,
                  const std::string& after = {}) {
    const fs::path path = workDir() / name;
    std::ofstream f(path, std::ios::binary);
    const std::string head = ftyp();
    std::uint64_t written = head.size();
    f << head;
    std::string size;
    putBe32(size, 1);  // a 64-bit size follows
    f << size << "mdat";
    std::string big;
    putBe64(big, kGiB - head.size());
    f << big;
    written += 16;
    const std::uint64_t end = kGiB;
    std::uint64_t seed = 88172645463325292ull;
    std::vector<std::uint64_t> offsets;
    std::string buf;
    for (int s = 0; s < kSeconds; ++s) {
        const std::uint64_t secondEnd = head.size() + (end - head.size()) * (s + 1) / kSeconds;
        buf.clear();
        if (!perSecond.empty()) {
            offsets.push_back(written);
            buf += perSecond[static_cast<std::size_t>(s)];
        }
        filler(buf, static_cast<std::size_t>(secondEnd - written - buf.size()), seed);
        for (std::size_t at = buf.find("freeGPS ", perSecond.empty() ? 0 : perSecond[s].size());
             at != std::string::npos; at = buf.find("freeGPS ", at + 1))
            buf[at] = 'F';
        f.write(buf.data(), static_cast<std::streamsize>(buf.size()));
        written += buf.size();
    }
    f << after << box("moov", mvhd() + moovChildren(offsets));
    f.close();
    return path;
}

std::vector<std::uint32_t> sizesOf(const std::vector<std::string>& v) {
    std::vector<std::uint32_t> s;
    for (const std::string& p : v) s.push_back(static_cast<std::uint32_t>(p.size()));
    return s;
}

void compare(benchmark::State& state, const char* row, double goal, const std::function<fs::path()>& make) {
    const fs::path path = make();
    auto data = std::make_unique<OrvoClipData>();
    plainReadSeconds(path);  // warm the page cache
    std::vector<double> ratios, reads, parses;
    double peak = 0;
    int samples = 0;
    for (auto _ : state) {
        reads.push_back(plainReadSeconds(path));
        std::ofstream("/proc/self/clear_refs") << "5";
        const long base = statusKiB("VmRSS:");
        const auto t0 = std::chrono::steady_clock::now();
        samples = readTelemetryByContent(path.string(), *data);
        const double s = std::chrono::duration<double>(std::chrono::steady_clock::now() - t0).count();
        peak = std::max(peak, (statusKiB("VmHWM:") - base) / 1024.0);
        parses.push_back(s);
        ratios.push_back(s / reads.back());
        state.SetIterationTime(s);
    }
    std::error_code ec;
    fs::remove(path, ec);
    const double ratio = tarvik::bench::median(ratios);
    state.counters["ratio_vs_read"] = ratio;
    state.counters["peak_rss_MiB"] = peak;
    state.counters["samples"] = samples;
    char goalText[32], note[128];
    std::snprintf(goalText, sizeof goalText, "<= %g", goal);
    std::snprintf(note, sizeof note, "median %.2f ms against %.1f ms, %d samples", tarvik::bench::median(parses) * 1000,
                  tarvik::bench::median(reads) * 1000, samples);
    tarvik::bench::tableRow(row, ratio, goalText, samples == 650 && ratio <= goal, note);
    gPeakMiB = std::max(gPeakMiB, peak);
}

void BM_Gpmf_1GiB(benchmark::State& state) {
    compare(state, "GPMF track / warm plain read", 0.05, [] {
        std::vector<std::string> payloads;
        for (int s = 0; s < kSeconds; ++s) payloads.push_back(gpmfSecond(s, false));
        return makeClip("gpmf.mp4", payloads, [&](const std::vector<std::uint64_t>& at) {
            return metadataTrack("meta", "gpmd", sizesOf(payloads), at);
        });
    });
}

std::vector<std::string> freeGpsBlocks() {
    std::vector<std::string> blocks;
    for (int s = 0; s < kSeconds; ++s) blocks.push_back(freeGpsBlock(s));
    return blocks;
}

void BM_FreeGpsIndexed_1GiB(benchmark::State& state) {
    compare(state, "freeGPS through the gps index / warm plain read", 0.05, [] {
        return makeClip("free_gps_indexed.mp4", freeGpsBlocks(), [](const std::vector<std::uint64_t>& at) {
            std::string index;
            putBe32(index, 0);
            putBe32(index, static_cast<std::uint32_t>(at.size()));
            for (std::uint64_t o : at) {
                putBe32(index, static_cast<std::uint32_t>(o));
                putBe32(index, 0x8000);
            }
            return box("gps ", index);
        });
    });
}

void BM_FreeGpsScanned_1GiB(benchmark::State& state) {
    compare(state, "freeGPS scan of mdat / warm plain read", 1.5, [] {
        return makeClip("free_gps_scanned.mp4", freeGpsBlocks(), [](const std::vector<std::uint64_t>&) { return std::string(); });
    });
}

void BM_FreeBoxLog_1GiB(benchmark::State& state) {
    compare(state, "free box NMEA log and G table / warm plain read", 0.05, [] {
        std::string start;
        putBe64(start, 0);
        const std::string free = box("free", box("sttm", start) + box("gps ", nmeaLog(0, kSeconds, 0)) +
                                                 box("3gf ", gTable(0, kSeconds)));
        return makeClip("free_box.mp4", {}, [](const std::vector<std::uint64_t>&) { return std::string(); }, free);
    });
}

void BM_GpsRecordBox_1GiB(benchmark::State& state) {
    compare(state, "GPS record box / warm plain read", 0.05, [] {
        std::string records;
        for (int s = 0; s < kSeconds; ++s) records += gpsRecord(s);
        return makeClip("gps_box.mp4", {}, [](const std::vector<std::uint64_t>&) { return std::string(); },
                        box("GPS ", records + std::string(36, '\0')));
    });
}

void BM_NmeaTrack_1GiB(benchmark::State& state) {
    compare(state, "NMEA text track / warm plain read", 0.05, [] {
        std::vector<std::string> samples;
        for (int s = 0; s < kSeconds; ++s) {
            std::string text;
            const std::string log = nmeaLog(s, 1, 0);
            for (std::size_t a = 0, d; (d = log.find('$', a)) != std::string::npos; a = log.find('\n', d))
                text += log.substr(d, log.find('\n', d) - d) + "\n";
            std::string sample;
            putBe16(sample, static_cast<std::uint16_t>(text.size()));
            samples.push_back(sample + text);
        }
        return makeClip("nmea_track.mp4", samples, [&](const std::vector<std::uint64_t>& at) {
            return metadataTrack("sbtl", "tx3g", sizesOf(samples), at);
        });
    });
}

// A table section in a packet of its own, CRC after it, stuffing to the end.
std::string tablePacket(std::uint16_t pid, const std::string& section) {
    std::string s = section;
    const std::uint32_t crc = mpegCrc32(reinterpret_cast<const unsigned char*>(s.data()), s.size());
    for (int shift : {24, 16, 8, 0}) s += static_cast<char>(crc >> shift);
    std::string p = {0x47, static_cast<char>(0x40 | pid >> 8), static_cast<char>(pid & 0xff), 0x10, 0};
    p += s;
    p.resize(188, static_cast<char>(0xff));
    return p;
}

// 1 GiB of 188-byte packets: the tables, H.264-like packets of filler on
// PID 0x100, and a freeGPS record a second on PID 0x0300, which the program
// map leaves out.
fs::path makeTransportStream() {
    const fs::path path = workDir() / "free_gps.ts";
    std::ofstream f(path, std::ios::binary);
    const std::string pat = tablePacket(0, std::string("\x00\xb0\x0d\x00\x01\xc1\x00\x00\x00\x01\xf0\x00", 12));
    const std::string pmt =
        tablePacket(0x1000, std::string("\x02\xb0\x12\x00\x01\xc1\x00\x00\xe1\x00\xf0\x00\x1b\xe1\x00\xf0\x00", 17));
    const std::uint64_t packets = kGiB / 188;
    std::uint64_t seed = 88172645463325292ull;
    std::string buf, fill;
    int counter = 0, gpsCounter = 0;
    for (std::uint64_t i = 0, second = 0; i < packets; ++i) {
        if (i % 4096 == 0) buf += pat + pmt, i += 2;
        if (second < kSeconds && i >= second * packets / kSeconds) {
            const std::string unit = freeGpsTsRecord(static_cast<int>(second), false);
            std::string pes = std::string("\x00\x00\x01\xbd", 4);
            pes += static_cast<char>(0), pes += static_cast<char>(unit.size() + 3);
            pes += std::string("\x80\x00\x00", 3) + unit;
            const std::size_t stuffing = 184 - pes.size();
            std::string p = {0x47, 0x43, 0x00, static_cast<char>(0x30 | (gpsCounter++ & 0x0f)),
                             static_cast<char>(stuffing - 1), 0};
            p.append(stuffing - 2, static_cast<char>(0xff));
            buf += p + pes;
            ++second;
            continue;
        }
        fill.clear();
        filler(fill, 184, seed);
        buf += std::string{0x47, static_cast<char>(i % 50 == 0 ? 0x41 : 0x01), 0x00,
                           static_cast<char>(0x10 | (counter++ & 0x0f))} +
               fill;
        if (buf.size() >= (8u << 20)) f.write(buf.data(), static_cast<std::streamsize>(buf.size())), buf.clear();
    }
    f.write(buf.data(), static_cast<std::streamsize>(buf.size()));
    return path;
}

void BM_FreeGpsTs_1GiB(benchmark::State& state) {
    compare(state, "freeGPS in an MPEG-TS private stream / warm plain read", 1.5, makeTransportStream);
}

BENCHMARK(BM_Gpmf_1GiB)->UseManualTime()->Iterations(9)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_FreeGpsIndexed_1GiB)->UseManualTime()->Iterations(9)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_FreeGpsScanned_1GiB)->UseManualTime()->Iterations(5)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_FreeGpsTs_1GiB)->UseManualTime()->Iterations(5)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_FreeBoxLog_1GiB)->UseManualTime()->Iterations(9)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_GpsRecordBox_1GiB)->UseManualTime()->Iterations(9)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_NmeaTrack_1GiB)->UseManualTime()->Iterations(9)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    tarvik::bench::tableRow("other families' readers' peak memory on a 1 GiB clip, MiB", gPeakMiB, "< 64", gPeakMiB < 64);
    benchmark::Shutdown();
    std::error_code ec;
    fs::remove_all(workDir(), ec);
    return 0;
}
