#pragma once
// The window that hosts the camera's own settings page (SETTING/html on the
// card) and bridges it to the card's files: it hands the page the settings
// bytes, the card's languages and the clock correction, and writes back what
// the page returns on Save. One such window exists at a time; it is
// application-modal while open.

#include <QDialog>
#include <QPointer>
#include <QString>
#include <memory>
#include <optional>

#include "core/settings/m420/m420_setting_manager.h"
#include "core/settings/web/web_setting_files.h"
#include "core/settings/web/web_user_question.h"

class QAbstractButton;
class QMessageBox;
class QPushButton;
class QWebChannel;
class QWebEngineProfile;
class QWebEngineView;

namespace tarvik {

class CardFolderRequestGuard;
class WebDashcam;
class WebSettingPage;

class WebSettingWindowController : public QDialog {
    Q_OBJECT
public:
    // folder: the card's root, under which SETTING/ lies. The page starts loading at once.
    WebSettingWindowController(const std::string& folder, LanguageList languages, QWidget* parent = nullptr);
    ~WebSettingWindowController() override;

    // The open settings window, or none.
    static WebSettingWindowController* instance();
    // Places the window's centre on the other window's centre; the size is kept.
    void centerInWindow(const QWidget* window);
    // Becomes the instance and shows itself application-modal (without blocking).
    void beginModal();

    // --- calls from the page (through Dashcam) ------------------------------
    void startWebBrowserConnection();
    void showTabs(bool show);
    void showPopup(const QString& tabSeparated);
    void setDateUse(bool use) { websettingDateTimeUse_ = use; }
    void setDate(const QString& date) { websetting_.date = date.toStdString(); }
    void setDateHour(const QString& hour) { websetting_.hour = hour.toStdString(); }
    void setDateMin(const QString& minute) { websetting_.minute = minute.toStdString(); }
    void adasreset();
    void clickedList();
    void askFormat() { emit formatRequested(); }

    // --- buttons ---------------------------------------------------------------
    void onBtnBack() { showTabs(true); }
    void onBtnReset() { resetCfg(); }
    void onBtnCancel() { reject(); }
    void onBtnSave() { saveConfig(); }
    // Asks the page for its settings and writes them; the window closes once
    // they are on the card, and stays open (after the memory-card alert) when not.
    void saveConfig();

    const WebSettingFiles& files() const { return files_; }
    QWebEngineView* webView() const { return webView_; }
    QAbstractButton* backButton() const { return backButton_; }
    QPushButton* resetButton() const { return resetButton_; }
    QPushButton* formatButton() const { return formatButton_; }
    QPushButton* cancelButton() const { return cancelButton_; }
    QPushButton* saveButton() const { return saveButton_; }
    bool didLoadHtml() const { return didLoadHtml_; }
    const QString& modelName() const { return modelName_; }
    std::int32_t cfgSize() const { return cfgSize_; }
    bool websettingDateTimeUse() const { return websettingDateTimeUse_; }

protected:
    // Closing in any way ends the window's turn as the instance.
    void done(int result) override;

signals:
    // The page or the Format button asked to erase the card.
    void formatRequested();
    // Save finished: true when the settings are on the card.
    void saveFinished(bool saved);

private:
    void endModalSession();
    void resetCfg();
    void evaluate(const std::string& script);
    void showNextQuestion();
    void answerQuestion(const WebUserQuestion& q, bool agreed);

    WebSettingFiles files_;
    LanguageList languages_;
    std::unique_ptr<QWebEngineProfile> profile_;
    CardFolderRequestGuard* guard_ = nullptr;
    QWebChannel* channel_ = nullptr;
    WebDashcam* webDashcam_ = nullptr;
    WebSettingPage* page_ = nullptr;
    QWebEngineView* webView_ = nullptr;
    QAbstractButton* backButton_ = nullptr;
    QPushButton* resetButton_ = nullptr;
    QPushButton* formatButton_ = nullptr;
    QPushButton* cancelButton_ = nullptr;
    QPushButton* saveButton_ = nullptr;

    bool didLoadHtml_ = false;
    bool saving_ = false;
    QString modelName_;
    std::int32_t cfgSize_ = 0;
    WebTimeCorrection websetting_;
    bool websettingDateTimeUse_ = false;
    QList<WebUserQuestion> questions_;  // asked while another is on screen
    QPointer<QMessageBox> yesNoAlert_;
};

}  // namespace tarvik
