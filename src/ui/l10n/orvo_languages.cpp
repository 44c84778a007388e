#include "ui/l10n/orvo_languages.h"

#include <QCoreApplication>
#include <QFile>
#include <QTranslator>

#include <map>
#include <mutex>

#include "ui/base/prefs/qsettings_store.h"

namespace tarvik {

namespace {

constexpr const char* kTableContext = "Localizable_M420";
constexpr const char* kLanguagesKey = "AppleLanguages";

// A code names a file inside the resources; anything but letters, digits,
// '-' and '_' cannot be a language and must not reach a path.
bool isPlausibleCode(const QString& code) {
    if (code.isEmpty() || code.size() > 32) return false;
    for (QChar c : code) {
        if (!(c.isLetterOrNumber() && c.unicode() < 0x80) && c != u'-' && c != u'_') return false;
    }
    return true;
}

}  // namespace

// Compiled tables are immutable resources, so a loaded one stays valid for
// the whole run; only codes that have a table are kept, which bounds the
// cache by the number of shipped languages whatever the preferences hold.
struct OrvoLanguages::Tables {
    std::mutex mutex;
    std::map<QString, std::unique_ptr<QTranslator>> loaded;

    const QTranslator* find(const QString& code) {
        std::lock_guard lock(mutex);
        if (auto it = loaded.find(code); it != loaded.end()) return it->second.get();
        if (!hasTable(code)) return nullptr;
        auto translator = std::make_unique<QTranslator>();
        // The exact file only: QTranslator would otherwise try shorter names
        // ("tarvik_pt_BR" -> "tarvik_pt"), a fallback to another table.
        if (!translator->load(tablePath(code))) return nullptr;
        return loaded.emplace(code, std::move(translator)).first->second.get();
    }
};

OrvoLanguages::OrvoLanguages() : tables_(std::make_unique<Tables>()) {}
OrvoLanguages::~OrvoLanguages() = default;

OrvoLanguages& OrvoLanguages::shared() {
    // Never destroyed: panes may look texts up while the application quits.
    static OrvoLanguages* instance = new OrvoLanguages;
    return *instance;
}

QString OrvoLanguages::currentLanguageCode() {
    auto list = QSettingsStore::shared().stringList(kLanguagesKey);
    if (!list || list->empty()) return {};
    return QString::fromStdString(list->front());
}

QString OrvoLanguages::tablePath(const QString& code) {
    // An installed viewer takes the tables installed beside it, so that a
    // packager can update a translation without rebuilding the program.
    const QString installed = QCoreApplication::applicationDirPath() +
                              QStringLiteral("/../share/tarvik/translations/tarvik_%1.qm").arg(code);
    if (QCoreApplication::instance() && QFile::exists(installed)) return installed;
    return QStringLiteral(":/i18n/tarvik_%1.qm").arg(code);
}

bool OrvoLanguages::hasTable(const QString& code) {
    return isPlausibleCode(code) && QFile::exists(tablePath(code));
}

QString OrvoLanguages::localized(const QString& key) const {
    const QTranslator* table = tables_->find(currentLanguageCode());
    if (!table) return key;
    QString text = table->translate(kTableContext, key.toUtf8().constData());
    return text.isEmpty() ? key : text;
}

QString OrvoLanguages::localized(const char* utf8Key) const {
    if (!utf8Key) return {};
    return localized(QString::fromUtf8(utf8Key));
}

QString OrvoLanguages::localized(const char* utf8Key, int n) const {
    if (!utf8Key) return {};
    const QTranslator* table = tables_->find(currentLanguageCode());
    QString text = table ? table->translate(kTableContext, utf8Key, nullptr, n) : QString();
    if (text.isEmpty()) text = QString::fromUtf8(utf8Key);
    return text.replace(QStringLiteral("%n"), QString::number(n));
}

}  // namespace tarvik
