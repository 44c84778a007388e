#include "cardgen/card_plan.h"

#include <cstdio>

namespace tarvik::cardgen {

CardPlan tripCardPlan(int pairs, int clipSeconds, int width, int height) {
    CardPlan plan;
    VideoSpec front;
    front.width = width;
    front.height = height;
    front.fps = 10;
    front.seconds = clipSeconds;
    VideoSpec rear = front;
    rear.pattern = "smptebars";
    // 2026-11-21 10:00:00 on, each recording named after the moment it began.
    for (int i = 0; i < pairs; ++i) {
        const int t = 10 * 3600 + i * clipSeconds;
        char stem[64];
        std::snprintf(stem, sizeof stem, "cont_rec/20261121_%02d%02d%02d", t / 3600, t / 60 % 60, t % 60);
        const int drive = i * clipSeconds;
        plan.clips.push_back({std::string(stem) + "_F.avi", front, TelemetryFormat::TextRecords, drive});
        plan.clips.push_back({std::string(stem) + "_R.avi", rear, TelemetryFormat::None, drive});
    }
    return plan;
}

}  // namespace tarvik::cardgen
