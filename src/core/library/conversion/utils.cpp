#include "core/library/conversion/utils.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <regex>
#include <sstream>

#include "core/util/process_runner.h"
#include "core/util/regular_file.h"

namespace tarvik {

namespace fs = std::filesystem;

namespace {

bool isExecutableFile(const fs::path& p) {
    std::error_code ec;
    return fs::is_regular_file(p, ec) && ::access(p.c_str(), X_OK) == 0;
}

fs::path programDirectory() {
    std::error_code ec;
    fs::path self = fs::read_symlink("/proc/self/exe", ec);
    return ec ? fs::path{} : self.parent_path();
}

// Stream lines are short; a hostile container can make ffmpeg print very long
// metadata lines, and the backtracking matcher must not chew through those.
constexpr std::size_t kMaxLineExamined = 4096;

int countStreamLines(const std::string& info, const char* kind) {
    std::regex pattern;
    try {
        pattern = std::regex(std::string("(Stream #\\d{1}:\\d{1}(.*?): ") + kind + ")",
                             std::regex::ECMAScript | std::regex::icase);
    } catch (const std::regex_error&) {
        return 0;
    }
    int count = 0;
    std::istringstream lines(info);
    std::string line;
    while (std::getline(lines, line)) {
        if (line.size() > kMaxLineExamined) line.resize(kMaxLineExamined);
        count += static_cast<int>(std::distance(
            std::sregex_iterator(line.begin(), line.end(), pattern), std::sregex_iterator()));
    }
    return count;
}

std::string readAsciiAt(const std::string& path, std::streamoff offset) {
    const int fd = openRegularFile(path);
    if (fd < 0) return {};
    char buf[16] = {};
    const ssize_t got = ::pread(fd, buf, sizeof buf, static_cast<off_t>(offset));
    ::close(fd);
    return got > 0 ? std::string(buf, static_cast<std::size_t>(got)) : std::string();
}

bool startsWithNoCase(const std::string& text, std::string_view prefix) {
    if (text.size() < prefix.size()) return false;
    for (std::size_t i = 0; i < prefix.size(); ++i) {
        if (std::tolower(static_cast<unsigned char>(text[i])) !=
            std::tolower(static_cast<unsigned char>(prefix[i])))
            return false;
    }
    return true;
}

int matchTag(const std::string& text) {
    static constexpr std::string_view candidates[] = {"H264", "AVC1", "iso4hvc1"};
    for (int i = 0; i < 3; ++i)
        if (startsWithNoCase(text, candidates[i])) return i;
    return -1;
}

}  // namespace

std::string Utils::GetFFMPEGPath() {
    if (const char* env = std::getenv("TARVIK_FFMPEG"); env && *env) return env;
    if (fs::path dir = programDirectory(); !dir.empty() && isExecutableFile(dir / "ffmpeg"))
        return (dir / "ffmpeg").string();
    if (const char* pathVar = std::getenv("PATH")) {
        std::istringstream dirs(pathVar);
        std::string d;
        while (std::getline(dirs, d, ':')) {
            if (!d.empty() && isExecutableFile(fs::path(d) / "ffmpeg")) return (fs::path(d) / "ffmpeg").string();
        }
    }
    return "ffmpeg";
}

std::string Utils::DoTaskWithLaunchPath(const std::string& launchPath, const std::vector<std::string>& arguments,
                                        std::chrono::milliseconds timeout) {
    return ProcessRunner::run(launchPath, arguments, timeout).output;
}

std::string Utils::GetFFMPEGVideoInfo(const std::string& path) {
    return DoTaskWithLaunchPath(GetFFMPEGPath(), {"-i", path});
}

int Utils::GetVideoStreamCountFromVideoInfo(const std::string& info) { return countStreamLines(info, "Video"); }
int Utils::GetAudioStreamCountFromVideoInfo(const std::string& info) { return countStreamLines(info, "Audio"); }

int Utils::GetVideoStreamCountFromVideoPath(const std::string& path) {
    return GetVideoStreamCountFromVideoInfo(GetFFMPEGVideoInfo(path));
}
int Utils::GetAudioStreamCountFromVideoPath(const std::string& path) {
    return GetAudioStreamCountFromVideoInfo(GetFFMPEGVideoInfo(path));
}

CodecTagType Utils::GetAviType(const std::string& path) {
    // 112: an AVI's first stream header handler; 16: an MP4's compatible brands.
    for (std::streamoff offset : {112, 16}) {
        int t = matchTag(readAsciiAt(path, offset));
        if (t >= 0) return static_cast<CodecTagType>(t);
    }
    return CodecTagType::Unknown;
}

bool Utils::ConvertAviToMovWithArguments(const std::vector<std::string>& arguments) {
    DoTaskWithLaunchPath(GetFFMPEGPath(), arguments);
    return true;
}

bool Utils::ExtractMP4ToSrtWithArguments(const std::vector<std::string>& arguments) {
    return ConvertAviToMovWithArguments(arguments);
}

std::string Utils::GetWorkingDirectoryPath(const fs::path& documentsDirectory) {
    fs::path dir = documentsDirectory / kApplicationFolderName;
    std::error_code ec;
    if (!fs::is_directory(dir, ec)) fs::create_directories(dir, ec);
    return dir.string();
}

bool Utils::RemoveDirectory(const std::string& path) {
    std::error_code ec;
    if (path.empty() || !fs::exists(fs::symlink_status(path, ec))) return false;
    fs::remove_all(path, ec);
    return !ec;
}

bool Utils::EnableFileExcutableMode(const std::string& path) {
    return !path.empty() && ::chmod(path.c_str(), 0777) == 0;
}

std::string Utils::removeFileExtensionFromFilePath(const std::string& path) {
    if (path.empty()) return {};
    return fs::path(path).replace_extension().string();
}

}  // namespace tarvik
