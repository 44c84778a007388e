#include "ui/library/playback/clip_navigation.h"

#include "core/library/clip_catalogue.h"
#include "core/telemetry/mp4_clip_path.h"

namespace tarvik {

namespace {

bool isPartnerOf(const std::string& row, const std::string& other) {
    if (!isPairedClipPath(row) || !isPairedClipPath(other)) return false;
    const std::string partner = ClipCatalogue::cameraPartnerPath(row);
    return !partner.empty() && partner == other;
}

std::string replaceAll(std::string s, std::string_view from, std::string_view to) {
    for (std::size_t i = s.find(from); i != std::string::npos; i = s.find(from, i + to.size()))
        s.replace(i, from.size(), to);
    return s;
}

}  // namespace

int nextClipRow(const std::vector<std::string>& list, int selected) {
    if (selected < 0) return -1;
    const int count = static_cast<int>(list.size());
    const int n = selected + 1;
    if (n >= count) return 0;
    if (isPartnerOf(list[selected], list[n])) return count > selected + 2 ? selected + 2 : 0;
    return n;
}

int previousClipRow(const std::vector<std::string>& list, int selected) {
    const int count = static_cast<int>(list.size());
    if (selected <= 0 || selected >= count) return -1;
    int p = selected - 1;
    // On the rear file of a pair the step lands on its own front file.
    if (selected >= 2 && !isPartnerOf(list[selected], list[selected - 1])) {
        std::string front = list[selected - 1];
        if (front.find("F.") == std::string::npos) front = replaceAll(front, "R.", "F.");
        if (front == list[selected - 2]) p = selected - 2;
        // A lettered pair's B clip after its A clip.
        else if (!ClipCatalogue::isFrontOfPair(list[selected - 1]) && isPartnerOf(list[selected - 1], list[selected - 2]))
            p = selected - 2;
    }
    return p;
}

}  // namespace tarvik
