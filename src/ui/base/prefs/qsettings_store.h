#pragma once
// The viewer's defaults store: QSettings of organisation "Tarvik", application
// "Tarvik Viewer", under the keys the viewer has always used.

#include "core/app/preference_store.h"

namespace tarvik {

class QSettingsStore : public PreferenceStore {
public:
    static QSettingsStore& shared();

    std::optional<std::string> string(const std::string& key) const override;
    void setString(const std::string& key, const std::string& value) override;
    std::optional<std::vector<std::string>> stringList(const std::string& key) const override;
    void setStringList(const std::string& key, const std::vector<std::string>& value) override;
    std::optional<int> integer(const std::string& key) const override;
    void setInteger(const std::string& key, int value) override;
    void synchronize() override;
};

}  // namespace tarvik
