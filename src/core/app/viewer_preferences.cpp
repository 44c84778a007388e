#include "core/app/viewer_preferences.h"

namespace tarvik {

ViewerPreferences::ViewerPreferences(PreferenceStore& store, std::function<void()> postRefreshLanguage,
                                     std::function<void()> postRefreshSpeedUnit)
    : store_(store), postLanguage_(std::move(postRefreshLanguage)), postSpeedUnit_(std::move(postRefreshSpeedUnit)) {}

std::string ViewerPreferences::initializeLanguageSetting() {
    // The computer's own language is never consulted: a first start is English.
    std::string v = store_.string(kLanguageKey).value_or("en");
    if (v != "en" && v != "fr" && v != "ja" && v != "pt") v = "en";
    store_.setString(kLanguageKey, v);
    store_.setStringList(kAppleLanguagesKey, {v});
    store_.synchronize();
    return v;
}

bool ViewerPreferences::languageChange(const std::string& code) {
    if (store_.string(kLanguageKey) == code) return false;
    store_.setString(kLanguageKey, code);
    store_.setStringList(kAppleLanguagesKey, {code});
    if (postLanguage_) postLanguage_();
    store_.synchronize();
    return true;
}

ViewerPreferences::LanguageItem ViewerPreferences::markCurrentLanguage() const {
    const std::string v = store_.string(kLanguageKey).value_or("");
    if (v == "pt") return LanguageItem::Portuguese;
    if (v == "fr") return LanguageItem::French;
    if (v == "ja") return LanguageItem::Japanese;
    return LanguageItem::English;
}

ViewerPreferences::SpeedUnitItem ViewerPreferences::markCurrentSpeedUnit() {
    std::optional<int> unit = store_.integer(kSpeedUnitKey);
    if (!unit) {
        // 2, not 0: the value stays "not chosen yet" until the user picks a
        // unit, and every value but 1 reads as km/h.
        store_.setInteger(kSpeedUnitKey, 2);
        store_.synchronize();
        return SpeedUnitItem::Kmph;
    }
    return *unit == 1 ? SpeedUnitItem::Mph : SpeedUnitItem::Kmph;
}

bool ViewerPreferences::setSpeedUnit(int unit) {
    // An absent key reads as 0, as the defaults store does.
    if (store_.integer(kSpeedUnitKey).value_or(0) == unit) return false;
    store_.setInteger(kSpeedUnitKey, unit);
    store_.synchronize();
    if (postSpeedUnit_) postSpeedUnit_();
    return true;
}

std::string ViewerPreferences::language() const { return store_.string(kLanguageKey).value_or("en"); }

bool ViewerPreferences::isMph() const { return store_.integer(kSpeedUnitKey).value_or(0) == 1; }

}  // namespace tarvik
