#pragma once
// One libmpv player. It draws into a picture of its own (PictureTarget), so
// a picture can move from one widget to another (front/rear swap, full
// screen) without reloading or re-creating the decoder. All mpv calls made
// from the interface thread are asynchronous; mpv's events arrive on the Qt
// event loop.

#include <QHash>
#include <QImage>
#include <QObject>
#include <QSize>
#include <QString>
#include <deque>
#include <memory>

struct mpv_handle;
struct mpv_event;
struct mpv_node;

namespace tarvik {

class PictureTarget;

class MpvPlayer : public QObject {
    Q_OBJECT
public:
    explicit MpvPlayer(QObject* parent = nullptr);
    ~MpvPlayer() override;

    // False when libmpv could not be started at all.
    bool isValid() const { return mpv_ != nullptr; }
    // localPath, when given, is what is opened: the file system's bytes for `path`.
    void load(const QString& path, const QByteArray& localPath = {});
    // Stops everything and releases mpv and the GL objects; the object can
    // then be deleted later without waiting for mpv's threads to end.
    void shutdown();
    // Stops playing, then shuts down and deletes itself once mpv has let go
    // of the file. Freeing the picture's render context while mpv still
    // waits for a frame to be drawn stalls the interface for up to 200 ms;
    // once stopped, it is quick.
    void retire();

    // 0 pauses; 1 plays; other values play faster, backwards when negative.
    void setRate(float rate);
    // The rate mpv reports: 0 also while mpv holds the last picture of a clip.
    float rate() const { return rate_; }
    // The rate last asked for; a frame step asks for 0.
    float requestedRate() const { return requestedRate_; }
    // Plays this much faster or slower than the rate asked for, without
    // the rate reported changing: how a follower catches up with its leader.
    void setSpeedTrim(double trim);
    // Holds the picture still without it counting as a pause: the rate
    // asked for and reported stay, and a new picture is drawn aside and
    // shown only when let go. Two players started by one
    // command are held until both have found their frame, then let go together.
    void setHeld(bool held);
    bool isHeld() const { return held_; }
    void seekExact(double seconds);
    // A seek (or load, or step back) is on its way to its picture.
    bool isSeeking() const { return seeking_; }
    // A picture was drawn since the latest seek was asked for. mpv may end
    // a seek before the host has drawn its picture.
    bool drewSinceSeek() const { return drewSinceSeek_; }
    void frameStep();
    void frameBackStep();
    void setVolume(float volume);  // 0..1
    float volume() const { return volume_; }
    void setMuted(bool muted);
    bool isMuted() const { return muted_; }

    bool isLoaded() const { return loaded_; }
    bool hasVideo() const { return hasVideo_; }
    bool isEofReached() const { return eof_; }
    double timePos() const { return timePos_; }
    double duration() const { return duration_; }
    // Coded size of the first video track, known once loaded.
    QSize videoSize() const { return videoSize_; }
    QString path() const { return path_; }

    // A frame of the playing file has been drawn.
    bool hasPicture() const;
    // The latest picture, as a texture of the shared GL contexts (0 when
    // pictures are images) or as an image (null when they are textures).
    unsigned textureId() const;
    QImage pictureImage() const;
    QSize pictureSize() const;
    // The size (in device pixels) at which one widget shows this player's
    // pictures; an empty size when it no longer does. Pictures are drawn no
    // larger than the largest of these: on a software renderer, drawing
    // 1080p and scaling it down again costs more than decoding it.
    void setShownSize(const void* viewer, QSize size);

signals:
    void loaded(bool hasVideo);
    void failed();
    void rateChanged(float rate);
    // Sent as the command is given, before mpv carries it out.
    void rateRequested(float rate);
    void seekRequested(double seconds);
    void timeChanged(double seconds);
    void seeked();
    void endReached();
    void frameRendered();
    void firstFrameRendered();
    // A picture drawn while held.
    void heldFrameRendered();

private:
    Q_INVOKABLE void processEvents();
    Q_INVOKABLE void renderFrame();
    void handleEvent(const mpv_event& event);
    void handleFileLoaded();
    void handleTrackList(const mpv_node* tracks);
    void updateRate();
    // The size pictures are drawn at: the video's, fitted into the largest view.
    QSize drawnSize() const;
    void command(std::initializer_list<const char*> args, uint64_t reply = 0);
    // A command or property change that makes mpv seek (load, seek, step
    // back, turning round): steps wait until its own restart.
    uint64_t beginSeek();
    static void onWakeup(void* self);
    static void onRenderUpdate(void* self);

    mpv_handle* mpv_ = nullptr;
    std::unique_ptr<PictureTarget> target_;
    bool hasFrame_ = false;
    bool retiring_ = false;
    bool frameOwed_ = false;  // mpv has a frame not yet drawn at the picture's size

    QString path_;
    // mpv drops a frame step that arrives while a seek is still decoding
    // towards its target, so steps wait for the seek to finish. Restart
    // events carry no id: one that arrives before mpv has answered the latest
    // seek request belongs to an earlier seek (the start of the file, say)
    // and must not release the steps, or they reach mpv mid-seek.
    enum class Step { Forward, Backward };
    void runStep(Step step);
    void requestStill();
    void runPendingSteps();
    bool seeking_ = false;
    bool drewSinceSeek_ = true;
    uint64_t seekReply_ = 0;  // reply id of the latest seek request
    bool seekAnswered_ = true;
    std::deque<Step> pendingSteps_;
    bool loaded_ = false;
    // The file is open but its track list is still being asked for: mpv's core
    // answers between its own work, and a synchronous question would stall the
    // interface, and with it the other player's pictures, until it does.
    bool opening_ = false;
    uint64_t trackListReply_ = 0;
    bool hasVideo_ = false;
    bool eof_ = false;
    bool paused_ = true;
    bool held_ = false;
    bool repaintOwed_ = false;  // a picture drawn while held, not yet announced
    bool backward_ = false;
    double baseSpeed_ = 1.0;  // the speed asked for, without the trim
    double trim_ = 1.0;
    float rate_ = 0.0f;
    float requestedRate_ = 0.0f;
    float reportedRate_ = 0.0f;
    float volume_ = 1.0f;
    bool muted_ = false;
    double timePos_ = 0.0;
    double duration_ = 0.0;
    QSize videoSize_;
    QSize displaySize_;
    QHash<const void*, QSize> shownSizes_;
};

}  // namespace tarvik
