#include "core/telemetry/text_stream.h"

#include <algorithm>
#include <cstring>

#include "core/util/bounded_file.h"

namespace tarvik::text {

TextStream::TextStream(const BoundedFile& file, std::size_t begin, std::size_t end, std::size_t capacity)
    // No larger than the file: a small text costs a small buffer.
    : file_(file), buf_(std::max<std::size_t>(std::min(capacity, file.size()), 16)), begin_(0), end_(0) {
    reset(begin, end);
}

void TextStream::reset(std::size_t begin, std::size_t end) {
    end_ = std::min(end, file_.size());
    begin_ = std::min(begin, end_);
}

void TextStream::load(std::size_t pos) {
    start_ = pos;
    const std::size_t want = std::min(buf_.size(), end_ - pos);
    len_ = file_.readSome(pos, buf_.data(), want);
    // A file cut short ends the text where it now ends.
    if (len_ < want) end_ = pos + len_;
}

int TextStream::at(std::size_t pos) {
    if (pos >= end_) return -1;
    if (!holds(pos)) {
        load(pos);
        if (!holds(pos)) return -1;
    }
    return static_cast<unsigned char>(buf_[pos - start_]);
}

template <typename Search>
std::size_t TextStream::search(std::size_t pos, std::size_t overlap, Search s) {
    while (pos < end_) {
        if (!holds(pos)) {
            load(pos);
            if (!holds(pos)) return end_;
        }
        const std::size_t avail = std::min(len_, end_ - start_);
        const std::size_t hit = s(std::string_view(buf_.data(), avail), pos - start_);
        if (hit != std::string_view::npos) return start_ + hit;
        if (start_ + avail >= end_) return end_;
        // A match may straddle two windows.
        const std::size_t next = start_ + len_ - std::min(overlap, len_ - 1);
        load(std::max(next, pos + 1));
        pos = std::max(next, pos + 1);
    }
    return end_;
}

std::size_t TextStream::find(std::string_view stop, std::size_t pos) {
    if (stop.empty()) return std::min(pos, end_);
    return search(pos, stop.size() - 1, [&](std::string_view w, std::size_t from) { return w.find(stop, from); });
}

std::size_t TextStream::findAny(std::string_view set, std::size_t pos) {
    return search(pos, 0, [&](std::string_view w, std::size_t from) { return w.find_first_of(set, from); });
}

std::string_view TextStream::view(std::size_t a, std::size_t b) {
    b = std::min({b, end_, a + buf_.size()});
    if (a >= b) return {};
    if (!holds(a) || b > start_ + len_) load(a);
    if (!holds(a)) return {};
    b = std::min(b, start_ + len_);
    return {buf_.data() + (a - start_), b - a};
}

bool LineReader::next(std::string_view& line) {
    if (done_) return false;
    const std::size_t e = text_.findAny(seps_, pos_);
    line = text_.view(pos_, e);
    if (e >= text_.end()) {
        done_ = true;
        pos_ = text_.end();
    } else {
        pos_ = e + 1;
    }
    return true;
}

}  // namespace tarvik::text
