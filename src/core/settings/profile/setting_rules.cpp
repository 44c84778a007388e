#include "core/settings/profile/setting_rules.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <limits>
#include <string_view>

#include "core/settings/m420/record_text.h"
#include "core/settings/m420/setting_record_layout.h"

namespace tarvik {

namespace {

constexpr std::array<std::string_view, 10> kM420Identity = {
    "checksum",     "cfg_struct_version", "product_name", "serial_number",         "version",
    "reserved",     "setting_path",       "micom_version", "driving_guide_version", "local_id"};

constexpr std::array<std::string_view, 9> kKrtIdentity = {"model", "version", "set",  "year", "month",
                                                          "day",   "hour",    "min", "sec"};

std::optional<std::int64_t> wholeNumber(std::string_view s) {
    std::int64_t v = 0;
    if (!s.empty() && s.front() == '+') s.remove_prefix(1);
    const auto [end, ec] = std::from_chars(s.data(), s.data() + s.size(), v);
    if (s.empty() || ec != std::errc() || end != s.data() + s.size()) return std::nullopt;
    return v;
}

std::optional<std::string> refuse(std::string* error, std::string why) {
    if (error) *error = std::move(why);
    return std::nullopt;
}

std::optional<std::string> inRange(const std::string& name, const std::string& value, std::int64_t lo,
                                   std::int64_t hi, std::string* error) {
    const auto v = wholeNumber(value);
    if (!v || *v < lo || *v > hi)
        return refuse(error, name + "=" + value + ": a whole number from " + std::to_string(lo) + " to " +
                                 std::to_string(hi) + " is expected");
    return std::to_string(*v);
}

std::optional<std::string> oneOf(const std::string& name, const std::string& value,
                                 std::initializer_list<std::string_view> allowed, std::string* error) {
    for (auto a : allowed)
        if (value == a) return value;
    std::string list;
    for (auto a : allowed) list += (list.empty() ? "" : ", ") + std::string(a);
    return refuse(error, name + "=" + value + ": one of " + list + " is expected");
}

std::optional<std::string> checkM420(const CardSettings& card, const std::string& name, const std::string& value,
                                     std::string* error) {
    M420Field f{};
    if (!m420FieldFromName(name, &f) || fieldIndex(f) >= card.recordFieldCount)
        return refuse(error, name + ": the " + card.modelName + " has no such setting");
    const int width = fieldWidth(f);
    if (!isIntegerField(f)) {
        if (value.size() > static_cast<std::size_t>(width) || value.find('\0') != std::string::npos ||
            !recordtext::isValidUtf8(value))
            return refuse(error, name + ": a text of at most " + std::to_string(width) + " bytes is expected");
        return value;
    }
    if (width == 4)
        return inRange(name, value, std::numeric_limits<std::int32_t>::min(),
                       std::numeric_limits<std::int32_t>::max(), error);
    return inRange(name, value, 0, (std::int64_t{1} << (8 * width)) - 1, error);
}

std::optional<std::string> checkKrt(const std::string& name, const std::string& value, std::string* error) {
    if (name == "const" || name == "event" || name == "manual" || name == "park")
        return inRange(name, value, 0, 100, error);
    if (name == "front_led" || name == "park_mode" || name == "summer_time" || name == "mic_in" ||
        name == "voice_out")
        return oneOf(name, value, {"0", "1"}, error);
    if (name == "power_off_vlt") return oneOf(name, value, {"0", "11800", "12000", "12200"}, error);
    if (name == "language") return oneOf(name, value, {"us", "fr"}, error);
    if (name == "osd_speed") return oneOf(name, value, {"1", "2"}, error);
    if (name == "voice_volume" || name == "acc_level" || name == "motion_level")
        return inRange(name, value, 1, 5, error);
    if (name == "local_time") {
        // Hours from UTC, written with six decimals as the camera does.
        double hours = 0;
        const auto [end, ec] = std::from_chars(value.data(), value.data() + value.size(), hours);
        if (value.empty() || ec != std::errc() || end != value.data() + value.size() || !std::isfinite(hours) ||
            hours < -12 || hours > 14)
            return refuse(error, name + "=" + value + ": hours from -12 to 14 are expected");
        char buf[32];
        std::snprintf(buf, sizeof buf, "%.6f", hours);
        return std::string(buf);
    }
    return refuse(error, name + ": the Q260 has no such setting");
}

}  // namespace

bool isIdentitySetting(SettingsFamily family, const std::string& name) {
    if (family == SettingsFamily::Krt)
        return std::find(kKrtIdentity.begin(), kKrtIdentity.end(), name) != kKrtIdentity.end();
    return std::find(kM420Identity.begin(), kM420Identity.end(), name) != kM420Identity.end();
}

std::optional<std::string> checkSettingValue(const CardSettings& card, const std::string& name,
                                             const std::string& value, std::string* error) {
    if (isIdentitySetting(card.family, name))
        return refuse(error, name + ": says which camera this is and is never changed");
    if (card.family == SettingsFamily::Krt) {
        if (!card.find(name)) return refuse(error, name + ": no such line in this card's blackbox.cfg");
        return checkKrt(name, value, error);
    }
    return checkM420(card, name, value, error);
}

}  // namespace tarvik
