// tarvik export CARD --from TIME --to TIME --out DIR [--layout ...]: an
// incident as evidence, the same folder the viewer writes.
#include <algorithm>
#include <cstdio>

#include "cli/commands.h"
#include "core/library/incident/incident_exporter.h"

#ifndef TARVIK_VERSION
#define TARVIK_VERSION "0.0.0"
#endif

namespace tarvik::cli {

int exportCommand(const ExportOptions& o) {
    setLibraryLogging(o.verbose);
    IncidentExport to;
    to.folder = o.out;
    to.programVersion = TARVIK_VERSION;
    to.video.crf = o.crf;
    to.overlay = o.overlay || o.routeInset;
    to.overlayOptions.mph = o.mph;
    to.overlayOptions.routeInset = o.routeInset;
    layoutFromName(o.layout, &to.video.layout);
    const auto from = parseCameraTime(o.from), until = parseCameraTime(o.to);
    if (!from || !until) {
        std::fprintf(stderr, "tarvik export: times are written \"YYYY-MM-DD HH:MM:SS\"\n");
        return 2;
    }
    std::string why;
    const auto span = findIncidentSpan(o.card, *from, *until, layoutNeedsRear(to.video.layout), &why);
    if (!span) {
        std::fprintf(stderr, "tarvik export: %s\n", why.c_str());
        return 1;
    }
    std::string lastStep;
    int lastPercent = -1;
    const bool ok = IncidentExporter::write(*span, to, [&](const std::string& step, double done) {
        const int percent = done < 0 ? lastPercent : int(done * 100);
        if (step != lastStep || percent / 10 != lastPercent / 10)
            std::fprintf(stderr, "%3d%%  %s\n", std::max(percent, 0), step.c_str());
        lastStep = step, lastPercent = percent;
        return true;
    }, &why);
    if (!ok) {
        std::fprintf(stderr, "tarvik export: %s\n", why.c_str());
        return 1;
    }
    std::printf("%s\n", o.out.c_str());
    return 0;
}

}  // namespace tarvik::cli
