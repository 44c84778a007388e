#pragma once
// A throw-away card root in the temp folder, and raw byte helpers that do not
// go through the code under test.

#include <unistd.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace tarvik::test {

namespace fs = std::filesystem;

class TempCard {
public:
    TempCard() {
        std::string tmpl = (fs::temp_directory_path() / "tarvik-card-XXXXXX").string();
        root_ = ::mkdtemp(tmpl.data());
    }
    ~TempCard() {
        std::error_code ec;
        fs::remove_all(root_, ec);
    }
    const fs::path& root() const { return root_; }
    std::string path() const { return root_.string(); }
    fs::path file(const std::string& rel) const { return root_ / rel; }

    fs::path write(const std::string& rel, const std::string& bytes) const {
        fs::create_directories(file(rel).parent_path());
        std::ofstream(file(rel), std::ios::binary) << bytes;
        return file(rel);
    }
    std::string read(const std::string& rel) const {
        std::ifstream in(file(rel), std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }

private:
    fs::path root_;
};

inline void putLe32(std::string& b, std::size_t at, std::int32_t v) {
    if (b.size() < at + 4) b.resize(at + 4, '\0');
    for (int k = 0; k < 4; ++k) b[at + k] = static_cast<char>(static_cast<std::uint32_t>(v) >> (8 * k));
}

inline std::int32_t getLe32(const std::string& b, std::size_t at) {
    std::uint32_t v = 0;
    for (int k = 0; k < 4; ++k) v |= std::uint32_t(static_cast<unsigned char>(b[at + k])) << (8 * k);
    return static_cast<std::int32_t>(v);
}

// A record of `length` zero bytes with a product name at 8 and the length in
// its first field, as a newer camera writes it.
inline std::string recordNamed(const std::string& name, std::size_t length, std::int32_t first = -1) {
    std::string b(length, '\0');
    if (length >= 4) putLe32(b, 0, first < 0 ? static_cast<std::int32_t>(length) : first);
    for (std::size_t i = 0; i < name.size() && i < 16 && 8 + i < length; ++i) b[8 + i] = name[i];
    return b;
}

}  // namespace tarvik::test
