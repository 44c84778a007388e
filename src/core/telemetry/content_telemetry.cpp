#include "core/telemetry/content_telemetry.h"

#include <sys/stat.h>

#include <array>

#include "core/telemetry/content_readers.h"
#include "core/telemetry/orvo_clip_data.h"
#include "core/util/bounded_file.h"

namespace tarvik {

namespace {

// The readers that need the clip itself, cheapest first: the indexed ones
// read the moov box and a few payloads; the scans of a transport stream's
// packets (which gives up at once on a file without its sync bytes) and of
// mdat come last.
constexpr std::array kInClip = {readers::readGpmf,      readers::readFreeGpsIndexed, readers::readGpsRecordBox,
                                readers::readFreeBoxLog, readers::readNmeaTrack,      readers::readFreeGpsTs,
                                readers::readFreeGpsScan};

// "dir/name.ext" -> "dir/name" + each extension; the first regular file wins.
bool openSide(const std::string& clip, std::initializer_list<const char*> exts, BoundedFile& file) {
    const std::size_t slash = clip.rfind('/');
    const std::size_t dot = clip.rfind('.');
    const std::string stem = (dot == std::string::npos || (slash != std::string::npos && dot < slash))
                                 ? clip
                                 : clip.substr(0, dot);
    for (const char* e : exts)
        if (file.open(stem + e)) return true;
    return false;
}

int sideFiles(const std::string& clip, OrvoClipData& out) {
    BoundedFile log, table;
    const bool hasLog = openSide(clip, {".nmea", ".NMEA", ".gps", ".GPS"}, log);
    const bool hasTable = openSide(clip, {".3gf", ".3GF"}, table);
    if (!hasLog && !hasTable) return 0;
    const int n = readers::readSideFiles(hasLog ? &log : nullptr, hasTable ? &table : nullptr, out);
    return (!hasLog || log.intact()) && (!hasTable || table.intact()) ? n : 0;
}

}  // namespace

int readTelemetryByContent(const std::string& clipPath, OrvoClipData& out) {
    int n = 0;
    BoundedFile file;
    if (file.open(clipPath, true)) {
        for (auto reader : kInClip) {
            n = reader(file, out);
            if (n > 0 || file.failed()) break;
        }
        // A clip cut or pulled out while read gives nothing rather than part.
        if (!file.intact()) n = 0;
    }
    if (n == 0 && !file.failed()) n = sideFiles(clipPath, out);
    if (n == 0) out.setGpsDataCount(0);
    out.setClipDataCount(n);
    return n;
}

}  // namespace tarvik
