#include "core/settings/profile/json_value.h"

#include <charconv>
#include <cstdio>

namespace tarvik {

namespace {

class Parser {
public:
    Parser(const std::string& s, std::string* error) : s_(s), error_(error) {}

    std::optional<JsonValue> document() {
        JsonValue v;
        if (!value(v, 0)) return std::nullopt;
        skipSpace();
        if (p_ != s_.size()) return fail("text after the end of the document");
        return v;
    }

private:
    std::nullopt_t fail(const std::string& why) {
        if (error_ && error_->empty()) *error_ = why + " (at byte " + std::to_string(p_) + ")";
        return std::nullopt;
    }
    bool failed(const std::string& why) {
        fail(why);
        return false;
    }

    void skipSpace() {
        while (p_ < s_.size() && (s_[p_] == ' ' || s_[p_] == '\t' || s_[p_] == '\n' || s_[p_] == '\r')) ++p_;
    }
    bool literal(const char* word) {
        const std::string_view w(word);
        if (s_.compare(p_, w.size(), w) != 0) return failed("unexpected text");
        p_ += w.size();
        return true;
    }

    bool value(JsonValue& out, int depth) {
        if (depth > kMaxJsonDepth) return failed("nested too deeply");
        skipSpace();
        if (p_ >= s_.size()) return failed("unexpected end");
        const char c = s_[p_];
        if (c == '{') return object(out, depth);
        if (c == '[') return array(out, depth);
        if (c == '"') {
            out.kind = JsonValue::Kind::String;
            return string(out.text);
        }
        if (c == 't' || c == 'f') {
            out.kind = JsonValue::Kind::Bool;
            out.boolean = c == 't';
            return literal(c == 't' ? "true" : "false");
        }
        if (c == 'n') return literal("null");
        return number(out);
    }

    bool number(JsonValue& out) {
        std::size_t e = p_;
        if (e < s_.size() && s_[e] == '-') ++e;
        while (e < s_.size() && s_[e] >= '0' && s_[e] <= '9') ++e;
        if (e < s_.size() && (s_[e] == '.' || s_[e] == 'e' || s_[e] == 'E'))
            return failed("only whole numbers are allowed");
        const auto [end, ec] = std::from_chars(s_.data() + p_, s_.data() + e, out.number);
        if (ec == std::errc::result_out_of_range) return failed("number too large");
        if (ec != std::errc() || end != s_.data() + e || e == p_) return failed("not a JSON value");
        out.kind = JsonValue::Kind::Number;
        p_ = e;
        return true;
    }

    static void appendUtf8(std::string& out, std::uint32_t cp) {
        if (cp < 0x80) {
            out += static_cast<char>(cp);
        } else if (cp < 0x800) {
            out += static_cast<char>(0xC0 | (cp >> 6));
            out += static_cast<char>(0x80 | (cp & 0x3F));
        } else if (cp < 0x10000) {
            out += static_cast<char>(0xE0 | (cp >> 12));
            out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
            out += static_cast<char>(0x80 | (cp & 0x3F));
        } else {
            out += static_cast<char>(0xF0 | (cp >> 18));
            out += static_cast<char>(0x80 | ((cp >> 12) & 0x3F));
            out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
            out += static_cast<char>(0x80 | (cp & 0x3F));
        }
    }

    bool hex4(std::uint32_t& v) {
        if (p_ + 4 > s_.size()) return failed("bad \\u escape");
        const auto [end, ec] = std::from_chars(s_.data() + p_, s_.data() + p_ + 4, v, 16);
        if (ec != std::errc() || end != s_.data() + p_ + 4) return failed("bad \\u escape");
        p_ += 4;
        return true;
    }

    bool string(std::string& out) {
        ++p_;  // opening quote
        while (p_ < s_.size()) {
            const char c = s_[p_++];
            if (c == '"') return true;
            if (static_cast<unsigned char>(c) < 0x20) return failed("control character in a string");
            if (c != '\\') {
                out += c;
                continue;
            }
            if (p_ >= s_.size()) break;
            const char e = s_[p_++];
            switch (e) {
            case '"': case '\\': case '/': out += e; break;
            case 'b': out += '\b'; break;
            case 'f': out += '\f'; break;
            case 'n': out += '\n'; break;
            case 'r': out += '\r'; break;
            case 't': out += '\t'; break;
            case 'u': {
                std::uint32_t cp = 0;
                if (!hex4(cp)) return false;
                if (cp >= 0xD800 && cp < 0xDC00) {
                    std::uint32_t lo = 0;
                    if (s_.compare(p_, 2, "\\u") != 0) return failed("lone surrogate");
                    p_ += 2;
                    if (!hex4(lo) || lo < 0xDC00 || lo > 0xDFFF) return failed("lone surrogate");
                    cp = 0x10000 + ((cp - 0xD800) << 10) + (lo - 0xDC00);
                } else if (cp >= 0xDC00 && cp < 0xE000) {
                    return failed("lone surrogate");
                }
                appendUtf8(out, cp);
                break;
            }
            default: return failed("bad escape");
            }
        }
        return failed("unterminated string");
    }

    bool array(JsonValue& out, int depth) {
        out.kind = JsonValue::Kind::Array;
        ++p_;
        skipSpace();
        if (p_ < s_.size() && s_[p_] == ']') return ++p_, true;
        for (;;) {
            out.items.emplace_back();
            if (!value(out.items.back(), depth + 1)) return false;
            skipSpace();
            if (p_ < s_.size() && s_[p_] == ',') { ++p_; continue; }
            if (p_ < s_.size() && s_[p_] == ']') return ++p_, true;
            return failed("expected , or ]");
        }
    }

    bool object(JsonValue& out, int depth) {
        out.kind = JsonValue::Kind::Object;
        ++p_;
        skipSpace();
        if (p_ < s_.size() && s_[p_] == '}') return ++p_, true;
        for (;;) {
            skipSpace();
            if (p_ >= s_.size() || s_[p_] != '"') return failed("expected a member name");
            std::string key;
            if (!string(key)) return false;
            skipSpace();
            if (p_ >= s_.size() || s_[p_] != ':') return failed("expected :");
            ++p_;
            JsonValue v;
            if (!value(v, depth + 1)) return false;
            out.members.push_back({std::move(key), std::move(v)});
            skipSpace();
            if (p_ < s_.size() && s_[p_] == ',') { ++p_; continue; }
            if (p_ < s_.size() && s_[p_] == '}') return ++p_, true;
            return failed("expected , or }");
        }
    }

    const std::string& s_;
    std::string* error_;
    std::size_t p_ = 0;
};

}  // namespace

const JsonValue* JsonValue::member(const std::string& key) const {
    for (const auto& [k, v] : members)
        if (k == key) return &v;
    return nullptr;
}

std::optional<JsonValue> parseJson(const std::string& text, std::string* error) {
    if (error) error->clear();
    return Parser(text, error).document();
}

std::string jsonQuote(const std::string& s) {
    std::string out = "\"";
    for (unsigned char c : s) {
        if (c == '"' || c == '\\') {
            out += '\\';
            out += static_cast<char>(c);
        } else if (c < 0x20) {
            char buf[8];
            std::snprintf(buf, sizeof buf, "\\u%04x", c);
            out += buf;
        } else {
            out += static_cast<char>(c);
        }
    }
    return out + "\"";
}

}  // namespace tarvik
