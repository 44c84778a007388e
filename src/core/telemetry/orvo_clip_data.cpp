#include "core/telemetry/orvo_clip_data.h"

#include <cstring>

#include "core/telemetry/telemetry_readers.h"
#include "core/telemetry/telemetry_records.h"
#include "core/util/bounded_file.h"
#include "core/util/unrecorded_space.h"

namespace tarvik {

namespace {
// A file that shrank or vanished under the reader (a card pulled out) gives
// no samples rather than some; one never recorded gives none at once.
template <typename Reader>
int readFile(const std::string& path, OrvoClipData& out, Reader reader, bool random = false) {
    BoundedFile file;
    if (!file.open(path, random)) return 0;
    if (startsUnrecorded(file)) {
        out.setGpsDataCount(0);
        return 0;
    }
    const int n = reader(file);
    if (file.intact()) return n;
    out.setGpsDataCount(0);
    return 0;
}

bool hasSrtExtension(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    const std::size_t dot = path.rfind('.');
    if (dot == std::string::npos || (slash != std::string::npos && dot < slash)) return false;
    return path.compare(dot + 1, std::string::npos, "srt") == 0;
}
}  // namespace

OrvoClipData::OrvoClipData() { clear(); }

void OrvoClipData::clear() {
    std::memset(gx_, 0, sizeof gx_);
    std::memset(gy_, 0, sizeof gy_);
    std::memset(gz_, 0, sizeof gz_);
    std::memset(gpsInfoLat_, 0, sizeof gpsInfoLat_);
    std::memset(gpsInfoLng_, 0, sizeof gpsInfoLng_);
    std::memset(gpsSpeed_, 0, sizeof gpsSpeed_);
    // A new clip must not inherit the last one's route.
    clipDataCount_ = 0;
    gpsDataCount_ = 0;
}

void OrvoClipData::loadVideoFileCilpDataFromFilePath(const std::string& path) {
    clear();
    if (hasSrtExtension(path)) {
        clipDataCount_ = getM420AllDataFromSrtFile(path);
        return;
    }
    // One open file serves all three tries.
    clipDataCount_ = readFile(path, *this, [&](const BoundedFile& file) {
        int n = readers::readTextRecords(file, *this);
        if (n == 0 && !file.failed()) n = readers::readTailText(file, *this);
        if (n == 0 && !file.failed()) n = readers::readAviChunks(file, readers::AviFamily::General, *this);
        return n;
    });
}

void OrvoClipData::loadVideoFileCilpDataFromFilePath_KRT(const std::string& path) {
    clear();
    clipDataCount_ = getAllDataFromFile_KRT(path.c_str());
}

int OrvoClipData::getAllDataFromFileTail(const std::string& path) {
    return readFile(path, *this, [&](const BoundedFile& f) { return readers::readTailText(f, *this); });
}

int OrvoClipData::getM420AllDataFromFile(const std::string& path) {
    return readFile(path, *this, [&](const BoundedFile& f) { return readers::readTextRecords(f, *this); });
}

int OrvoClipData::getM420AllDataFromSrtFile(const std::string& path) {
    return readFile(path, *this, [&](const BoundedFile& f) { return readers::readSrtCues(f, *this); });
}

int OrvoClipData::getAllDataFromFile(const char* path) {
    if (!path) return 0;
    return readFile(path, *this, [&](const BoundedFile& f) {
        return readers::readAviChunks(f, readers::AviFamily::General, *this);
    }, true);
}

int OrvoClipData::getAllDataFromFile_KRT(const char* path) {
    if (!path) return 0;
    return readFile(path, *this, [&](const BoundedFile& f) {
        return readers::readAviChunks(f, readers::AviFamily::Krt, *this);
    }, true);
}

std::uint32_t OrvoClipData::cal_string(std::string_view text) { return records::nmeaToMicroDegrees(text); }

int OrvoClipData::getGx(int i) const { return inRange(i) ? gx_[i] : kNoG; }
int OrvoClipData::getGy(int i) const { return inRange(i) ? gy_[i] : kNoG; }
int OrvoClipData::getGz(int i) const { return inRange(i) ? gz_[i] : kNoG; }
float OrvoClipData::getGpsLat(int i) const { return inRange(i) ? gpsInfoLat_[i] : kNoPosition; }
float OrvoClipData::getGpsLng(int i) const { return inRange(i) ? gpsInfoLng_[i] : kNoPosition; }
unsigned OrvoClipData::getGpsSpeed(int i) const { return inRange(i) ? gpsSpeed_[i] : kNoSpeed; }

void OrvoClipData::getClipDataWithIndex(int i, int& x, int& y, int& z, float& lat, float& lng,
                                        unsigned& speed) const {
    if (!inRange(i)) {
        x = y = z = kNoG;
        lat = lng = kNoPosition;
        speed = kNoSpeed;
        return;
    }
    x = gx_[i];
    y = gy_[i];
    z = gz_[i];
    lat = gpsInfoLat_[i];
    lng = gpsInfoLng_[i];
    speed = gpsSpeed_[i];
}

void OrvoClipData::storeSample(int i, int gx, int gy, int gz, float lat, float lng, unsigned speed) {
    if (i < 0 || i >= kCapacity) return;
    gx_[i] = static_cast<std::int16_t>(gx);
    gy_[i] = static_cast<std::int16_t>(gy);
    gz_[i] = static_cast<std::int16_t>(gz);
    gpsInfoLat_[i] = lat;
    gpsInfoLng_[i] = lng;
    gpsSpeed_[i] = speed;
}

}  // namespace tarvik
