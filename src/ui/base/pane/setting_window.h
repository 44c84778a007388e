#pragma once
// The modal window every pane is shown in, centred over its parent window.

#include <QDialog>
#include <QPointer>

class QAction;

namespace tarvik {

class OrvoViewController;
class PreferenceStore;

class SettingWindow : public QDialog {
    Q_OBJECT
public:
    explicit SettingWindow(QWidget* parent = nullptr);
    ~SettingWindow() override;

    // Shows paneView centred over parentWindow (borderless unless
    // showTitleBar), runs it modally and returns the code the pane ended it
    // with: 1 confirmed, 0 cancelled. The pane view is handed back unparented.
    int showModalWindow(QWidget* parentWindow, QWidget* paneView, OrvoViewController* paneController,
                        bool showTitleBar);

    // Where a pane of paneSize goes over parentFrame (an empty frame counts as zeros).
    static QRect centredFrame(const QRect& parentFrame, const QSize& paneSize);

    OrvoViewController* keyEventDelegate() const { return keyDelegate_; }
    void setKeyEventDelegate(OrvoViewController* d) { keyDelegate_ = d; }

    // The defaults store language changes go to (the application's by default).
    void setPreferenceStore(PreferenceStore* store) { store_ = store; }

    // Puts the check mark on action alone among the items of its menus.
    static void markRadio(QAction* action);

public slots:
    // Stores code and announces the change, unless it is the current language.
    void languageChange(const QString& code);
    // Each first calls the same-named slot of the parent window, then changes
    // the language.
    void languageChangeToEnglish();
    void languageChangeToFrench();
    void languageChangeToPortuguese();
    void languageChangeToJapanese();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void forwardToParent(const char* slot);

    QPointer<OrvoViewController> keyDelegate_;
    QPointer<QObject> pWindowController_;
    PreferenceStore* store_ = nullptr;
};

}  // namespace tarvik
