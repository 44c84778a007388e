#pragma once
// The ffmpeg child process and the per-user working folder of converted clips.
// Class operations only, so callers read like the rest of the application:
// Utils::GetFFMPEGPath(), Utils::GetAviType(path), ...

#include <chrono>
#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

namespace tarvik {

// How the picture's codec tag has to be written when a clip is remuxed.
enum class CodecTagType : int {
    H264 = 0,      // stream handler "H264": no tag
    Avc1 = 1,      // stream handler "AVC1": "-vtag" "avc1"
    Hevc = 2,      // brand "iso4hvc1": "-vtag" "hvc1"
    Unknown = 3,   // none of these: "-vtag" "avc1"
};

class Utils {
public:
    // Name of the working folder inside Documents: the display name without spaces.
    static constexpr const char* kApplicationFolderName = "TarvikViewer";
    // A hostile clip must never freeze the viewer; a real remux of a long
    // clip takes seconds, so this only stops a stuck ffmpeg.
    static constexpr std::chrono::seconds kTaskTimeout{120};

    // ffmpeg to run: $TARVIK_FFMPEG, else one beside the program, else the
    // first on PATH, else the bare name (which then fails to start).
    static std::string GetFFMPEGPath();

    // Runs the program to its end (or the timeout) and returns what it wrote
    // on standard output and standard error together, as text.
    static std::string DoTaskWithLaunchPath(const std::string& launchPath,
                                            const std::vector<std::string>& arguments,
                                            std::chrono::milliseconds timeout = kTaskTimeout);

    static std::string GetFFMPEGVideoInfo(const std::string& path);
    static int GetVideoStreamCountFromVideoInfo(const std::string& info);
    static int GetAudioStreamCountFromVideoInfo(const std::string& info);
    static int GetVideoStreamCountFromVideoPath(const std::string& path);
    static int GetAudioStreamCountFromVideoPath(const std::string& path);

    static CodecTagType GetAviType(const std::string& path);

    // ffmpeg's exit status says little about the output, so both always
    // report true; the caller looks for the output file instead.
    static bool ConvertAviToMovWithArguments(const std::vector<std::string>& arguments);
    static bool ExtractMP4ToSrtWithArguments(const std::vector<std::string>& arguments);

    // <documents>/TarvikViewer, created with its parents when missing.
    static std::string GetWorkingDirectoryPath(const std::filesystem::path& documentsDirectory);
    static bool RemoveDirectory(const std::string& path);
    static bool EnableFileExcutableMode(const std::string& path);
    static std::string removeFileExtensionFromFilePath(const std::string& path);
    static bool CheckError(const std::error_code& error) { return !error; }
};

}  // namespace tarvik
