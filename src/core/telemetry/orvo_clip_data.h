#pragma once
// The telemetry of one clip: up to 650 samples at ten samples per second of
// video (65 s), filled by one of the five readers of the camera layouts and read
// by index by the dashboard. Storage is fixed; nothing is allocated per sample.

#include <cstdint>
#include <string>
#include <string_view>

namespace tarvik {

class OrvoClipData {
public:
    static constexpr int kCapacity = 650;
    // Values handed out for an index with no sample behind it.
    static constexpr int kNoG = -512;
    static constexpr float kNoPosition = 512.0f;
    static constexpr unsigned kNoSpeed = 1024;

    OrvoClipData();

    // Picks the reader: an ".srt" side file (exact, case-sensitive) goes to the
    // SRT reader; anything else tries text records, then tail text, then the
    // general AVI chunk walk. The last reader's result becomes clipDataCount().
    void loadVideoFileCilpDataFromFilePath(const std::string& path);
    // Clips of the KRT family: only the KRT chunk walk.
    void loadVideoFileCilpDataFromFilePath_KRT(const std::string& path);

    // The readers. Each returns the number of samples stored and sets
    // gpsDataCount() itself; bad or foreign input gives 0.
    int getAllDataFromFileTail(const std::string& path);      // text after the "QZRVT7" marker
    int getM420AllDataFromFile(const std::string& path);      // "02tx"/"03tx" text records, byte scan
    int getM420AllDataFromSrtFile(const std::string& path);   // SRT side file
    int getAllDataFromFile(const char* path);                 // AVI chunk walk, general family
    int getAllDataFromFile_KRT(const char* path);             // AVI chunk walk, KRT family

    // NMEA ddmm.mmmm / dddmm.mmmm to millionths of a degree, hemisphere not applied.
    static std::uint32_t cal_string(std::string_view text);

    // Sample values, or the kNo* values when index < 0, > 649 or >= clipDataCount().
    int getGx(int index) const;
    int getGy(int index) const;
    int getGz(int index) const;
    float getGpsLat(int index) const;
    float getGpsLng(int index) const;
    unsigned getGpsSpeed(int index) const;
    // All six values of a sample at once, or the kNo* values out of range.
    void getClipDataWithIndex(int index, int& x, int& y, int& z, float& lat, float& lng,
                              unsigned& speed) const;

    int clipDataCount() const { return clipDataCount_; }
    void setClipDataCount(int count) { clipDataCount_ = count; }
    int gpsDataCount() const { return gpsDataCount_; }
    void setGpsDataCount(int count) { gpsDataCount_ = count; }

    // Direct stores used by the readers; an index outside 0..649 is ignored.
    void storeSample(int index, int gx, int gy, int gz, float lat, float lng, unsigned speed);

private:
    bool inRange(int index) const { return index >= 0 && index < kCapacity && index < clipDataCount_; }
    void clear();

    std::int16_t gx_[kCapacity];
    std::int16_t gy_[kCapacity];
    std::int16_t gz_[kCapacity];
    float gpsInfoLat_[kCapacity];
    float gpsInfoLng_[kCapacity];
    std::uint32_t gpsSpeed_[kCapacity];
    int clipDataCount_ = 0;
    int gpsDataCount_ = 0;
};

}  // namespace tarvik
