#include "core/telemetry/subtitle_data.h"

#include <cmath>
#include <optional>

#include "core/telemetry/text_fields.h"
#include "core/telemetry/text_stream.h"
#include "core/util/bounded_file.h"
#include "core/util/unrecorded_space.h"

namespace tarvik {

namespace {
// Cue times hold minutes and seconds only: below 100 minutes.
constexpr std::size_t kMaxTenths = 61000;
constexpr std::int64_t kReach = 1000;  // ms a nearby position may be away

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

void SubtitleData::clear() {
    tenths_.clear();
    tenths_.shrink_to_fit();
    cues_ = 0;
}

void SubtitleData::loadFromPath(const std::string& path) {
    clear();
    BoundedFile file;
    if (!file.open(path) || startsUnrecorded(file) || !text::isValidUtf8(file, 0)) return;
    // CR and LF are separators of their own: a CR LF file has an empty
    // line after every line, which closes its cue before the data line.
    text::LineReader lines(file, 0, file.size(), "\r\n");
    parse([&](std::string_view& line) { return lines.next(line); });
    // A track cut short while it was read is no track.
    if (!file.intact()) clear();
}

void SubtitleData::loadFromText(std::string_view t) {
    clear();
    if (!text::isValidUtf8(reinterpret_cast<const unsigned char*>(t.data()), t.size())) return;
    std::size_t pos = 0;
    bool done = false;
    parse([&](std::string_view& line) {
        if (done) return false;
        const std::size_t e = t.find_first_of("\r\n", pos);
        line = t.substr(pos, e == std::string_view::npos ? t.npos : e - pos);
        if (e == std::string_view::npos) done = true;
        else pos = e + 1;
        return true;
    });
}

template <typename NextLine>
void SubtitleData::parse(NextLine nextLine) {
    std::optional<SubtitleEntry> current;
    std::vector<std::string_view> parts, f;
    std::string_view line;
    while (nextLine(line)) {
        if (blank(line)) {
            if (current) add(*current);
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
    }
    tenths_.shrink_to_fit();
}

void SubtitleData::add(const SubtitleEntry& e) {
    ++cues_;
    const std::size_t k = e.cts / 100;
    if (k >= kMaxTenths) return;
    if (k >= tenths_.size()) tenths_.resize(k + 1);
    Tenth& s = tenths_[k];
    const bool atStart = e.cts % 100 == 0;
    // Of several cues at one time, the first counts.
    if (atStart && !s.sensor) {
        s.sensor = true;
        s.gx = static_cast<std::int16_t>(e.gx());
        s.gy = static_cast<std::int16_t>(e.gy());
        s.gz = static_cast<std::int16_t>(e.gz());
    }
    if (e.lat == SubtitleEntry::kNoPosition) return;
    const Point p{e.cts, e.lat, e.lng, e.speed};
    if (atStart) {
        if (!s.exact) s.exact = true, s.atStart = p;
        return;
    }
    if (!s.low || p.cts < s.lowest.cts) s.low = true, s.lowest = p;
    if (!s.high) {
        s.high = true, s.highest = p;
    } else if (p.cts > s.highest.cts) {
        s.second = s.highest, s.high2 = true;
        s.highest = p;
    } else if (p.cts < s.highest.cts && (!s.high2 || p.cts > s.second.cts)) {
        s.high2 = true, s.second = p;
    }
}

bool SubtitleData::getSensorAt(unsigned t, int& x, int& y, int& z) const {
    if (t >= tenths_.size() || !tenths_[t].sensor) return false;
    x = tenths_[t].gx;
    y = tenths_[t].gy;
    z = tenths_[t].gz;
    return true;
}

int SubtitleData::below(std::uint64_t target, const Point* out[2]) const {
    int n = 0;
    auto take = [&](const Point& p) {
        if (n < 2 && static_cast<std::int64_t>(target - p.cts) < kReach) out[n++] = &p;
    };
    if (tenths_.empty() || target == 0) return 0;
    std::uint64_t k = std::min<std::uint64_t>((target - 1) / 100, tenths_.size() - 1);
    for (;; --k) {
        if (k * 100 + 100 + kReach <= target) break;  // every cue this low is too far
        const Tenth& s = tenths_[k];
        if (k * 100 < target) {  // the tenth holding `target` has nothing below it
            if (s.high) take(s.highest);
            if (s.high2) take(s.second);
            if (s.exact) take(s.atStart);
        }
        if (n == 2 || k == 0) break;
    }
    return n;
}

const SubtitleData::Point* SubtitleData::above(std::uint64_t target) const {
    for (std::uint64_t k = target / 100; k < tenths_.size() && k * 100 < target + kReach; ++k) {
        const Tenth& s = tenths_[k];
        if (s.exact && s.atStart.cts > target && s.atStart.cts < target + kReach) return &s.atStart;
        if (s.low && s.lowest.cts > target && s.lowest.cts < target + kReach) return &s.lowest;
    }
    return nullptr;
}

int SubtitleData::getGpsAt(unsigned t, float& lat, float& lng, unsigned& speed) const {
    const std::uint64_t target = static_cast<std::uint64_t>(t) * 100;
    if (t < tenths_.size() && tenths_[t].exact) {
        const Point& p = tenths_[t].atStart;
        lat = p.lat;
        lng = p.lng;
        speed = p.speed;
        return GpsExact;
    }
    const Point* down[2] = {nullptr, nullptr};
    below(target, down);
    const Point* up = above(target);
    // The nearer wins, the earlier on a tie; the one before it in time
    // (nearer than 1000 ms) is the second point of the interpolation.
    const Point* a = up;
    const Point* b = down[0];
    if (down[0] && (!up || target - down[0]->cts <= up->cts - target)) a = down[0], b = down[1];
    if (!a) return GpsNone;
    if (!b) {
        lat = a->lat;
        lng = a->lng;
        speed = a->speed;
        return GpsNearby;
    }
    const float f = static_cast<float>(static_cast<std::int64_t>(target) - static_cast<std::int64_t>(a->cts)) /
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
