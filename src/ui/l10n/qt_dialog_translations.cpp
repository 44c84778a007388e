#include "ui/l10n/qt_dialog_translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace tarvik {

bool QtDialogTranslations::apply(const QString& languageCode) {
    static QTranslator* installed = nullptr;
    if (installed) {
        QCoreApplication::removeTranslator(installed);
        delete installed;
        installed = nullptr;
    }
    if (languageCode.isEmpty() || languageCode.startsWith(QLatin1String("en"))) return false;
    auto* translator = new QTranslator;
    // "qt_<lang>" bundles qtbase and the other modules' catalogues.
    const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    if (!translator->load(QLocale(languageCode), QStringLiteral("qt"), QStringLiteral("_"), folder) &&
        !translator->load(QLocale(languageCode), QStringLiteral("qtbase"), QStringLiteral("_"), folder)) {
        delete translator;
        return false;
    }
    QCoreApplication::installTranslator(translator);
    installed = translator;
    return true;
}

}  // namespace tarvik
