#pragma once
// The base of every pane shown modally over the main window (pickers,
// settings panes). A pane owns a root view; when that root is exactly an
// OrvoCancelEventView, Escape calls the pane's cancelButtonTouched().

#include <QObject>
#include <QPointer>
#include <QWidget>

class QKeyEvent;

namespace tarvik {

class OrvoViewController : public QObject {
    Q_OBJECT
public:
    // Takes ownership of rootView (an OrvoCancelEventView is made when none is
    // given). applyLanguageSettings() runs once the event loop turns, after the
    // subclass is fully built, and again on every language change.
    explicit OrvoViewController(QWidget* rootView = nullptr, QObject* parent = nullptr);
    ~OrvoViewController() override;

    QWidget* view() const { return view_; }

    // Relabels the pane from the current language; nothing in the base.
    virtual void applyLanguageSettings() {}
    // Escape in the pane; what it does is the pane's business.
    virtual void cancelButtonTouched() {}
    // Key presses that reach the pane's window.
    virtual void keyDown(QKeyEvent* event) { Q_UNUSED(event); }

    // Gives the Escape handler back to the pane that had it before this one.
    void restoreEventHandler();
    // Ends the modal run of the window showing this pane with code (1 OK, 0 cancel).
    void stopModalWithCode(int code);

    // Detaches every image button among view's children, descending only into
    // containers that are exactly plain QWidgets.
    static void removeImageButtonTarget(QWidget* view);

public slots:
    void refreshLanguageHandler();

private:
    QPointer<QWidget> view_;
};

}  // namespace tarvik
