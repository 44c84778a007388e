#pragma once
// Root view of a pane that lets Escape cancel the pane in front. One handler
// is current for the whole process; each view remembers the one it replaced.

#include <QPointer>
#include <QWidget>
#include <functional>

namespace tarvik {

class OrvoViewController;

class OrvoCancelEventView : public QWidget {
    Q_OBJECT
public:
    explicit OrvoCancelEventView(QWidget* parent = nullptr);

    // Remembers the current handler, then makes controller the current one.
    void setEvnetHandlViewController(OrvoViewController* controller);
    void restoreEventHandler();

    static OrvoViewController* currentEventHandler();

    // Seconds since 1970; replaceable so the debounce can be tested.
    void setClock(std::function<double()> clock) { clock_ = std::move(clock); }
    double lastESCDate() const { return lastESCDate_; }

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QPointer<OrvoViewController> previousHandler_;  // evnetHandlViewController
    double lastESCDate_ = 0.0;
    std::function<double()> clock_;
};

}  // namespace tarvik
