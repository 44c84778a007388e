#pragma once
// Builders for hand-made telemetry files: AVI chunk streams and temp files.

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
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
    // The list and file sizes filled in and an idx1 index of every chunk but
    // the text ones appended, as the card generator's clips have it.
    std::string indexed() const {
        std::string out = bytes, index;
        for (std::size_t p = 24; p + 8 <= out.size();) {
            const std::uint32_t size = static_cast<std::uint8_t>(out[p + 4]) | static_cast<std::uint8_t>(out[p + 5]) << 8 |
                                       static_cast<std::uint8_t>(out[p + 6]) << 16 |
                                       static_cast<std::uint32_t>(static_cast<std::uint8_t>(out[p + 7])) << 24;
            if (out.compare(p + 2, 2, "tx") != 0) {
                index += out.substr(p, 4);
                put32(index, 0x10);
                put32(index, static_cast<std::uint32_t>(p - 20));
                put32(index, size);
            }
            p += 8 + size + (size & 1);
        }
        auto set32 = [&](std::size_t at, std::size_t v) {
            std::string b;
            put32(b, static_cast<std::uint32_t>(v));
            out.replace(at, 4, b);
        };
        set32(16, out.size() - 20);
        out += "idx1";
        put32(out, static_cast<std::uint32_t>(index.size()));
        out += index;
        set32(4, out.size() - 8);
        return out;
    }
};

inline std::string readBytes(const std::filesystem::path& p) {
    std::ifstream in(p, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

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
