#include "core/library/incident/incident_exporter.h"

#include <stdlib.h>

#include <cstdio>
#include <cstdlib>
#include <algorithm>
#include <filesystem>
#include <map>

#include "core/library/incident/evidence_copy.h"
#include "core/library/incident/incident_probe.h"
#include "core/library/incident/incident_record.h"
#include "core/library/incident/incident_still.h"
#include "core/library/trips/clip_container.h"
#include "core/library/trips/trip_route.h"
#include "core/util/atomic_file.h"
#include "core/util/process_runner.h"

namespace tarvik {

namespace fs = std::filesystem;

namespace {

// The span's clips as one trip, for the route and samples of its stretch.
Trip tripOfSpan(const IncidentSpan& span) {
    Trip t;
    for (const IncidentPart& p : span.parts) t.clips.push_back(p.clip);
    t.start = t.clips.front().start;
    t.end = t.clips.back().start + std::int64_t(t.clips.back().seconds + 0.5);
    return t;
}

// CSV rows (with their header) whose time lies within [from, to] seconds of the trip.
std::string csvWithin(const std::string& rows, double from, double to) {
    std::string out = "t,gx,gy,gz,lat,lng,speed\n";
    std::size_t at = 0;
    while (at < rows.size()) {
        std::size_t end = rows.find('\n', at);
        if (end == std::string::npos) end = rows.size();
        const double t = std::atof(rows.c_str() + at);
        if (t >= from - 1e-6 && t <= to + 1e-6) out.append(rows, at, end - at).push_back('\n');
        at = end + 1;
    }
    return out;
}

// ffmpeg's complaint without its progress lines; a full disk in plain words.
std::string videoFailure(const std::string& output) {
    std::string said;
    std::size_t at = 0;
    while (at < output.size()) {
        std::size_t end = output.find('\n', at);
        if (end == std::string::npos) end = output.size();
        const std::string line = output.substr(at, end - at);
        if (!line.empty() && line.find('=') == std::string::npos) said += (said.empty() ? "" : "; ") + line;
        at = end + 1;
    }
    if (said.find("No space left") != std::string::npos) return "the destination is full";
    return "ffmpeg could not make the video" + (said.empty() ? std::string() : ": " + said);
}

bool sameOrBelow(const fs::path& inner, const fs::path& outer) {
    auto i = inner.begin();
    for (auto o = outer.begin(); o != outer.end(); ++o, ++i)
        if (i == inner.end() || *i != *o) return false;
    return true;
}

}  // namespace

std::string IncidentExporter::destinationRefusal(const std::string& root, const std::string& folder) {
    std::error_code ec;
    // The folder may not exist yet: judge the nearest part of it that does.
    fs::path existing = fs::absolute(folder, ec);
    while (!existing.empty() && !fs::exists(existing, ec)) existing = existing.parent_path();
    const fs::path card = fs::canonical(root, ec);
    const fs::path target = fs::canonical(existing, ec);
    if (card.empty() || target.empty()) return {};
    if (sameOrBelow(target, card)) return "the folder is on the card: evidence is never written to the card it comes from";
    return {};
}

bool IncidentExporter::write(const IncidentSpan& span, const IncidentExport& to, const Progress& progress,
                             std::string* why) {
    // What this export wrote, taken back when it does not finish.
    std::vector<fs::path> written;
    auto fail = [why, &written](std::string text) {
        if (why) *why = std::move(text);
        std::error_code ignored;
        for (auto it = written.rbegin(); it != written.rend(); ++it) fs::remove_all(*it, ignored);
        return false;
    };
    // Copying is about a tenth of the work, encoding the rest.
    auto step = [&](const std::string& what, double done) { return !progress || progress(what, done); };
    if (span.parts.empty()) return fail("the span holds no clip");
    if (const std::string refusal = destinationRefusal(span.root, to.folder); !refusal.empty()) return fail(refusal);
    if (layoutNeedsRear(to.video.layout))
        for (const IncidentPart& p : span.parts)
            if (p.clip.partner.empty()) return fail(p.clip.path + " has no rear clip; choose the front layout");
    // A clip cut short since the span was found would make a shorter video.
    for (const IncidentPart& p : span.parts)
        for (const std::string& clip : {p.clip.path, p.clip.partner}) {
            if (clip.empty()) continue;
            const ContainerState state = inspectClipContainer(clip).state;
            if (state != ContainerState::Playable)
                return fail(clip + " is " + containerStateText(state) + ": the span cannot be exported whole");
        }
    const fs::path dir = to.folder;
    std::error_code ec;
    if (fs::exists(dir / "incident.mp4", ec) || fs::exists(dir / "originals", ec))
        return fail(to.folder + " already holds an incident");
    if (!fs::exists(dir, ec)) written.push_back(dir);
    fs::create_directories(dir / "originals", ec);
    if (ec) return fail(to.folder + ": " + ec.message());
    written.push_back(dir / "originals");

    IncidentRecord record;
    record.span = &span;
    record.programVersion = to.programVersion;
    record.layout = layoutName(to.video.layout);
    std::map<std::string, std::string> hashes;  // relative path -> SHA-256

    // The originals first: they are the evidence, the rest is made from them.
    for (const IncidentPart& p : span.parts) {
        for (const std::string& clip : {p.clip.path, p.clip.partner}) {
            if (clip.empty()) continue;
            const fs::path relative = fs::path("originals") / fs::relative(clip, span.root, ec);
            if (!step("copying " + relative.string(), 0)) return fail("cancelled");
            fs::create_directories((dir / relative).parent_path(), ec);
            std::string error;
            const std::string hash = copyWithSha256(clip, (dir / relative).string(), &error);
            if (hash.empty()) return fail(error);
            hashes[relative.string()] = hash;
        }
    }

    // Encoded under a partial name and renamed last: a folder with an
    // incident.mp4 is a whole incident.
    if (!step("encoding incident.mp4", 0.1)) return fail("cancelled");
    const fs::path partial = dir / "incident.partial.mp4";
    written.push_back(partial);
    auto failVideo = [&](std::string text) { return fail(std::move(text)); };
    IncidentVideoOptions video = to.video;
    video.frontAudio = std::all_of(span.parts.begin(), span.parts.end(),
                                   [](const IncidentPart& p) { return hasSound(p.clip.path); });
    std::string overlay;
    // libass reads the overlay from a path of our own that a filter graph
    // takes as it is; the folder's own path may hold anything.
    char scratch[] = "/tmp/tarvik-overlay-XXXXXX";
    const bool scratchMade = to.overlay && ::mkdtemp(scratch);
    if (to.overlay) {
        OverlayOptions drawn = to.overlayOptions;
        drawn.frameWidth = overlayFrameWidth(span, video.layout);
        overlay = incidentOverlayAss(span, drawn);
        video.overlayFile = std::string(scratch) + "/overlay.ass";
        written.push_back(dir / "overlay.ass");
        if (!scratchMade || !writeFileAtomically(video.overlayFile, overlay) ||
            !writeFileAtomically((dir / "overlay.ass").string(), overlay))
            return failVideo("overlay.ass: cannot be written");
        hashes["overlay.ass"] = sha256OfFile((dir / "overlay.ass").string());
    }
    if (!to.overlay && span.parts.size() == 1) {
        const IncidentPart& p = span.parts.front();
        const std::string& clip = video.layout == IncidentLayout::Rear ? p.clip.partner : p.clip.path;
        video.copyPicture = canCopyPicture(span, video, probeFirstStream(clip, "v", "codec_name"));
    }
    // ffmpeg tells how far it is (out_time_us=...) on its standard output.
    std::vector<std::string> args = incidentVideoArguments(span, video, partial.string());
    args.insert(args.end() - 1, {"-progress", "pipe:1", "-nostats"});
    const double total = span.seconds();
    bool cancelled = false;
    double encodedUntil = 0;
    std::string pending;
    const ProcessResult r = ProcessRunner::run(incidentFfmpeg(), args, [&](std::string_view piece) {
        pending.append(piece);
        double encoded = -1;
        for (std::size_t at; (at = pending.find('\n')) != std::string::npos; pending.erase(0, at + 1))
            if (pending.compare(0, 12, "out_time_us=") == 0) encoded = std::atof(pending.c_str() + 12) / 1e6;
        encodedUntil = std::max(encodedUntil, encoded);
        const double done = encoded < 0 ? -1 : 0.1 + 0.85 * std::clamp(encoded / total, 0.0, 1.0);
        cancelled = !step("encoding incident.mp4", done);
        return !cancelled;
    });
    if (scratchMade) fs::remove_all(scratch, ec);
    if (cancelled) return failVideo("cancelled");
    if (r.exitCode != 0 || !fs::exists(partial, ec))
        return failVideo(videoFailure(r.output));
    // Damage inside a clip that its headers do not show ends its pictures early.
    if (encodedUntil < total - 0.5) {
        char text[160];
        std::snprintf(text, sizeof text, "the video came out %.1f s shorter than the span: a clip of it is damaged",
                      total - encodedUntil);
        return failVideo(text);
    }
    hashes["incident.mp4"] = sha256OfFile(partial.string());

    if (!step("drawing still.png", 0.95)) return failVideo("cancelled");
    IncidentStill still{to.video, to.overlay, to.overlayOptions};
    still.video.overlayFile.clear();
    written.push_back(dir / "still.png");
    std::string stillWhy;
    const double stillAt = to.stillAt && span.holds(*to.stillAt) ? *to.stillAt : span.start();
    if (!writeIncidentStill(span, stillAt, still, (dir / "still.png").string(), &stillWhy))
        return failVideo("still.png: " + stillWhy);
    hashes["still.png"] = sha256OfFile((dir / "still.png").string());

    if (!step("writing the route and samples", 0.97)) return failVideo("cancelled");
    const Trip trip = tripOfSpan(span);
    const double from = double(span.parts.front().clip.start - trip.start) + span.parts.front().from;
    const double until = double(span.parts.back().clip.start - trip.start) + span.parts.back().to;
    const TripRoute route = readTripRoute(trip, true);
    std::vector<RoutePoint> points;
    for (const RoutePoint& p : route.points)
        if (p.seconds >= from - 1e-6 && p.seconds <= until + 1e-6) points.push_back(p);
    const std::map<std::string, std::string> texts = {
        {"route.gpx", RouteExporter::gpx(points, "incident " + tripTimeText(std::int64_t(span.start())), trip.start)},
        {"telemetry.csv", csvWithin(route.csvRows, from, until)}};
    for (const auto& [name, text] : texts) {
        written.push_back(dir / name);
        if (!writeFileAtomically((dir / name).string(), text)) return failVideo(name + ": cannot be written");
        hashes[name] = sha256OfFile((dir / name).string());
    }

    record.files = hashes;
    written.push_back(dir / "incident.json");
    if (!writeFileAtomically((dir / "incident.json").string(), record.json()))
        return failVideo("incident.json: cannot be written");
    hashes["incident.json"] = sha256OfFile((dir / "incident.json").string());

    std::string sums;
    for (const auto& [name, hash] : hashes) sums += hash + "  " + name + "\n";
    written.push_back(dir / "SHA256SUMS");
    if (!writeFileAtomically((dir / "SHA256SUMS").string(), sums)) return failVideo("SHA256SUMS: cannot be written");
    fs::rename(partial, dir / "incident.mp4", ec);
    if (ec) return failVideo("incident.mp4: " + ec.message());
    step("done", 1);
    return true;
}

}  // namespace tarvik
