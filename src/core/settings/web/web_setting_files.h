#pragma once
// The files a camera's settings page works on, all under the card's settings
// folder, and the rules for touching them: what is read when the page
// connects, what Save may write, and the calibration file the page may delete.
// Reads are bounded; writes are atomic and refused when the page's answer
// could not be a settings record, so a broken page never blanks the camera.

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace tarvik {

// The camera's clock correction as the page shows it: "YYYY,MM,DD", "hh", "mm".
struct WebTimeCorrection {
    std::string date, hour, minute;
    bool operator==(const WebTimeCorrection&) const = default;
};

enum class WebSaveResult {
    Saved,
    Refused,      // the page's answer is not usable settings; nothing written
    WriteFailed,  // the card refused the write; the old files are whole
};

class WebSettingFiles {
public:
    // Larger settings files are not settings records; they are treated as unreadable.
    static constexpr std::size_t kMaxCfgBytes = 64 * 1024;

    explicit WebSettingFiles(std::string folder) : folder_(std::move(folder)) {}
    const std::string& folder() const { return folder_; }

    std::string indexHtmlFilename() const { return folder_ + "/SETTING/html/index.html"; }
    std::string htmlFolder() const { return folder_ + "/SETTING/html"; }
    std::string cfgFilename() const { return folder_ + "/SETTING/setup.cfg"; }
    std::string defaultCfgFilename() const { return folder_ + "/SETTING/default.cfg"; }
    std::string adasFilename() const { return folder_ + "/SETTING/ADAS_CAL.dat"; }
    std::string timedateFilename() const { return folder_ + "/SETTING/time.dat"; }

    // Upper-case hexadecimal text of setup.cfg / default.cfg; empty when the
    // file is missing, unreadable or too large.
    std::string cfgString() const { return hexOfFile(cfgFilename()); }
    std::string defaultCfgString() const { return hexOfFile(defaultCfgFilename()); }

    // time.dat: date from characters 0-9, hour 11-12, minute 14-15. Nothing
    // when the file is missing or too short to hold them.
    std::optional<WebTimeCorrection> readTimeCorrection() const;

    // Save: writes time.dat (when a correction is given and well formed) and
    // then setup.cfg from the page's hexadecimal text. Unless the text is
    // usable settings, nothing at all is written.
    WebSaveResult save(std::string_view cfgHexFromPage, const std::optional<WebTimeCorrection>& time) const;

    // Deletes ADAS_CAL.dat; false when it could not be removed (a missing file is not an error).
    bool removeAdasFile() const;

    // Non-empty, an even number of hexadecimal digits (either case), nothing else.
    static bool isUsableCfgHex(std::string_view text);
    // "YYYY,MM,DD,hh,mm,00,+0900", or nothing when a part is not of that shape.
    static std::optional<std::string> timeLine(const WebTimeCorrection& time);

private:
    static std::string hexOfFile(const std::string& path);
    std::string folder_;
};

}  // namespace tarvik
