#pragma once
// Makes a GL context current for one scope, then gives back whatever context
// the caller had current (a widget may be painting).

#include <QOpenGLContext>
#include <QSurface>

namespace tarvik {

class ScopedGlCurrent {
public:
    ScopedGlCurrent(QOpenGLContext* ctx, QSurface* surface)
        : prev_(QOpenGLContext::currentContext()), prevSurface_(prev_ ? prev_->surface() : nullptr), ctx_(ctx) {
        ok_ = ctx_->makeCurrent(surface);
    }
    ~ScopedGlCurrent() {
        if (prev_ && prev_ != ctx_) prev_->makeCurrent(prevSurface_);
        else if (!prev_) ctx_->doneCurrent();
    }
    bool ok() const { return ok_; }

private:
    QOpenGLContext* prev_;
    QSurface* prevSurface_;
    QOpenGLContext* ctx_;
    bool ok_ = false;
};

}  // namespace tarvik
