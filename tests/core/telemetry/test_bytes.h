#pragma once
// Builders for hand-made telemetry files: AVI chunk streams and temp files.

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>

namespace tarvik::test {

inline void put32(std::string& s, std::uint32_t v) {
    for (int i = 0; i < 4; ++i) s += static_cast<char>(v >> (8 * i));
}

// "RIFF....AVI " with a movi list; chunks appended in order.
struct Avi {
    std::string bytes;
    Avi() {
        bytes = "RIFF";
        put32(bytes, 0);
        bytes += "AVI LIST";
        put32(bytes, 0);
        bytes += "movi";
    }
    Avi& chunk(const std::string& tag, const std::string& payload) {
        bytes += tag;
        put32(bytes, static_cast<std::uint32_t>(payload.size()));
        bytes += payload;
        if (payload.size() & 1) bytes += '\0';
        return *this;
    }
    // General family: the bytes as written (g = 128 - byte).
    Avi& gReading(int b1, int b2, int b3, const std::string& tag = "02tx") {
        std::string p = "M";
        p += static_cast<char>(b1);
        p += static_cast<char>(b2);
        p += static_cast<char>(b3);
        p += std::string(4, '\0');
        return chunk(tag, p);
    }
    Avi& nmea(const std::string& text, const std::string& tag = "03tx") { return chunk(tag, text + '\0'); }
};

struct TempDir {
    std::filesystem::path path;
    TempDir() {
        path = std::filesystem::temp_directory_path() /
               ("tarvik-telemetry-" + std::to_string(::getpid()) + "-" + std::to_string(counter()++));
        std::filesystem::create_directories(path);
    }
    ~TempDir() {
        std::error_code ec;
        std::filesystem::remove_all(path, ec);
    }
    std::filesystem::path write(const std::string& name, const std::string& content) const {
        std::ofstream(path / name, std::ios::binary) << content;
        return path / name;
    }
    static int& counter() {
        static int c = 0;
        return c;
    }
};

}  // namespace tarvik::test
