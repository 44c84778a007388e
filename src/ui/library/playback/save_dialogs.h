#pragma once
// The two questions saving asks the user: where to write a file, and how to
// print. Behind an interface so that tests answer without a modal dialog.

#include <QString>

class QPrinter;
class QWidget;

namespace tarvik {

class SaveDialogs {
public:
    virtual ~SaveDialogs() = default;
    // The chosen path, or empty when cancelled.
    virtual QString savePath(QWidget* parent, const QString& proposedName) = 0;
    // Lets the user set up the printer; false when cancelled.
    virtual bool setUpPrinter(QWidget* parent, QPrinter& printer) = 0;
};

// The real dialogs: a save panel titled "Save" with folder creation, and the print dialog.
class QtSaveDialogs : public SaveDialogs {
public:
    QString savePath(QWidget* parent, const QString& proposedName) override;
    bool setUpPrinter(QWidget* parent, QPrinter& printer) override;
};

}  // namespace tarvik
