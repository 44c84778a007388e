#pragma once
// Answers the modal windows of a flow as they open, one step each, in order.

#include <QApplication>
#include <QPointer>
#include <QTimer>
#include <deque>
#include <functional>

#include "ui/base/pane/setting_window.h"

namespace tarvik::test {

class ModalScript : public QObject {
public:
    using Step = std::function<void(QWidget* modal, OrvoViewController* pane)>;
    explicit ModalScript(std::deque<Step> steps) : steps_(std::move(steps)) {
        connect(&timer_, &QTimer::timeout, this, [this] {
            QWidget* w = QApplication::activeModalWidget();
            if (!w || w == last_ || steps_.empty()) return;
            last_ = w;
            auto* window = qobject_cast<SettingWindow*>(w);
            Step s = std::move(steps_.front());
            steps_.pop_front();
            s(w, window ? window->keyEventDelegate() : nullptr);
        });
        timer_.start(20);
    }
    bool done() const { return steps_.empty(); }

private:
    QTimer timer_;
    QPointer<QWidget> last_;
    std::deque<Step> steps_;
};

}  // namespace tarvik::test
