#include "ui/shell/preferences_menu_controller.h"

#include <QAction>
#include <QActionGroup>
#include <QMenu>
#include <QMenuBar>

#include "core/app/viewer_preferences.h"
#include "ui/base/prefs/notification_center.h"
#include "ui/base/prefs/qsettings_store.h"
#include "ui/l10n/orvo_languages.h"

namespace tarvik {

PreferencesMenuController::PreferencesMenuController(QMenuBar* mainMenu, QObject* parent)
    : QObject(parent),
      mainMenu_(mainMenu),
      prefs_(std::make_unique<ViewerPreferences>(
          QSettingsStore::shared(), [] { NotificationCenter::shared().postRefreshLanguage(); },
          [] { NotificationCenter::shared().postRefreshSpeedUnit(); })) {}

PreferencesMenuController::~PreferencesMenuController() = default;

void PreferencesMenuController::buildMenus() {
    if (languageMenu) return;
    auto item = [](QMenu* menu, void (PreferencesMenuController::*slot)(), PreferencesMenuController* self) {
        QAction* a = menu->addAction(QString());
        a->setCheckable(true);
        connect(a, &QAction::triggered, self, slot);
        return a;
    };
    languageMenu = mainMenu_->addMenu(QString());
    languageEnglishMenuItem = item(languageMenu, &PreferencesMenuController::languageChangeToEnglish, this);
    languageFrenchMenuItem = item(languageMenu, &PreferencesMenuController::languageChangeToFrench, this);
    languageJapaneseMenuItem = item(languageMenu, &PreferencesMenuController::languageChangeToJapanese, this);
    markCurrentLanguage();

    unitMenu = mainMenu_->addMenu(QString());
    unitKmphMenuItem = item(unitMenu, &PreferencesMenuController::onMenuSpeedKmph, this);
    unitMphMenuItem = item(unitMenu, &PreferencesMenuController::onMenuSpeedMph, this);
    markCurrentSpeedUnit();
    applyLanguageSettings();
}

void PreferencesMenuController::markRadio(QAction* item) {
    if (!item) return;
    const auto widgets = item->associatedObjects();
    for (QObject* o : widgets) {
        auto* menu = qobject_cast<QMenu*>(o);
        if (!menu) continue;
        for (QAction* a : menu->actions()) a->setChecked(a == item);
    }
}

void PreferencesMenuController::markCurrentLanguage() {
    switch (prefs_->markCurrentLanguage()) {
    case ViewerPreferences::LanguageItem::Portuguese:
        markRadio(languagePortugueseMenuItem);
        break;
    case ViewerPreferences::LanguageItem::French:
        markRadio(languageFrenchMenuItem);
        break;
    case ViewerPreferences::LanguageItem::Japanese:
        markRadio(languageJapaneseMenuItem);
        break;
    case ViewerPreferences::LanguageItem::English:
        markRadio(languageEnglishMenuItem);
        break;
    }
}

void PreferencesMenuController::markCurrentSpeedUnit() {
    markRadio(prefs_->markCurrentSpeedUnit() == ViewerPreferences::SpeedUnitItem::Mph ? unitMphMenuItem
                                                                                    : unitKmphMenuItem);
}

void PreferencesMenuController::applyLanguageSettings() {
    if (!languageMenu) return;
    languageMenu->setTitle(tr_k("언어"));
    languageEnglishMenuItem->setText(tr_k("영어"));
    languageFrenchMenuItem->setText(tr_k("프랑스어"));
    languageJapaneseMenuItem->setText(tr_k("일본어"));
    unitMenu->setTitle(tr_k("속도 단위"));
    unitKmphMenuItem->setText("KM/H");
    unitMphMenuItem->setText("MPH");
}

void PreferencesMenuController::languageChange(const QString& code) { prefs_->languageChange(code.toStdString()); }

void PreferencesMenuController::languageChangeToEnglish() {
    markRadio(languageEnglishMenuItem);
    languageChange("en");
}
void PreferencesMenuController::languageChangeToFrench() {
    markRadio(languageFrenchMenuItem);
    languageChange("fr");
}
void PreferencesMenuController::languageChangeToJapanese() {
    markRadio(languageJapaneseMenuItem);
    languageChange("ja");
}
void PreferencesMenuController::languageChangeToPortuguese() {
    markRadio(languagePortugueseMenuItem);
    languageChange("pt");
}

void PreferencesMenuController::setSpeedUnit(int unit) { prefs_->setSpeedUnit(unit); }

void PreferencesMenuController::onMenuSpeedKmph() {
    markRadio(unitKmphMenuItem);
    setSpeedUnit(0);
}

void PreferencesMenuController::onMenuSpeedMph() {
    markRadio(unitMphMenuItem);
    setSpeedUnit(1);
}

}  // namespace tarvik
