#include "cardgen/avi_text_chunks.h"

#include <algorithm>
#include <cstring>
#include <fstream>
#include <iterator>
#include <map>

namespace tarvik::cardgen {

namespace {

std::uint32_t le32(const std::string& s, std::size_t p) {
    return static_cast<std::uint8_t>(s[p]) | static_cast<std::uint32_t>(static_cast<std::uint8_t>(s[p + 1])) << 8 |
           static_cast<std::uint32_t>(static_cast<std::uint8_t>(s[p + 2])) << 16 |
           static_cast<std::uint32_t>(static_cast<std::uint8_t>(s[p + 3])) << 24;
}

void put32(std::string& s, std::size_t p, std::uint32_t v) {
    for (int i = 0; i < 4; ++i) s[p + i] = static_cast<char>(v >> (8 * i));
}

void append32(std::string& s, std::uint32_t v) {
    s.append(4, '\0');
    put32(s, s.size() - 4, v);
}

void appendChunk(std::string& out, const std::string& tag, const std::string& payload) {
    out += tag.substr(0, 4);
    append32(out, static_cast<std::uint32_t>(payload.size()));
    out += payload;
    if (payload.size() & 1) out += '\0';
}

// Renames every "indx" chunk inside [from, to) of a header list to "JUNK".
void junkIndexes(std::string& s, std::size_t from, std::size_t to) {
    std::size_t p = from;
    while (p + 8 <= to) {
        const std::uint32_t size = le32(s, p + 4);
        if (s.compare(p, 4, "LIST") == 0) {
            junkIndexes(s, p + 12, std::min<std::size_t>(to, p + 8 + size));
        } else if (s.compare(p, 4, "indx") == 0) {
            std::memcpy(&s[p], "JUNK", 4);
        }
        p += 8 + size + (size & 1);
    }
}

bool fail(std::string* error, const std::string& why) {
    if (error) *error = why;
    return false;
}

}  // namespace

bool addTextChunksToAvi(const std::filesystem::path& avi, const std::vector<TextChunk>& chunksIn, int fps,
                        std::string* error) {
    std::string in;
    {
        std::ifstream f(avi, std::ios::binary);
        in.assign(std::istreambuf_iterator<char>(f), {});
    }
    if (in.size() < 12 || in.compare(0, 4, "RIFF") != 0 || in.compare(8, 4, "AVI ") != 0)
        return fail(error, "not an AVI file");
    const std::size_t riffEnd = std::min<std::size_t>(in.size(), 8 + static_cast<std::size_t>(le32(in, 4)));
    if (riffEnd + 8 < in.size()) return fail(error, "AVI extension segments are not supported");

    std::vector<TextChunk> chunks = chunksIn;
    std::stable_sort(chunks.begin(), chunks.end(), [](auto& a, auto& b) { return a.time < b.time; });

    std::string out = in.substr(0, 12);
    std::map<std::uint32_t, std::uint32_t> moved;  // frame offsets relative to "movi", old -> new
    bool sawMovi = false;
    std::size_t p = 12;
    while (p + 8 <= riffEnd) {
        const std::uint32_t size = le32(in, p + 4);
        const std::size_t next = std::min<std::size_t>(riffEnd, p + 8 + size + (size & 1));
        if (in.compare(p, 4, "LIST") == 0 && in.compare(p + 8, 4, "movi") == 0) {
            sawMovi = true;
            const std::size_t oldMovi = p + 8;
            const std::size_t listStart = out.size();
            out += "LIST";
            append32(out, 0);
            const std::size_t newMovi = out.size();
            out += "movi";
            std::size_t next_chunk = 0;
            long frame = 0;
            auto emitUpTo = [&](double t) {
                while (next_chunk < chunks.size() && chunks[next_chunk].time <= t) {
                    appendChunk(out, chunks[next_chunk].tag, chunks[next_chunk].payload);
                    ++next_chunk;
                }
            };
            std::size_t q = p + 12;
            const std::size_t end = std::min<std::size_t>(riffEnd, p + 8 + size);
            while (q + 8 <= end) {
                const std::uint32_t csize = le32(in, q + 4);
                const std::size_t cend = std::min<std::size_t>(end, q + 8 + csize + (csize & 1));
                if (in.compare(q, 2, "ix") == 0) {  // OpenDML index: dropped
                    q = cend;
                    continue;
                }
                const bool videoFrame = in.compare(q, 4, "00dc") == 0 || in.compare(q, 4, "00db") == 0;
                if (videoFrame) emitUpTo(static_cast<double>(frame) / fps);
                moved[static_cast<std::uint32_t>(q - oldMovi)] = static_cast<std::uint32_t>(out.size() - newMovi);
                out.append(in, q, cend - q);
                if (videoFrame) ++frame;
                q = cend;
            }
            emitUpTo(1e300);
            put32(out, listStart + 4, static_cast<std::uint32_t>(out.size() - listStart - 8));
        } else if (in.compare(p, 4, "idx1") == 0) {
            const std::size_t at = out.size();
            out.append(in, p, next - p);
            for (std::size_t e = at + 8; e + 16 <= at + 8 + size && e + 16 <= out.size(); e += 16) {
                auto it = moved.find(le32(out, e + 8));
                if (it != moved.end()) put32(out, e + 8, it->second);
            }
        } else if (in.compare(p, 4, "LIST") == 0 && in.compare(p + 8, 4, "hdrl") == 0) {
            const std::size_t at = out.size();
            out.append(in, p, next - p);
            junkIndexes(out, at + 12, out.size());
        } else {
            out.append(in, p, next - p);
        }
        p = next;
    }
    if (!sawMovi) return fail(error, "AVI file without a movi list");
    put32(out, 4, static_cast<std::uint32_t>(out.size() - 8));

    // Replace the file atomically: a half-written clip would be worse than none.
    const std::filesystem::path tmp = avi.string() + ".part";
    {
        std::ofstream f(tmp, std::ios::binary | std::ios::trunc);
        f.write(out.data(), static_cast<std::streamsize>(out.size()));
        if (!f) return fail(error, "could not write " + tmp.string());
    }
    std::error_code ec;
    std::filesystem::rename(tmp, avi, ec);
    if (ec) return fail(error, ec.message());
    return true;
}

}  // namespace tarvik::cardgen
