#include "ui/library/player/mpv_player.h"

#include "ui/library/player/mpv_track_list.h"
#include "ui/library/player/picture_target.h"

#include <QFile>
#include <mpv/client.h>
#include <mpv/render.h>

#include <QThreadPool>
#include <QTimer>
#include <clocale>
#include <algorithm>
#include <cmath>
#include <vector>

namespace tarvik {

namespace {

// Marks the reply to a load's duration question, next to its track-list question.
constexpr uint64_t kDurationReplyTag = uint64_t(1) << 62;
enum Observed : uint64_t { TimePos = 1, Duration, Pause, Speed, Direction, Eof, DisplayWidth, DisplayHeight, VoConfigured };
// Replies to seek requests carry ids from here on.
constexpr uint64_t kFirstSeekReply = 1000;

}  // namespace

MpvPlayer::MpvPlayer(QObject* parent) : QObject(parent) {
    // libmpv refuses to start under a locale whose decimal point is not '.'.
    std::setlocale(LC_NUMERIC, "C");
    mpv_ = mpv_create();
    if (!mpv_) return;
    static const std::pair<const char*, const char*> options[] = {
        {"vo", "libmpv"},         {"keep-open", "yes"},   {"pause", "yes"},
        {"hr-seek", "yes"},       {"idle", "yes"},        {"audio-fallback-to-null", "yes"},
        {"load-scripts", "no"},   {"ytdl", "no"},         {"osc", "no"},
        // Nor mpv's other built-in scripts: each would start a Lua state per player.
        {"load-stats-overlay", "no"}, {"load-osd-console", "no"}, {"load-auto-profiles", "no"},
        {"input-default-bindings", "no"}, {"input-vo-keyboard", "no"}, {"terminal", "no"},
        {"hwdec", "no"},          {"gpu-hwdec-interop", "no"},          {"sub-auto", "no"},     {"audio-file-auto", "no"},
        // A clip's subtitle track is its telemetry, shown by the dashboard,
        // never as text over the picture.
        {"sid", "no"},
        // A frame is handed over when it is due, not up to 50 ms before.
        // Otherwise drawing it waits for its moment on the interface
        // thread, the other player's frame waiting behind it, and the time
        // mpv reports runs ahead of the picture by an amount that differs
        // between the two players: the follower steered by it was kept a
        // frame or two off while both reported the same time.
        {"video-timing-offset", "0"},
        // The desktop's sound servers, then silence. mpv's own probe would go on to
        // SDL, whose audio layer crashes in a session without a sound device.
        {"ao", "pipewire,pulse,alsa,null"},
    };
    for (const auto& [name, value] : options) mpv_set_option_string(mpv_, name, value);
    if (mpv_initialize(mpv_) < 0) {
        mpv_terminate_destroy(mpv_);
        mpv_ = nullptr;
        return;
    }
    mpv_observe_property(mpv_, TimePos, "time-pos", MPV_FORMAT_DOUBLE);
    mpv_observe_property(mpv_, Duration, "duration", MPV_FORMAT_DOUBLE);
    mpv_observe_property(mpv_, Pause, "pause", MPV_FORMAT_FLAG);
    mpv_observe_property(mpv_, Speed, "speed", MPV_FORMAT_DOUBLE);
    mpv_observe_property(mpv_, Direction, "play-dir", MPV_FORMAT_STRING);
    mpv_observe_property(mpv_, Eof, "eof-reached", MPV_FORMAT_FLAG);
    mpv_observe_property(mpv_, DisplayWidth, "dwidth", MPV_FORMAT_INT64);
    mpv_observe_property(mpv_, DisplayHeight, "dheight", MPV_FORMAT_INT64);
    mpv_set_wakeup_callback(mpv_, &MpvPlayer::onWakeup, this);
    target_ = PictureTarget::create(mpv_, &MpvPlayer::onRenderUpdate, this);
    if (!target_) qWarning("MpvPlayer: mpv cannot draw here; playing without a picture");
}

MpvPlayer::~MpvPlayer() { shutdown(); }

void MpvPlayer::shutdown() {
    if (!mpv_) return;
    // can reach a deleted object.
    mpv_set_wakeup_callback(mpv_, nullptr, nullptr);
    target_.reset();
    hasFrame_ = false;
    mpv_handle* handle = mpv_;
    mpv_ = nullptr;
    // Ending mpv waits for its threads (a demuxer may be stuck on a bad
    // file); the interface does not wait for that.
    QThreadPool::globalInstance()->start([handle] { mpv_terminate_destroy(handle); });
}

void MpvPlayer::retire() {
    if (!mpv_ || retiring_) return;
    retiring_ = true;
    // Once mpv has closed its video output by itself, nothing waits for a frame.
    mpv_observe_property(mpv_, VoConfigured, "vo-configured", MPV_FORMAT_FLAG);
    command({"stop"});
    // A demuxer stuck on a bad card may never end the file.
    QTimer::singleShot(1000, this, [this] {
        shutdown();
        deleteLater();
    });
}

void MpvPlayer::onWakeup(void* self) {
    QMetaObject::invokeMethod(static_cast<MpvPlayer*>(self), "processEvents", Qt::QueuedConnection);
}

void MpvPlayer::onRenderUpdate(void* self) {
    QMetaObject::invokeMethod(static_cast<MpvPlayer*>(self), "renderFrame", Qt::QueuedConnection);
}

void MpvPlayer::command(std::initializer_list<const char*> args, uint64_t reply) {
    if (!mpv_) return;
    std::vector<const char*> argv(args);
    argv.push_back(nullptr);
    mpv_command_async(mpv_, reply, argv.data());
}

uint64_t MpvPlayer::beginSeek() {
    seeking_ = true;
    drewSinceSeek_ = false;
    seekAnswered_ = false;
    seekReply_ = seekReply_ < kFirstSeekReply ? kFirstSeekReply : seekReply_ + 1;
    return seekReply_;
}

void MpvPlayer::load(const QString& path, const QByteArray& localPath) {
    path_ = path;
    // A spare may have opened another file ahead: its picture is not this file's first.
    loaded_ = hasVideo_ = eof_ = opening_ = hasFrame_ = false;
    pendingSteps_.clear();
    if (!mpv_) {
        QMetaObject::invokeMethod(this, &MpvPlayer::failed, Qt::QueuedConnection);
        return;
    }
    // The file system's own bytes: a name need not be valid UTF-8.
    const QByteArray local = localPath.isEmpty() ? QFile::encodeName(path) : localPath;
    // Until playback starts at the beginning.
    command({"loadfile", local.constData(), "replace"}, beginSeek());
}

void MpvPlayer::setRate(float rate) {
    if (!mpv_) return;
    rate_ = rate;
    if (requestedRate_ != rate) {
        requestedRate_ = rate;
        emit rateRequested(rate);
    }
    int pause = rate == 0.0f || held_ ? 1 : 0;
    if (rate != 0.0f) {
        baseSpeed_ = std::fabs(rate);
        double speed = baseSpeed_ * trim_;
        const bool backward = rate < 0.0f;
        if (backward != backward_) {
            // Turning round restarts playback at the current time.
            const char* dir = backward ? "backward" : "forward";
            mpv_set_property_async(mpv_, beginSeek(), "play-dir", MPV_FORMAT_STRING, &dir);
        }
        mpv_set_property_async(mpv_, 0, "speed", MPV_FORMAT_DOUBLE, &speed);
    }
    mpv_set_property_async(mpv_, 0, "pause", MPV_FORMAT_FLAG, &pause);
}

void MpvPlayer::setHeld(bool held) {
    if (!mpv_ || held == held_) return;
    held_ = held;
    if (!held && repaintOwed_) {
        repaintOwed_ = false;
        if (target_) target_->showAside();
        emit frameRendered();
    }
    int pause = requestedRate_ == 0.0f || held_ ? 1 : 0;
    mpv_set_property_async(mpv_, 0, "pause", MPV_FORMAT_FLAG, &pause);
}

void MpvPlayer::setSpeedTrim(double trim) {
    if (!mpv_ || trim == trim_) return;
    trim_ = trim;
    double speed = baseSpeed_ * trim_;
    mpv_set_property_async(mpv_, 0, "speed", MPV_FORMAT_DOUBLE, &speed);
}

void MpvPlayer::seekExact(double seconds) {
    const QByteArray at = QByteArray::number(seconds, 'f', 6);
    eof_ = false;
    command({"seek", at.constData(), "absolute+exact"}, beginSeek());
    emit seekRequested(seconds);
}

void MpvPlayer::frameStep() {
    requestStill();
    runStep(Step::Forward);
}

void MpvPlayer::frameBackStep() {
    requestStill();
    runStep(Step::Backward);
}

// mpv pauses after a step by itself; followers hear of it now.
void MpvPlayer::requestStill() {
    if (requestedRate_ == 0.0f) return;
    requestedRate_ = 0.0f;
    emit rateRequested(0.0f);
}

void MpvPlayer::runStep(Step step) {
    if (seeking_) {
        pendingSteps_.push_back(step);
        return;
    }
    if (step == Step::Forward) {
        command({"frame-step"});
    } else {
        // A step back is a seek to the previous frame.
        command({"frame-back-step"}, beginSeek());
    }
}

void MpvPlayer::runPendingSteps() {
    while (mpv_ && !seeking_ && !pendingSteps_.empty()) {
        const Step next = pendingSteps_.front();
        pendingSteps_.pop_front();
        runStep(next);
    }
}

void MpvPlayer::setVolume(float volume) {
    volume_ = std::clamp(volume, 0.0f, 1.0f);
    double v = volume_ * 100.0;
    if (mpv_) mpv_set_property_async(mpv_, 0, "volume", MPV_FORMAT_DOUBLE, &v);
}

void MpvPlayer::setMuted(bool muted) {
    muted_ = muted;
    int flag = muted ? 1 : 0;
    if (mpv_) mpv_set_property_async(mpv_, 0, "mute", MPV_FORMAT_FLAG, &flag);
}

bool MpvPlayer::hasPicture() const { return hasFrame_ && target_ && target_->hasPicture(); }
unsigned MpvPlayer::textureId() const { return hasPicture() ? target_->textureId() : 0; }
QImage MpvPlayer::pictureImage() const { return hasPicture() ? target_->image() : QImage(); }
QSize MpvPlayer::pictureSize() const { return target_ ? target_->pictureSize() : QSize(); }

void MpvPlayer::setShownSize(const void* viewer, QSize size) {
    const QSize before = drawnSize();
    if (size.isEmpty()) shownSizes_.remove(viewer);
    else shownSizes_.insert(viewer, size);
    // The picture that stands is drawn again at once at its new size.
    if (drawnSize() != before) renderFrame();
}

QSize MpvPlayer::drawnSize() const {
    const QSize full = !displaySize_.isEmpty() ? displaySize_ : videoSize_;
    QSize shown;
    for (const QSize& s : shownSizes_) shown = shown.expandedTo(s);
    // Shown nowhere yet (opened ahead): at its own size, it fits any view.
    if (full.isEmpty() || shown.isEmpty() || (full.width() <= shown.width() && full.height() <= shown.height()))
        return full;
    return full.scaled(shown, Qt::KeepAspectRatio).expandedTo(QSize(2, 2));
}

void MpvPlayer::processEvents() {
    // A handler may shut this player down (its owner moving on to the next
    // clip); mpv_ then becomes null and the loop ends.
    while (mpv_) {
        mpv_event* e = mpv_wait_event(mpv_, 0);
        if (!e || e->event_id == MPV_EVENT_NONE) break;
        handleEvent(*e);
    }
}

void MpvPlayer::handleEvent(const mpv_event& e) {
    switch (e.event_id) {
    case MPV_EVENT_FILE_LOADED:
        handleFileLoaded();
        break;
    case MPV_EVENT_END_FILE: {
        const auto* end = static_cast<const mpv_event_end_file*>(e.data);
        seeking_ = false;
        opening_ = false;
        pendingSteps_.clear();
        if (end->reason == MPV_END_FILE_REASON_ERROR || (!loaded_ && end->reason == MPV_END_FILE_REASON_EOF)) {
            loaded_ = false;
            emit failed();
        } else if (end->reason == MPV_END_FILE_REASON_EOF) {
            emit endReached();
        }
        break;
    }
    case MPV_EVENT_GET_PROPERTY_REPLY: {
        // Only the latest load's question counts; a reply to an earlier one is stale.
        const auto* p = static_cast<const mpv_event_property*>(e.data);
        if (!opening_) break;
        if (e.reply_userdata == (trackListReply_ | kDurationReplyTag)) {
            if (e.error >= 0 && p && p->format == MPV_FORMAT_DOUBLE) duration_ = *static_cast<double*>(p->data);
            break;
        }
        if (e.reply_userdata != trackListReply_) break;
        handleTrackList(e.error >= 0 && p && p->format == MPV_FORMAT_NODE ? static_cast<const mpv_node*>(p->data)
                                                                           : nullptr);
        break;
    }
    case MPV_EVENT_COMMAND_REPLY:
    case MPV_EVENT_SET_PROPERTY_REPLY:
        if (e.reply_userdata != seekReply_ || seekAnswered_) break;
        seekAnswered_ = true;
        // A refused request starts no seek: nothing to wait for.
        if (e.error < 0) {
            seeking_ = false;
            runPendingSteps();
        }
        break;
    case MPV_EVENT_PLAYBACK_RESTART:
        if (!seekAnswered_) break;  // an earlier seek's restart
        seeking_ = false;
        emit seeked();
        runPendingSteps();
        break;
    case MPV_EVENT_PROPERTY_CHANGE: {
        const auto* p = static_cast<const mpv_event_property*>(e.data);
        const bool has = p->format != MPV_FORMAT_NONE && p->data;
        switch (e.reply_userdata) {
        case VoConfigured:
            if (retiring_ && !(has && *static_cast<int*>(p->data))) {
                shutdown();
                deleteLater();
            }
            break;
        case TimePos:
            timePos_ = has ? *static_cast<double*>(p->data) : 0.0;
            if (has) emit timeChanged(timePos_);
            break;
        case Duration:
            if (has) duration_ = *static_cast<double*>(p->data);
            break;
        case Pause:
            paused_ = has && *static_cast<int*>(p->data);
            updateRate();
            break;
        case Speed:  // reported without the trim, which is the follower's own business
            updateRate();
            break;
        case Direction:
            backward_ = has && !qstrcmp(*static_cast<char**>(p->data), "backward");
            updateRate();
            break;
        case Eof: {
            const bool eof = has && *static_cast<int*>(p->data);
            const bool reached = eof && !eof_;
            eof_ = eof;
            if (reached && loaded_ && !backward_) emit endReached();
            break;
        }
        case DisplayWidth:
            displaySize_.setWidth(has ? int(*static_cast<int64_t*>(p->data)) : 0);
            renderFrame();
            break;
        case DisplayHeight:
            displaySize_.setHeight(has ? int(*static_cast<int64_t*>(p->data)) : 0);
            renderFrame();
            break;
        }
        break;
    }
    default:
        break;
    }
}

void MpvPlayer::handleFileLoaded() {
    opening_ = true;
    ++trackListReply_;
    // Asked first, so answered first: the duration is known when loaded() is sent.
    mpv_get_property_async(mpv_, trackListReply_ | kDurationReplyTag, "duration", MPV_FORMAT_DOUBLE);
    mpv_get_property_async(mpv_, trackListReply_, "track-list", MPV_FORMAT_NODE);
}

void MpvPlayer::handleTrackList(const mpv_node* tracks) {
    bool anyVideo = false;
    if (tracks) videoSize_ = videoTrackSize(*tracks, &anyVideo);
    opening_ = false;
    loaded_ = true;
    hasVideo_ = anyVideo;
    if (frameOwed_) renderFrame();  // the first frame's size may be known only now
    emit loaded(anyVideo);
}

void MpvPlayer::updateRate() {
    // Held, it still counts as playing: no one is told of a pause for it.
    const bool still = paused_ && !(held_ && requestedRate_ != 0.0f);
    rate_ = still ? 0.0f : float(baseSpeed_) * (backward_ ? -1.0f : 1.0f);
    if (rate_ == reportedRate_) return;
    reportedRate_ = rate_;
    emit rateChanged(rate_);
}

void MpvPlayer::renderFrame() {
    if (!target_) return;
    if (target_->update() & MPV_RENDER_UPDATE_FRAME) frameOwed_ = true;
    const QSize size = drawnSize();
    const bool resized = target_->hasPicture() && !size.isEmpty() && target_->pictureSize() != size;
    if (!frameOwed_ && !resized) return;
    // Held, a new picture is drawn aside, the shown one stays.
    const bool aside = held_ && hasFrame_;
    // mpv's video thread waits (up to 200 ms) for each new frame to be drawn,
    // so a frame that comes before its size is known is drawn small at once
    // and owed again at its size.
    if (!target_->render(size.isEmpty() ? QSize(16, 16) : size, aside)) return;
    if (size.isEmpty()) return;
    frameOwed_ = false;
    drewSinceSeek_ = true;
    const bool first = !hasFrame_;
    hasFrame_ = true;
    if (first) emit firstFrameRendered();
    // Held, the picture found by a seek is drawn aside and shown once the
    // other player's is there too; a file's first picture is shown at once.
    if (aside) repaintOwed_ = true;
    else emit frameRendered();
    if (held_) emit heldFrameRendered();
}

}  // namespace tarvik
