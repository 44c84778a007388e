#include "core/telemetry/subtitle_data.h"

#include <cmath>
#include <cstdlib>

#include "core/telemetry/text_fields.h"
#include "core/util/mapped_file.h"

namespace tarvik {

namespace {
bool blank(std::string_view line) {
    for (char c : line)
        if (!text::isSpace(static_cast<unsigned char>(c))) return false;
    return true;
}
}  // namespace

std::unique_ptr<SubtitleData> SubtitleData::fromPath(const std::string& path) {
    auto d = std::make_unique<SubtitleData>();
    d->loadFromPath(path);
    return d;
}

void SubtitleData::loadFromPath(const std::string& path) {
    entries_.clear();
    MappedFile file;
    if (!file.open(path)) return;
    loadFromText(std::string_view(reinterpret_cast<const char*>(file.data()), file.size()));
}

void SubtitleData::loadFromText(std::string_view t) {
    entries_.clear();
    if (!text::isValidUtf8(reinterpret_cast<const unsigned char*>(t.data()), t.size())) return;
    std::optional<SubtitleEntry> current;
    std::vector<std::string_view> parts, f;
    std::size_t pos = 0;
    for (;;) {
        // CR and LF are separators of their own: a CR LF file has an empty
        // line after every line, which closes its cue before the data line.
        const std::size_t e = t.find_first_of("\r\n", pos);
        const std::string_view line = t.substr(pos, e == std::string_view::npos ? t.npos : e - pos);
        if (blank(line)) {
            if (current) entries_.push_back(*current);
            current.reset();
        } else if (auto timed = SubtitleEntry::entryWithTime(line)) {
            current = timed;
        } else if (current) {
            text::split(line, ';', parts);
            for (std::string_view part : parts) {
                f.clear();
                text::splitBounded(part, ',', f);
                if (f[0] == "gsensor") current->parseSensor(f);
                else if (f[0] == "gsensori") current->parseSensorI(f);
                else if (f[0] == "GPRMC" || f[0] == "GNRMC") current->parseGprmc(f);
            }
        }
        if (e == std::string_view::npos) break;
        pos = e + 1;
    }
}

bool SubtitleData::getSensorAt(unsigned t, int& x, int& y, int& z) const {
    const std::uint64_t target = static_cast<std::uint64_t>(t) * 100;
    for (const SubtitleEntry& e : entries_) {
        if (e.cts != target) continue;
        x = e.gx();
        y = e.gy();
        z = e.gz();
        return true;
    }
    return false;
}

int SubtitleData::getGpsAt(unsigned t, float& lat, float& lng, unsigned& speed) const {
    if (entries_.empty()) return GpsNone;
    const std::int64_t target = static_cast<std::int64_t>(t) * 100;
    const SubtitleEntry* a = nullptr;
    const SubtitleEntry* b = nullptr;
    std::int64_t da = 1000, db = 1000;
    for (const SubtitleEntry& e : entries_) {
        if (e.lat == SubtitleEntry::kNoPosition) continue;
        if (e.cts == target) {
            lat = e.lat;
            lng = e.lng;
            speed = e.speed;
            return GpsExact;
        }
        const std::int64_t d = std::llabs(static_cast<std::int64_t>(e.cts) - target);
        if (d > 1000) continue;
        // The second-nearest is only replaced by a displaced nearest or by an
        // entry closer than every one seen so far; entries 1000 ms away never count.
        if (d < da) {
            b = a;
            a = &e;
            da = d;
        } else if (d < db) {
            b = &e;
        }
        if (d < db) db = d;
    }
    if (!a) return GpsNone;
    if (!b || b->cts == a->cts) {
        lat = a->lat;
        lng = a->lng;
        speed = a->speed;
        return GpsNearby;
    }
    const float f = static_cast<float>(target - static_cast<std::int64_t>(a->cts)) /
                    static_cast<float>(static_cast<std::int64_t>(b->cts) - static_cast<std::int64_t>(a->cts));
    lat = (b->lat - a->lat) * f + a->lat;
    lng = (b->lng - a->lng) * f + a->lng;
    const float s = (static_cast<float>(b->speed) - static_cast<float>(a->speed)) * f + static_cast<float>(a->speed);
    // Speeds near the top of the range interpolate past it in single precision.
    if (!(s > 0.0f)) speed = 0;
    else if (s >= 4294967295.0f) speed = 4294967295u;
    else speed = static_cast<unsigned>(std::trunc(s));
    return GpsNearby;
}

}  // namespace tarvik
