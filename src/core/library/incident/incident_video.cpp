#include "core/library/incident/incident_video.h"

#include <cstdio>
#include <cstdlib>

namespace tarvik {

namespace {

std::string seconds(double s) {
    char buf[32];
    std::snprintf(buf, sizeof buf, "%.6f", s);
    return buf;
}

// The parts of one camera joined into the stream `label` (and their sound
// into `[a]` when asked); `first` is the index of its first input.
std::string joined(std::size_t first, std::size_t count, const std::string& label, bool audio = false) {
    std::string graph;
    for (std::size_t i = 0; i < count; ++i) {
        graph += "[" + std::to_string(first + i) + ":v:0]";
        if (audio) graph += "[" + std::to_string(first + i) + ":a:0]";
    }
    if (!audio) return graph + "concat=n=" + std::to_string(count) + ":v=1:a=0,setsar=1[" + label + "]";
    return graph + "concat=n=" + std::to_string(count) + ":v=1:a=1[" + label + "0][a];[" + label + "0]setsar=1[" +
           label + "]";
}

}  // namespace

std::string incidentFfmpeg() {
    const char* env = std::getenv("TARVIK_FFMPEG");
    return env && *env ? env : "ffmpeg";
}

const char* layoutName(IncidentLayout layout) {
    switch (layout) {
    case IncidentLayout::Front: return "front";
    case IncidentLayout::Rear: return "rear";
    case IncidentLayout::Side: return "side";
    case IncidentLayout::PictureInPicture: return "pip";
    }
    return "side";
}

bool layoutFromName(const std::string& name, IncidentLayout* layout) {
    for (IncidentLayout l : {IncidentLayout::Front, IncidentLayout::Rear, IncidentLayout::Side,
                             IncidentLayout::PictureInPicture})
        if (name == layoutName(l)) return *layout = l, true;
    return false;
}

bool layoutNeedsRear(IncidentLayout layout) { return layout != IncidentLayout::Front; }

namespace {

// The inputs and the filter graph of the picture (and of the sound, as [a],
// when `audio`), up to the picture's -map.
std::vector<std::string> pictureArguments(const IncidentSpan& span, const IncidentVideoOptions& o, bool audio) {
    std::vector<std::string> args = {"-nostdin", "-hide_banner", "-loglevel", "error", "-y"};
    const bool front = o.layout != IncidentLayout::Rear;
    const bool rear = layoutNeedsRear(o.layout);
    // An input's -ss and -t, given before it, decode from the key frame
    // before the in point and drop what lies outside: exact to the frame.
    auto inputs = [&](bool ofRear) {
        for (const IncidentPart& p : span.parts) {
            args.insert(args.end(), {"-ss", seconds(p.from), "-t", seconds(p.to - p.from), "-i",
                                     ofRear ? p.clip.partner : p.clip.path});
        }
    };
    const std::size_t n = span.parts.size();
    if (front) inputs(false);
    if (rear) inputs(true);
    std::string graph;
    switch (o.layout) {
    case IncidentLayout::Front: graph = joined(0, n, "v", audio); break;
    case IncidentLayout::Rear:
        graph = joined(0, n, "v");
        // The rear camera seldom has a microphone: the front's sound, cut the same way.
        if (audio) {
            inputs(false);
            for (std::size_t i = 0; i < n; ++i) graph += (i ? "" : ";") + ("[" + std::to_string(n + i) + ":a:0]");
            graph += "concat=n=" + std::to_string(n) + ":v=0:a=1[a]";
        }
        break;
    case IncidentLayout::Side:
        // The rear at the front's height, beside it.
        graph = joined(0, n, "f", audio) + ";" + joined(n, n, "r") + ";[r][f]scale2ref=w=-2:h=main_h[rs][fs];[fs][rs]hstack=inputs=2[v]";
        break;
    case IncidentLayout::PictureInPicture:
        // The rear at a third of the front's width, in its top right corner.
        graph = joined(0, n, "f", audio) + ";" + joined(n, n, "r") +
                ";[r][f]scale2ref=w=trunc(main_w/6)*2:h=-2[rs][fs];[fs][rs]overlay=x=W-w-16:y=16:eof_action=pass[v]";
        break;
    }
    std::string last = "[v]";
    if (!o.overlayFile.empty()) {
        graph += ";[v]ass=filename=" + o.overlayFile + "[o]";
        last = "[o]";
    }
    args.insert(args.end(), {"-filter_complex", graph, "-map", last});
    return args;
}

}  // namespace

bool canCopyPicture(const IncidentSpan& span, const IncidentVideoOptions& o, const std::string& codec) {
    if (o.layout == IncidentLayout::Side || o.layout == IncidentLayout::PictureInPicture) return false;
    if (!o.overlayFile.empty() || span.parts.size() != 1) return false;
    const IncidentPart& p = span.parts.front();
    constexpr double kFrame = 0.001;
    if (p.clip.seconds <= 0 || p.from > kFrame || p.to < p.clip.seconds - kFrame) return false;
    return codec == "h264" || codec == "hevc";
}

std::vector<std::string> incidentVideoArguments(const IncidentSpan& span, const IncidentVideoOptions& o,
                                                const std::string& output) {
    const bool audio = o.frontAudio;
    if (o.copyPicture && span.parts.size() == 1) {
        const IncidentPart& p = span.parts.front();
        const bool rear = o.layout == IncidentLayout::Rear;
        std::vector<std::string> args = {"-nostdin", "-hide_banner", "-loglevel", "error", "-y", "-i",
                                         rear ? p.clip.partner : p.clip.path};
        if (audio && rear) args.insert(args.end(), {"-i", p.clip.path});
        args.insert(args.end(), {"-map", "0:v:0", "-c:v", "copy"});
        // The camera's sound may be PCM, which MP4 does not hold: it alone is encoded.
        if (audio) args.insert(args.end(), {"-map", rear ? "1:a:0" : "0:a:0", "-c:a", "aac", "-b:a", "128k"});
        else args.push_back("-an");
        args.insert(args.end(), {"-movflags", "+faststart", "-f", "mp4", output});
        return args;
    }
    std::vector<std::string> args = pictureArguments(span, o, audio);
    if (audio) args.insert(args.end(), {"-map", "[a]", "-c:a", "aac", "-b:a", "128k"});
    else args.push_back("-an");
    args.insert(args.end(), {"-c:v", "libx264", "-preset", "veryfast",
                             "-crf", std::to_string(o.crf), "-pix_fmt", "yuv420p", "-movflags", "+faststart", "-f",
                             "mp4", output});
    return args;
}

std::vector<std::string> incidentStillArguments(const IncidentSpan& span, const IncidentVideoOptions& o,
                                                const std::string& output) {
    std::vector<std::string> args = pictureArguments(span, o, false);
    args.insert(args.end(), {"-frames:v", "1", "-update", "1", "-c:v", "png", "-f", "image2", output});
    return args;
}

}  // namespace tarvik
