#include "core/library/conversion/clip_converter.h"

#include <algorithm>
#include <cctype>

namespace tarvik {

namespace fs = std::filesystem;

namespace {

std::string lowerExtension(const std::string& path) {
    std::string ext = fs::path(path).extension().string();
    if (!ext.empty()) ext.erase(0, 1);
    std::transform(ext.begin(), ext.end(), ext.begin(), [](unsigned char c) { return std::tolower(c); });
    return ext;
}

bool exists(const std::string& path) {
    std::error_code ec;
    return !path.empty() && fs::exists(path, ec);
}

bool ensureDirectory(const fs::path& dir) {
    std::error_code ec;
    if (fs::is_directory(dir, ec)) return true;
    fs::create_directories(dir, ec);
    return fs::is_directory(dir, ec);
}

std::string replaceAll(std::string text, const std::string& from, const std::string& to) {
    for (std::size_t pos = text.find(from); pos != std::string::npos; pos = text.find(from, pos + to.size()))
        text.replace(pos, from.size(), to);
    return text;
}

std::string withSrtExtension(const std::string& path) {
    return fs::path(path).replace_extension(".srt").string();
}

}  // namespace

ClipConverter::ClipConverter(fs::path documentsDirectory, FfmpegTask task)
    : documentsDirectory_(std::move(documentsDirectory)), task_(std::move(task)) {}

ProcessResult ClipConverter::run(const ArgumentList& args) const {
    if (task_) return task_(args);
    return ProcessRunner::run(Utils::GetFFMPEGPath(), args);
}

std::string ClipConverter::partialPathOf(const std::string& output) {
    fs::path p(output);
    const std::string ext = p.extension().string();
    return p.replace_extension(".partial" + ext).string();
}

bool ClipConverter::produce(ArgumentList args) const {
    if (args.empty()) return false;
    const std::string output = args.back();
    const std::string partial = partialPathOf(output);
    args.back() = partial;
    const ProcessResult r = run(args);
    std::error_code ec;
    if (r.exitCode == 0 && fs::exists(partial, ec)) {
        fs::rename(partial, output, ec);
        if (!ec) return true;
    }
    fs::remove(partial, ec);
    return false;
}

std::string ClipConverter::partnerPathOf(const std::string& clipPath) {
    static const std::pair<const char*, const char*> rules[] = {
        {"F.", "R."}, {"R.", "F."}, {"F_BC.", "R_BC."}, {"R_BC.", "F_BC."}};
    for (const auto& [from, to] : rules)
        if (clipPath.find(from) != std::string::npos) return replaceAll(clipPath, from, to);
    return {};
}

fs::path ClipConverter::clipFolderFor(const std::string& clipPath) const {
    std::error_code ec;
    auto size = fs::file_size(clipPath, ec);
    const std::string base = fs::path(clipPath).stem().string();
    return fs::path(Utils::GetWorkingDirectoryPath(documentsDirectory_)) / kCacheFolderName /
           (base + "_" + std::to_string(ec ? 0 : size));
}

void ClipConverter::convertTwoStreamAvi(const std::string& src, const std::string& info, const std::string& f,
                                        const std::string& r) const {
    const CodecTagType tag = Utils::GetAviType(src);
    const bool audio = Utils::GetAudioStreamCountFromVideoInfo(info) > 0;
    produce(FfmpegCommandLines::twoStreamPicture(src, 0, audio, tag, f));
    produce(FfmpegCommandLines::twoStreamPicture(src, 1, audio, tag, r));
}

std::optional<std::vector<std::string>> ClipConverter::checkAndConvertVideo(const std::string& clipPath) const {
    const std::string ext = lowerExtension(clipPath);
    if (ext != "avi" && ext != "mp4") return std::vector<std::string>{clipPath};

    const fs::path cacheRoot = fs::path(Utils::GetWorkingDirectoryPath(documentsDirectory_)) / kCacheFolderName;
    if (!ensureDirectory(cacheRoot)) return std::nullopt;
    const fs::path folder = clipFolderFor(clipPath);
    if (!ensureDirectory(folder)) return std::nullopt;

    const std::string base = fs::path(clipPath).stem().string();
    const std::string front = (folder / (base + "_f.mov")).string();
    std::string rear = (folder / (base + "_r.mov")).string();

    bool singleStream = true;
    if (ext == "avi") {
        const std::string info = run({"-i", clipPath}).output;
        const int videoStreams = Utils::GetVideoStreamCountFromVideoInfo(info);
        if (videoStreams == 0) return std::vector<std::string>{};
        if (videoStreams >= 2) {
            singleStream = false;
            if (!(exists(front) && exists(rear))) convertTwoStreamAvi(clipPath, info, front, rear);
        }
    }

    if (singleStream) {
        const CodecTagType tag = Utils::GetAviType(clipPath);
        if (!exists(front)) {
            // The side file first: a finished picture file stands for a finished conversion.
            if (ext == "mp4") produce(FfmpegCommandLines::subtitle(clipPath, withSrtExtension(front)));
            produce(FfmpegCommandLines::remux(clipPath, tag, front));
        }
        if (ext == "avi") {
            rear.clear();
        } else if (!exists(rear)) {
            // The tag of the opened clip is used for its partner too: both
            // come from the same camera.
            const std::string partner = partnerPathOf(clipPath);
            if (exists(partner)) {
                produce(FfmpegCommandLines::subtitle(partner, withSrtExtension(rear)));
                produce(FfmpegCommandLines::remux(partner, tag, rear));
            } else {
                rear.clear();
            }
        }
    }

    std::vector<std::string> files;
    if (exists(front)) files.push_back(front);
    if (exists(rear)) files.push_back(rear);
    return files;
}

}  // namespace tarvik
