#pragma once
// The main window's key table wins over whichever of its widgets has the
// focus: a clip list that took the focus with a double-click must not
// swallow Space or turn the arrows into selection moves. Enter on the list
// is the one exception: it plays the selected clip, and nothing more.

#include <QObject>
#include <QPointer>
#include <functional>

class QAbstractItemView;

namespace tarvik {

class MainWindow;

class KeyTableRouter : public QObject {
    Q_OBJECT
public:
    // Watches the whole application, as key events go to the focus widget first.
    KeyTableRouter(MainWindow* window, QAbstractItemView* list, std::function<void()> playFromList,
                   QObject* parent = nullptr);
    ~KeyTableRouter() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QPointer<MainWindow> window_;
    QPointer<QAbstractItemView> list_;
    std::function<void()> playFromList_;
};

}  // namespace tarvik
