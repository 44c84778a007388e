#pragma once
// incident.json: which card and camera (model and firmware, never a serial),
// which clips with their recording times, the span, the program and the
// moment of the export, and the SHA-256 of every other file of the folder.

#include <map>
#include <string>

#include "core/library/incident/incident_span.h"

namespace tarvik {

struct IncidentRecord {
    const IncidentSpan* span = nullptr;
    std::string programVersion;
    std::string layout;
    std::map<std::string, std::string> files;  // relative path -> SHA-256

    std::string json() const;
};

}  // namespace tarvik
