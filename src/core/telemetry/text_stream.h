#pragma once
// A stretch of a file read as text through one bounded buffer, for readers
// that walk forward through text of any length: positions are offsets in the
// file, and only a window of `capacity` bytes is ever held.

#include <cstddef>
#include <string_view>
#include <vector>

namespace tarvik {
class BoundedFile;
}

namespace tarvik::text {

class TextStream {
public:
    static constexpr std::size_t kDefaultCapacity = 1u << 20;

    TextStream(const BoundedFile& file, std::size_t begin, std::size_t end,
               std::size_t capacity = kDefaultCapacity);

    // Ends the text at `end` (or where the file ends) and starts over at `begin`.
    void reset(std::size_t begin, std::size_t end);
    std::size_t begin() const { return begin_; }
    std::size_t end() const { return end_; }

    // The byte at pos, or -1 at the end.
    int at(std::size_t pos);
    // Where `stop` next starts at or after pos; end() when it does not.
    std::size_t find(std::string_view stop, std::size_t pos);
    // Where any byte of `set` next is at or after pos; end() when none is.
    std::size_t findAny(std::string_view set, std::size_t pos);
    // The text [a, b), cut to the capacity; valid until the next call.
    std::string_view view(std::size_t a, std::size_t b);

private:
    void load(std::size_t pos);
    bool holds(std::size_t pos) const { return pos >= start_ && pos < start_ + len_; }
    template <typename Search>
    std::size_t search(std::size_t pos, std::size_t overlap, Search s);

    const BoundedFile& file_;
    std::vector<char> buf_;
    std::size_t begin_, end_;
    std::size_t start_ = 0, len_ = 0;
};

// Splits a stretch of a file at any of `separators`, the way a loop over
// find_first_of would: the text after the last separator is a line too.
class LineReader {
public:
    LineReader(const BoundedFile& file, std::size_t begin, std::size_t end, std::string_view separators)
        : text_(file, begin, end), seps_(separators), pos_(begin) {}
    // The next line, cut to a megabyte; false after the last one.
    bool next(std::string_view& line);
    // Where the line after the one just returned begins.
    std::size_t pos() const { return pos_; }

private:
    TextStream text_;
    std::string_view seps_;
    std::size_t pos_;
    bool done_ = false;
};

}  // namespace tarvik::text
