#include "core/settings/web/web_user_question.h"

#include <algorithm>
#include <limits>
#include <vector>

namespace tarvik {

std::int32_t leadingInteger(std::string_view text) {
    std::size_t i = 0;
    while (i < text.size() && (text[i] == ' ' || text[i] == '\t' || text[i] == '\n' || text[i] == '\r')) ++i;
    bool negative = false;
    if (i < text.size() && (text[i] == '+' || text[i] == '-')) negative = text[i++] == '-';
    std::int64_t value = 0;
    constexpr std::int64_t kLimit = std::int64_t{std::numeric_limits<std::int32_t>::max()} + 1;
    for (; i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i) {
        value = value * 10 + (text[i] - '0');
        if (value > kLimit) value = kLimit;
    }
    if (negative) return static_cast<std::int32_t>(-value);
    return static_cast<std::int32_t>(std::min<std::int64_t>(value, std::numeric_limits<std::int32_t>::max()));
}

std::optional<WebUserQuestion> WebUserQuestion::parse(std::string_view text) {
    std::vector<std::string_view> parts;
    std::size_t start = 0;
    for (;;) {
        const std::size_t tab = text.find('\t', start);
        parts.push_back(text.substr(start, tab == std::string_view::npos ? std::string_view::npos : tab - start));
        if (tab == std::string_view::npos) break;
        start = tab + 1;
    }
    if (parts.size() < 5) return std::nullopt;
    return WebUserQuestion{std::string(parts[0]), std::string(parts[1]), leadingInteger(parts[2]),
                           std::string(parts[3]), leadingInteger(parts[4])};
}

}  // namespace tarvik
