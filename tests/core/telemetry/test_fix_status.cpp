// An RMC sentence is a position only when its status says A (valid): V, an
// unknown letter or none is a second without position, in every layout.
#include <gtest/gtest.h>

#include <functional>

#include "core/telemetry/orvo_clip_data.h"
#include "core/telemetry/subtitle_data.h"
#include "test_bytes.h"

using namespace tarvik;
using tarvik::test::Avi;
using tarvik::test::TempDir;

TEST(FixStatus, OnlyAIsAPosition) {
    TempDir dir;
    struct Layout {
        const char* name;
        std::function<std::string(const std::string&)> clip;
        std::function<int(OrvoClipData&, const std::string&)> read;
    };
    const std::vector<Layout> layouts = {
        {"avi chunks",
         [](const std::string& s) {
             Avi avi;
             for (int i = 0; i < 3; ++i) avi.gReading(120, 128, 130).nmea("$GPRMC,083000," + s + ",3733.67,N,12658.98,E,10.0,,");
             return avi.bytes;
         },
         [](OrvoClipData& d, const std::string& p) { return d.getAllDataFromFile(p.c_str()); }},
        {"text records",
         [](const std::string& s) {
             Avi avi;
             for (int i = 0; i < 3; ++i)
                 avi.chunk("02tx", std::string("gsensor,1,2,3") + '\0')
                     .chunk("03tx", "GPRMC,083000," + s + ",3733.6700,N,12658.9800,E,10.0,90,211126" + '\0');
             return avi.bytes;
         },
         [](OrvoClipData& d, const std::string& p) { return d.getM420AllDataFromFile(p); }},
        {"srt cues",
         [](const std::string& s) {
             std::string t;
             for (int i = 0; i < 3; ++i)
                 t += std::to_string(i + 1) + "\n00:00:0" + std::to_string(i) + ",000 --> 00:00:0" + std::to_string(i + 1) +
                      ",000\ngsensori,1,128,5,0,128;GPRMC,083000," + s + ",4807.038,N,01131.000,E,5.4,,\n\n";
             return t;
         },
         [](OrvoClipData& d, const std::string& p) { return d.getM420AllDataFromSrtFile(p); }},
    };
    for (const Layout& l : layouts) {
        for (const std::string status : {"A", "V", "X", "a", ""}) {
            SCOPED_TRACE(std::string(l.name) + ", status \"" + status + "\"");
            auto d = std::make_unique<OrvoClipData>();
            const int n = l.read(*d, dir.write("clip", l.clip(status)).string());
            EXPECT_GT(n, 0);
            if (status == "A") EXPECT_GT(d->gpsDataCount(), 0);
            else EXPECT_EQ(d->gpsDataCount(), 0);
            if (std::string(l.name) != "srt cues") continue;
            // The player's own look-up of the same track.
            SubtitleData track;
            track.loadFromText(l.clip(status));
            float lat = 0, lng = 0;
            unsigned speed = 0;
            EXPECT_EQ(track.getGpsAt(10, lat, lng, speed) == SubtitleData::GpsExact, status == "A");
        }
    }
}
