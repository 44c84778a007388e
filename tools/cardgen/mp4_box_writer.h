#pragma once
// Adds boxes to an MP4 that ffmpeg wrote (moov last, as ffmpeg writes it by
// default): top-level boxes go between the media data and moov, so every
// offset ffmpeg wrote stays right, and children are appended to moov.

#include <cstdint>
#include <filesystem>
#include <string>

namespace tarvik::cardgen {

void putBe16(std::string& s, std::uint16_t v);
void putBe32(std::string& s, std::uint32_t v);
void putBe64(std::string& s, std::uint64_t v);
void putLe32(std::string& s, std::uint32_t v);
// size + type + payload.
std::string box(const char* type, const std::string& payload);
// A full box: version 0 and flags before the payload.
std::string fullBox(const char* type, const std::string& payload, std::uint32_t flags = 0);

class Mp4BoxWriter {
public:
    // False when the file is not an MP4 whose last top-level box is moov.
    bool load(const std::filesystem::path& mp4);
    // The file offset the next top-level box will start at.
    std::uint64_t nextOffset() const { return head_.size() + extra_.size(); }
    void addTopLevel(const std::string& boxBytes) { extra_ += boxBytes; }
    void addToMoov(const std::string& boxBytes) { moovChildren_ += boxBytes; }
    // Sets mvhd's creation time (seconds since 1970), as a camera's clock writes it.
    bool setCreationTime(std::int64_t unixSeconds);
    bool save(const std::filesystem::path& out) const;

private:
    std::string head_;          // everything before moov
    std::string extra_;         // added top-level boxes
    std::string moovChildren_;  // moov's own children, then the added ones
};

}  // namespace tarvik::cardgen
