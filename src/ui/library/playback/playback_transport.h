#pragma once
// Play and pause of the front/rear pair, as the full-screen and saving
// helpers need them without knowing the whole playback controller.

namespace tarvik {

class PlaybackTransport {
public:
    virtual ~PlaybackTransport() = default;
    virtual void playVideo() = 0;
    virtual void pauseVideo() = 0;
    virtual bool isVideoPaused() const = 0;
};

}  // namespace tarvik
