// tarvik check CARD [--json]: what on the card needs attention. Exit status 0
// when all is well, 1 when something needs attention, 2 on a usage error.
#include <cstdio>
#include <string>

#include "cli/commands.h"
#include "core/settings/profile/json_value.h"
#include "core/library/check/card_report.h"

namespace tarvik::cli {

int checkCommand(int argc, char** argv) {
    std::string card;
    bool json = false;
    if (!readCardArguments(argc, argv, card, json)) {
        std::fprintf(stderr, "usage: tarvik check CARD [--json]\n");
        return 2;
    }
    const CardReport r = checkCard(card);
    const SettingsState& s = r.settings;
    if (json) {
        std::printf("{\n  \"path\": %s,\n  \"clips\": %d,\n  \"trips\": %d,\n  \"needs_attention\": %s,\n"
                    "  \"free_bytes\": %llu,\n  \"total_bytes\": %llu,\n"
                    "  \"settings\": {\"present\": %s, \"readable\": %s, \"model_type\": %lld, \"model_name\": %s, "
                    "\"length\": %lld, \"expected_length\": %lld},\n  \"findings\": [",
                    jsonQuote(r.root).c_str(), r.clipCount, r.tripCount, r.needsAttention() ? "true" : "false",
                    static_cast<unsigned long long>(r.freeBytes), static_cast<unsigned long long>(r.totalBytes),
                    s.present ? "true" : "false", s.readable ? "true" : "false", static_cast<long long>(s.modelType),
                    jsonQuote(s.modelName).c_str(), static_cast<long long>(s.length),
                    static_cast<long long>(s.expectedLength));
        for (std::size_t i = 0; i < r.findings.size(); ++i) {
            const CardFinding& f = r.findings[i];
            std::printf("%s\n    {\"severity\": \"%s\", \"kind\": %s, \"path\": %s, \"detail\": %s}", i ? "," : "",
                        f.severity == FindingSeverity::Attention ? "attention" : "note", jsonQuote(f.kind).c_str(),
                        jsonQuote(f.path).c_str(), jsonQuote(f.detail).c_str());
        }
        std::printf("%s]\n}\n", r.findings.empty() ? "" : "\n  ");
    } else {
        std::printf("%s: %d clips in %d trips, %.1f of %.1f GiB free\n", r.root.c_str(), r.clipCount, r.tripCount,
                    double(r.freeBytes) / (1 << 30), double(r.totalBytes) / (1 << 30));
        std::printf("settings: %s%s%s\n", !s.present ? "none" : s.readable ? "readable" : "unreadable",
                    s.modelName.empty() ? "" : ", model ", s.modelName.c_str());
        for (const CardFinding& f : r.findings)
            std::printf("%s %s%s%s%s%s\n", f.severity == FindingSeverity::Attention ? "!" : "-", f.kind.c_str(),
                        f.path.empty() ? "" : " ", f.path.c_str(), f.detail.empty() ? "" : ": ", f.detail.c_str());
        std::printf(r.needsAttention() ? "needs attention\n" : "all well\n");
    }
    return r.needsAttention() ? 1 : 0;
}

}  // namespace tarvik::cli
