#pragma once
// One cue of a telemetry subtitle track.

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace tarvik {

class SubtitleEntry {
public:
    static constexpr int kNoG = -512;
    static constexpr float kNoPosition = 512.0f;
    static constexpr std::uint32_t kNoSpeed = 1024;

    // A cue from its timing line ("hh:mm:ss,fff --> ..."); the hour does not
    // count, so cue times wrap every hour. Empty when the line is not a timing line.
    static std::optional<SubtitleEntry> entryWithTime(std::string_view line);

    // Records of a cue body, already split at ",". Short records are skipped.
    void parseSensor(const std::vector<std::string_view>& fields);   // "gsensor"
    void parseSensorI(const std::vector<std::string_view>& fields);  // "gsensori"
    void parseGprmc(const std::vector<std::string_view>& fields);    // "GPRMC" / "GNRMC"

    // NMEA coordinate and hemisphere to signed degrees; 0 for short input.
    static float degree(std::string_view value, std::string_view compass);

    std::uint32_t cts = 0;  // cue start, ms
    int gx() const { return gx_; }
    int gy() const { return gy_; }
    int gz() const { return gz_; }
    // The setters keep G values within -512..512.
    void setGx(int v) { gx_ = clampG(v); }
    void setGy(int v) { gy_ = clampG(v); }
    void setGz(int v) { gz_ = clampG(v); }
    float lat = kNoPosition;
    float lng = kNoPosition;
    std::uint32_t speed = kNoSpeed;

private:
    static int clampG(int v) { return v < -512 ? -512 : (v > 512 ? 512 : v); }
    int gx_ = kNoG;
    int gy_ = kNoG;
    int gz_ = kNoG;
};

}  // namespace tarvik
