#include "core/settings/profile/json_value.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <set>
#include <string_view>

#include <nlohmann/json.hpp>

namespace tarvik {

// Parsing goes through nlohmann-json's SAX interface, which builds no tree of
// its own: the limits are checked event by event, so a hostile profile is
// refused before it costs depth or memory.
namespace {

using Json = nlohmann::json;

class Builder final : public nlohmann::json_sax<Json> {
public:
    Builder(const std::string& text, std::string* error) : text_(text), error_(error) {}
    JsonValue take() { return std::move(root_); }

    bool null() override { return place() != nullptr; }
    bool boolean(bool b) override {
        JsonValue* v = place();
        if (!v) return false;
        v->kind = JsonValue::Kind::Bool;
        v->boolean = b;
        return true;
    }
    bool number_integer(number_integer_t n) override { return number(n); }
    bool number_unsigned(number_unsigned_t n) override {
        if (n > static_cast<number_unsigned_t>(std::numeric_limits<std::int64_t>::max()))
            return fail("number too large");
        return number(static_cast<std::int64_t>(n));
    }
    bool number_float(number_float_t, const string_t& token) override { return fail(numberProblem(token)); }
    bool string(string_t& s) override {
        JsonValue* v = place();
        if (!v) return false;
        v->kind = JsonValue::Kind::String;
        v->text = std::move(s);
        return true;
    }
    bool binary(binary_t&) override { return fail("not a JSON value"); }
    bool start_object(std::size_t) override { return open(JsonValue::Kind::Object); }
    bool start_array(std::size_t) override { return open(JsonValue::Kind::Array); }
    bool end_object() override { return close(); }
    bool end_array() override { return close(); }
    bool key(string_t& k) override {
        // The last of two equal names would silently win, even the model's.
        if (!keys_.back().insert(k).second) return fail("duplicate member " + jsonQuote(k));
        key_ = std::move(k);
        return true;
    }
    bool parse_error(std::size_t position, const std::string& token, const nlohmann::detail::exception& e) override {
        const std::size_t at = position > 0 ? position - 1 : 0;
        return fail(lexicalProblem(position, token, e) + " (at byte " + std::to_string(at) + ")");
    }

private:
    bool fail(const std::string& why) {
        if (error_ && error_->empty()) *error_ = why;
        return false;
    }

    // Where the next value goes; nothing when it would lie too deep.
    JsonValue* place() {
        if (stack_.size() > static_cast<std::size_t>(kMaxJsonDepth)) {
            fail("nested too deeply");
            return nullptr;
        }
        if (stack_.empty()) return &root_;
        JsonValue* top = stack_.back();
        if (top->kind == JsonValue::Kind::Array) return &top->items.emplace_back();
        top->members.push_back({std::move(key_), {}});
        return &top->members.back().value;
    }
    bool number(std::int64_t n) {
        JsonValue* v = place();
        if (!v) return false;
        v->kind = JsonValue::Kind::Number;
        v->number = n;
        return true;
    }
    bool open(JsonValue::Kind kind) {
        JsonValue* v = place();
        if (!v) return false;
        v->kind = kind;
        stack_.push_back(v);
        keys_.emplace_back();
        return true;
    }
    bool close() {
        stack_.pop_back();
        keys_.pop_back();
        return true;
    }

    static std::string numberProblem(const std::string& token) {
        return token.find_first_of(".eE") != std::string::npos ? "only whole numbers are allowed" : "number too large";
    }

    std::string lexicalProblem(std::size_t position, const std::string& token, const nlohmann::detail::exception& e) const {
        const std::string_view what = e.what();
        auto says = [&](std::string_view s) { return what.find(s) != std::string_view::npos; };
        if (e.id == 406) return numberProblem(token);
        if (says("UTF-8")) return "invalid UTF-8";
        if (says("control character")) return "control character in a string";
        if (says("surrogate")) return "lone surrogate";
        if (says("backslash") || says("\\u must be followed")) return "bad escape";
        if (says("missing closing quote")) return "unterminated string";
        if (says("expected end of input")) return "text after the end of the document";
        if (says("unexpected end of input")) return "unexpected end";
        // "01": the grammar ends the number after its zero and meets another.
        const std::size_t start = position >= token.size() ? position - token.size() : 0;
        if (!token.empty() && token[0] >= '0' && token[0] <= '9' && start >= 1 && text_[start - 1] == '0' &&
            (start < 2 || text_[start - 2] < '0' || text_[start - 2] > '9'))
            return "a number with a leading zero";
        return "not JSON";
    }

    const std::string& text_;
    std::string* error_;
    JsonValue root_;
    std::vector<JsonValue*> stack_;
    std::vector<std::set<std::string>> keys_;
    std::string key_;
};

}  // namespace

const JsonValue* JsonValue::member(const std::string& key) const {
    for (const auto& [k, v] : members)
        if (k == key) return &v;
    return nullptr;
}

std::optional<JsonValue> parseJson(const std::string& text, std::string* error) {
    if (error) error->clear();
    Builder builder(text, error);
    if (!Json::sax_parse(text, &builder, Json::input_format_t::json, true, false)) return std::nullopt;
    return builder.take();
}

std::string jsonQuote(const std::string& s) {
    return Json(s).dump(-1, ' ', false, Json::error_handler_t::replace);
}

std::string jsonDocument(const nlohmann::ordered_json& doc) {
    return doc.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace) + "\n";
}

nlohmann::ordered_json jsonSettingValue(const std::string& text, bool numeric) {
    if (numeric && !text.empty()) {
        char* end = nullptr;
        errno = 0;
        const long long n = std::strtoll(text.c_str(), &end, 10);
        if (errno == 0 && end && *end == '\0') return n;
    }
    return text;
}

}  // namespace tarvik
