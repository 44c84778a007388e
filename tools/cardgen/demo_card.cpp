#include "cardgen/card_plan.h"

namespace tarvik::cardgen {

CardPlan demoCardPlan(const CardOptions& o) {
    CardPlan plan;
    plan.modelType = o.modelType >= 0 ? o.modelType : demoModelType();

    VideoSpec front;
    front.width = o.width;
    front.height = o.height;
    front.seconds = o.seconds;
    VideoSpec rear = front;
    rear.pattern = "smptebars";
    VideoSpec frontAudio = front;
    frontAudio.audio = true;
    VideoSpec twin = front;  // front and rear as two streams of one AVI
    twin.videoStreams = 2;
    twin.audio = true;
    VideoSpec hevc = front;
    hevc.codec = Codec::Hevc;

    using T = TelemetryFormat;
    int drive = 0;
    auto add = [&](std::string path, VideoSpec v, T t) {
        plan.clips.push_back({std::move(path), v, t, drive});
        drive += static_cast<int>(o.seconds);
    };
    // Front and rear cameras of one recording saw the same stretch of the drive.
    auto addPair = [&](const std::string& stem) {
        const int start = drive;
        add(stem + "_F.mp4", frontAudio, T::SrtTrack);
        plan.clips.push_back({stem + "_R.mp4", rear, T::SrtTrack, start});
    };

    // Continuous recording: front/rear MP4 pairs carrying a subtitle track,
    // a two-stream AVI, and a day folder below.
    addPair("cont_rec/20261121_083000");
    addPair("cont_rec/20261121_083100");
    add("cont_rec/20261121_083200.avi", twin, T::TextRecords);
    add("cont_rec/2026_11_20/20261120_171500.avi", front, T::AviChunks);
    add("cont_rec/2026_11_20/evening/20261120_171600.mov", front, T::TailText);
    // Clips lying in the root itself.
    add("20261121_080000.avi", front, T::TailText);
    add("20261121_080100.MP4", hevc, T::SrtTrack);
    // One clip in every other recording folder.
    add("motion_rec/20261121_084500.avi", front, T::AviChunks);
    add("motion_timelapse_rec/20261121_230000.mp4", front, T::SrtTrack);
    addPair("evt_rec/20261121_083215");
    add("parking_rec/20261121_221000.avi", front, T::AviChunks);
    add("manual_rec/20261121_090000.avi", front, T::TextRecords);
    add("manual_rec/2026_11_21/20261121_091500.mov", front, T::TailText);
    // KRT cameras name their clips Rec_, Event_, Park_ or Manual_; the player
    // picks their reader by that name.
    add("option_rec/Rec_20261121_090500.avi", front, T::AviChunksKrt);
    add("Saved_Videos/Saved_20261121_083000.mp4", front, T::SrtTrack);

    // Things a scan must pass over.
    plan.files = {
        {".hidden_clip.mp4", "not a clip"},
        {"cont_rec/._20261121_083000_F.mp4", "resource fork"},
        {"cont_rec/20261121_083000.mpg", "other extension"},
        {"cont_rec/20261121_083000.mp4.tmp", "unfinished copy"},
        {"cont_rec/readme.txt", "not a clip"},
        {"misc/20261121_070000.mp4", "folder the camera does not record into"},
    };
    return plan;
}

}  // namespace tarvik::cardgen
