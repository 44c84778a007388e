#include <cstdio>

#include "cardgen/card_plan.h"

namespace tarvik::cardgen {

CardPlan otherCameraCardPlan(int clipSeconds, int width, int height) {
    CardPlan plan;
    VideoSpec front;
    front.width = width;
    front.height = height;
    front.fps = 10;
    front.seconds = clipSeconds;
    VideoSpec rear = front;
    rear.pattern = "smptebars";
    int drive = 0;
    // One recording a clip long from 2026-11-21 10:00:00, each camera its own
    // names, folders and layout; the rear cameras carry no telemetry.
    auto stamp = [&](const char* fmt) {
        const int t = 10 * 3600 + drive;
        char name[96];
        std::snprintf(name, sizeof name, fmt, t / 3600, t / 60 % 60, t % 60);
        return std::string(name);
    };
    auto add = [&](const std::string& front_, const std::string& rear_, OtherLayout layout) {
        ClipPlan c{front_, front, TelemetryFormat::OtherCamera, drive};
        c.other = layout;
        plan.clips.push_back(c);
        if (!rear_.empty()) plan.clips.push_back({rear_, rear, TelemetryFormat::None, drive});
        drive += clipSeconds;
    };
    add(stamp("Movie/2026_1121_%02d%02d%02d_F.MP4"), stamp("Movie/2026_1121_%02d%02d%02d_R.MP4"),
        OtherLayout::FreeGpsIndexed);
    add(stamp("Movie/2026_1121_%02d%02d%02d_F.MP4"), "", OtherLayout::FreeGpsScanned);
    add(stamp("Record/20261121_%02d%02d%02d_NF.mp4"), stamp("Record/20261121_%02d%02d%02d_NR.mp4"),
        OtherLayout::FreeBoxLog);
    add(stamp("Normal/20261121%02d%02d%02dA.MP4"), stamp("Normal/20261121%02d%02d%02dB.MP4"),
        OtherLayout::GpsRecordBox);
    add(stamp("DCIM/100GOPRO/GX01%02d%02d.MP4"), "", OtherLayout::Gpmf);  // the time only in its container
    add(stamp("NMEA/20261121_%02d%02d%02d.mp4"), "", OtherLayout::NmeaTrack);
    add(stamp("Side/20261121_%02d%02d%02d.mp4"), "", OtherLayout::SideFiles);
    add(stamp("Movie/2026_1121_%02d%02d%02d_F.TS"), "", OtherLayout::FreeGpsTsUnlisted);
    return plan;
}

}  // namespace tarvik::cardgen
