// tarvik check CARD [--json]: what on the card needs attention. Exit status 0
// when nothing does, 1 when something needs attention, 2 on a usage error.
#include <cstdio>
#include <string>

#include "cli/commands.h"
#include <nlohmann/json.hpp>

#include "core/settings/profile/json_value.h"
#include "core/library/check/card_report.h"

namespace tarvik::cli {

namespace {

std::string counted(int n, const char* noun) { return std::to_string(n) + " " + noun + (n == 1 ? "" : "s"); }

// Notes are worth reading but are no fault: the verdict says both.
std::string verdict(const CardReport& r) {
    const int attention = r.count(FindingSeverity::Attention), notes = r.count(FindingSeverity::Note);
    if (attention) return counted(attention, "thing") + (attention == 1 ? " needs" : " need") + " attention";
    return notes ? "nothing needs attention, " + counted(notes, "note") : "all well";
}

}  // namespace

int checkCommand(const CardFolderOptions& o) {
    setLibraryLogging(o.verbose);
    const std::string& card = o.card;
    const bool json = o.json;
    const CardReport r = checkCard(card);
    const SettingsState& s = r.settings;
    if (json) {
        nlohmann::ordered_json doc;
        doc["path"] = r.root;
        doc["clips"] = r.clipCount;
        doc["trips"] = r.tripCount;
        doc["needs_attention"] = r.needsAttention();
        doc["free_bytes"] = r.freeBytes;
        doc["total_bytes"] = r.totalBytes;
        doc["settings"] = {{"present", s.present},     {"readable", s.readable},
                           {"model_type", s.modelType}, {"model_name", s.modelName},
                           {"length", s.length},       {"expected_length", s.expectedLength}};
        auto& findings = doc["findings"] = nlohmann::ordered_json::array();
        for (const CardFinding& f : r.findings)
            findings.push_back({{"severity", f.severity == FindingSeverity::Attention ? "attention" : "note"},
                                {"kind", f.kind},
                                {"path", f.path},
                                {"detail", f.detail}});
        std::fputs(jsonDocument(doc).c_str(), stdout);
    } else {
        std::printf("%s: %s in %s, %.1f of %.1f GiB free\n", r.root.c_str(), counted(r.clipCount, "clip").c_str(),
                    counted(r.tripCount, "trip").c_str(), double(r.freeBytes) / (1 << 30),
                    double(r.totalBytes) / (1 << 30));
        std::printf("settings: %s%s%s\n", !s.present ? "none" : s.readable ? "readable" : "unreadable",
                    s.modelName.empty() ? "" : ", model ", s.modelName.c_str());
        for (const CardFinding& f : r.findings)
            std::printf("%s %s%s%s%s%s\n", f.severity == FindingSeverity::Attention ? "!" : "-", f.kind.c_str(),
                        f.path.empty() ? "" : " ", f.path.c_str(), f.detail.empty() ? "" : ": ", f.detail.c_str());
        std::printf("%s\n", verdict(r).c_str());
    }
    return r.needsAttention() ? 1 : 0;
}

}  // namespace tarvik::cli
