#include "ui/base/prefs/qsettings_store.h"

#include <QSettings>
#include <QStringList>

namespace tarvik {

namespace {
QSettings& settings() {
    static QSettings s(QStringLiteral("Tarvik"), QStringLiteral("Tarvik Viewer"));
    return s;
}
QString q(const std::string& s) { return QString::fromStdString(s); }
}  // namespace

QSettingsStore& QSettingsStore::shared() {
    static QSettingsStore store;
    return store;
}

std::optional<std::string> QSettingsStore::string(const std::string& key) const {
    QVariant v = settings().value(q(key));
    if (!v.isValid()) return std::nullopt;
    return v.toString().toStdString();
}

void QSettingsStore::setString(const std::string& key, const std::string& value) { settings().setValue(q(key), q(value)); }

std::optional<std::vector<std::string>> QSettingsStore::stringList(const std::string& key) const {
    QVariant v = settings().value(q(key));
    if (!v.isValid()) return std::nullopt;
    std::vector<std::string> out;
    for (const QString& s : v.toStringList()) out.push_back(s.toStdString());
    return out;
}

void QSettingsStore::setStringList(const std::string& key, const std::vector<std::string>& value) {
    QStringList l;
    for (const auto& s : value) l << q(s);
    settings().setValue(q(key), l);
}

std::optional<int> QSettingsStore::integer(const std::string& key) const {
    QVariant v = settings().value(q(key));
    if (!v.isValid()) return std::nullopt;
    return static_cast<int>(v.toLongLong());
}

void QSettingsStore::setInteger(const std::string& key, int value) { settings().setValue(q(key), value); }

void QSettingsStore::synchronize() { settings().sync(); }

}  // namespace tarvik
