#pragma once
// The object the settings page talks to as "Dashcam". It has a single entry
// point, so that the page reaches exactly the names it is meant to and
// nothing else of the viewer; each name is handed to the window controller.

#include <QObject>
#include <QPointer>
#include <QStringList>

namespace tarvik {

class WebSettingWindowController;

class WebDashcam : public QObject {
    Q_OBJECT
public:
    explicit WebDashcam(WebSettingWindowController* controller, QObject* parent = nullptr)
        : QObject(parent), controller_(controller) {}

    // name: one of dashcamScriptNames(); unknown names are ignored.
    Q_INVOKABLE void call(const QString& name, const QStringList& args);

private:
    QPointer<WebSettingWindowController> controller_;
};

}  // namespace tarvik
