#pragma once
// The borderless main window. It has no title bar, so it moves when dragged by
// its background, and it turns key presses into the controller's commands.

#include <QPoint>
#include <QPointer>
#include <QWidget>

namespace tarvik {

class MainWindow : public QWidget {
    Q_OBJECT
public:
    explicit MainWindow(QWidget* parent = nullptr);

    // The object that receives keyboard commands; an action is sent only if it
    // has a slot of that name taking the window.
    void setKeyEventDelegate(QObject* delegate) { keyEventDelegate_ = delegate; }
    QObject* keyEventDelegate() const { return keyEventDelegate_; }

    // The action a key press stands for, or nullptr. Control plays the part of
    // the Command key of the camera maker's original desktop.
    static const char* actionForKey(int key, Qt::KeyboardModifiers modifiers);

    // Sends the action of the key to the delegate; true when one was sent.
    bool handleKeyEvent(int key, Qt::KeyboardModifiers modifiers);

signals:
    void resized();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QPointer<QObject> keyEventDelegate_;
    QPoint lastWindowDragLocation_;
    bool isMovingWindow_ = false;
};

}  // namespace tarvik
