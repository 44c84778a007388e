#pragma once
// The language and speed-unit menus of the main window and what choosing an
// item does to the viewer's preferences.

#include <QObject>
#include <memory>

class QAction;
class QMenu;
class QMenuBar;

namespace tarvik {

class ViewerPreferences;

class PreferencesMenuController : public QObject {
    Q_OBJECT
public:
    explicit PreferencesMenuController(QMenuBar* mainMenu, QObject* parent = nullptr);
    ~PreferencesMenuController() override;

    ViewerPreferences& preferences() { return *prefs_; }

    // Builds both menus and marks the current items.
    void buildMenus();
    // Puts the check mark on item alone among the items of its menu.
    static void markRadio(QAction* item);
    void markCurrentLanguage();
    void markCurrentSpeedUnit();
    // Relabels menus and items in the current language.
    void applyLanguageSettings();

    QMenu* languageMenu = nullptr;
    QAction* languageEnglishMenuItem = nullptr;
    QAction* languageFrenchMenuItem = nullptr;
    QAction* languageJapaneseMenuItem = nullptr;
    QAction* languagePortugueseMenuItem = nullptr;  // Portuguese is reached only through a stored value
    QMenu* unitMenu = nullptr;
    QAction* unitKmphMenuItem = nullptr;
    QAction* unitMphMenuItem = nullptr;

public slots:
    void languageChange(const QString& code);
    void languageChangeToEnglish();
    void languageChangeToFrench();
    void languageChangeToJapanese();
    void languageChangeToPortuguese();
    void setSpeedUnit(int unit);
    void onMenuSpeedKmph();
    void onMenuSpeedMph();

private:
    QMenuBar* mainMenu_;
    std::unique_ptr<ViewerPreferences> prefs_;
};

}  // namespace tarvik
