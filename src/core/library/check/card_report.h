#pragma once
// What is wrong with a card, for the person about to trust it with the next
// drive: clips no player opens, halves of pairs, clips without telemetry,
// gaps in the recording, the settings files and the space left.

#include <cstdint>
#include <string>
#include <vector>

namespace tarvik {

enum class FindingSeverity { Attention, Note };

struct CardFinding {
    FindingSeverity severity = FindingSeverity::Attention;
    // "unplayable", "front-without-rear", "rear-without-front", "gap",
    // "settings", "free-space"; as notes, "no-telemetry" (many cameras record
    // without a GPS fix or with the G-sensor off) and "gap".
    std::string kind;
    std::string path;    // the clip or file concerned, "" for the card
    std::string detail;  // "truncated", "12 s after 20261121_083000_F.mp4", ...
};

struct SettingsState {
    bool present = false;   // a setup.cfg or blackbox.cfg exists
    bool readable = false;
    std::int64_t modelType = -1;
    std::string modelName;
    std::int64_t length = -1;          // bytes of setup.cfg
    std::int64_t expectedLength = -1;  // what this model writes, -1 when not known
};

struct CardReport {
    std::string root;
    bool folderFound = true;  // false: nothing was looked at
    int clipCount = 0;
    int tripCount = 0;
    SettingsState settings;
    std::uint64_t freeBytes = 0, totalBytes = 0;
    std::vector<CardFinding> findings;

    bool needsAttention() const;
    int count(FindingSeverity severity) const;
};

// Reads everything it looks at; writes nothing.
CardReport checkCard(const std::string& root);

}  // namespace tarvik
