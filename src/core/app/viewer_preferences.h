#pragma once
// The viewer's own preferences, language and speed unit, over the defaults
// store. Announcements are posted through callbacks so the core stays free of
// the interface's notification centre.

#include <functional>
#include <string>

#include "core/app/preference_store.h"

namespace tarvik {

class ViewerPreferences {
public:
    static constexpr const char* kLanguageKey = "OrvoViewerLanguage";
    static constexpr const char* kAppleLanguagesKey = "AppleLanguages";
    static constexpr const char* kSpeedUnitKey = "OrvoViewerSpeedUnit";

    // Which language menu item carries the check mark. Portuguese has no item,
    // so when it is current nothing is marked.
    enum class LanguageItem { English, French, Japanese, Portuguese };
    enum class SpeedUnitItem { Kmph, Mph };

    explicit ViewerPreferences(PreferenceStore& store, std::function<void()> postRefreshLanguage = {},
                               std::function<void()> postRefreshSpeedUnit = {});

    // At launch: settle the stored language on en/fr/ja/pt (anything else
    // becomes en) and write it back with AppleLanguages. Returns the language.
    std::string initializeLanguageSetting();
    // Stores a new language and posts the refresh. Returns whether it posted
    // (false when code is already the stored language).
    bool languageChange(const std::string& code);
    LanguageItem markCurrentLanguage() const;
    // Writes 2 when no unit is stored yet; every value but 1 means km/h.
    SpeedUnitItem markCurrentSpeedUnit();
    // Stores and posts when unit differs from the stored value. Returns whether it posted.
    bool setSpeedUnit(int unit);

    std::string language() const;  // "en" when none is stored
    bool isMph() const;

private:
    PreferenceStore& store_;
    std::function<void()> postLanguage_;
    std::function<void()> postSpeedUnit_;
};

}  // namespace tarvik
