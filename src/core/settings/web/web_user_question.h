#pragma once
// A question the settings page asks the user: one text of tab-separated parts
// "title\tmessage\tindex\tvalue\tbuttons". The answer goes back to the page
// as update_ok(index, "value") or update_cancel(index).

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tarvik {

struct WebUserQuestion {
    std::string title, message;
    std::int32_t index = 0;
    std::string value;
    std::int32_t buttonCount = 1;  // 2 asks No/Yes; anything else shows one OK button

    // Nothing for fewer than five parts. Numbers are read the lenient way the
    // page has always relied on: leading blanks and a sign, then digits up to
    // the first other character; no digits gives 0.
    static std::optional<WebUserQuestion> parse(std::string_view text);
    bool asksYesNo() const { return buttonCount == 2; }
};

// The lenient integer reading described above, clamped to 32 bits.
std::int32_t leadingInteger(std::string_view text);

}  // namespace tarvik
