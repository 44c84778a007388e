#include "ui/library/incident/incident_marks.h"

#include <QSlider>
#include <QTimer>

#include "ui/library/incident/incident_span_band.h"

namespace tarvik {

IncidentMarks::IncidentMarks(QSlider* slider, PlayingSource playing, QObject* parent)
    : QObject(parent), playing_(std::move(playing)), band_(new IncidentSpanBand(slider)), poll_(new QTimer(this)) {
    // The slider moves with its signals blocked and clips change under it:
    // the band follows by looking a few times a second.
    poll_->setInterval(200);
    connect(poll_, &QTimer::timeout, this, &IncidentMarks::refresh);
    poll_->start();
}

std::optional<double> IncidentMarks::playingMoment() const {
    const Playing p = playing_();
    if (p.clip.empty() || p.start <= 0) return std::nullopt;
    return double(p.start) + p.seconds;
}

bool IncidentMarks::markIn() {
    const auto at = playingMoment();
    if (!at) return false;
    in_ = at;
    if (out_ && *out_ <= *in_) out_.reset();
    refresh();
    emit marksChanged();
    return true;
}

bool IncidentMarks::markOut() {
    const auto at = playingMoment();
    if (!at) return false;
    out_ = at;
    if (in_ && *in_ >= *out_) in_.reset();
    refresh();
    emit marksChanged();
    return true;
}

void IncidentMarks::clear() {
    in_.reset(), out_.reset();
    refresh();
    emit marksChanged();
}

void IncidentMarks::refresh() {
    const Playing p = playing_();
    if (p.clip.empty() == hadClip_) {
        hadClip_ = !p.clip.empty();
        emit playingChanged(hadClip_);
    }
    if (p.clip.empty() || p.length <= 0 || (!in_ && !out_)) {
        band_->clearBand();
        return;
    }
    const double begin = double(p.start), end = begin + p.length;
    if (!in_ || !out_) {
        // A lone point is an edge, where it lies in this clip.
        const double at = (in_ ? *in_ : *out_) - begin;
        if (at < 0 || at > p.length) band_->clearBand();
        else band_->setBand(at, at + 1e-3, p.length);
        return;
    }
    if (*out_ < begin || *in_ > end) {
        band_->clearBand();
        return;
    }
    // Beyond the clip on a side: the band runs off that end, with no edge.
    const double a = *in_ < begin ? -1 : *in_ - begin;
    const double b = *out_ > end ? p.length + 1 : *out_ - begin;
    band_->setBand(a, b, p.length);
}

}  // namespace tarvik
