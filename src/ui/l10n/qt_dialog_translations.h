#pragma once
// Qt's own dialogs (file, print, message box buttons) speak the viewer's
// language: Qt's translations are installed for the chosen language, from
// where Qt keeps them (Debian's qt6-translations-l10n).

#include <QString>

namespace tarvik {

class QtDialogTranslations {
public:
    // Replaces the installed Qt translation by the one for `languageCode`
    // ("fr", "ja", ...); English or a missing file leaves Qt's own English.
    // Returns whether a translation is now installed.
    static bool apply(const QString& languageCode);
};

}  // namespace tarvik
