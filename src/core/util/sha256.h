#pragma once
// SHA-256 (FIPS 180-4), fed piece by piece: evidence files are hashed while
// they are copied, so each is read from the card once.

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace tarvik {

class Sha256 {
public:
    Sha256();
    void update(const void* data, std::size_t size);
    // The digest as 64 lower-case hex digits, the form sha256sum prints.
    std::string hexDigest();

private:
    void block(const std::uint8_t* p);

    std::array<std::uint32_t, 8> h_;
    std::array<std::uint8_t, 64> buffer_{};
    std::size_t buffered_ = 0;
    std::uint64_t bytes_ = 0;
};

}  // namespace tarvik
