#pragma once
// The little JSON a settings profile needs: objects, arrays, strings, whole
// numbers, true, false and null, read by nlohmann-json to JSON's own grammar.
// Bounded on purpose, since a profile comes from anyone: nesting, length and
// numbers have limits, a name appears once in an object, and a breach is an
// error naming its reason, never a crash or a huge allocation.

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <nlohmann/json_fwd.hpp>

namespace tarvik {

struct JsonMember;

struct JsonValue {
    enum class Kind { Null, Bool, Number, String, Array, Object } kind = Kind::Null;
    bool boolean = false;
    std::int64_t number = 0;
    std::string text;
    std::vector<JsonValue> items;
    std::vector<JsonMember> members;  // in document order

    const JsonValue* member(const std::string& key) const;
};

struct JsonMember {
    std::string key;
    JsonValue value;
};

inline constexpr int kMaxJsonDepth = 8;

std::optional<JsonValue> parseJson(const std::string& text, std::string* error);

// A JSON string literal for s.
std::string jsonQuote(const std::string& s);

// A document as the profile and the command write it: indented by two, one
// line at the end. Names and paths come from the card, and bytes that are not
// UTF-8 become U+FFFD instead of making the document invalid.
std::string jsonDocument(const nlohmann::ordered_json& doc);

// A setting's value text: a number where the field holds one, else a string.
nlohmann::ordered_json jsonSettingValue(const std::string& text, bool numeric);

}  // namespace tarvik
