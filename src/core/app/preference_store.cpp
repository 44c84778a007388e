#include "core/app/preference_store.h"

namespace tarvik {

namespace {
template <class Map>
auto lookup(const Map& m, const std::string& key) -> std::optional<typename Map::mapped_type> {
    auto it = m.find(key);
    if (it == m.end()) return std::nullopt;
    return it->second;
}
}  // namespace

std::optional<std::string> MemoryPreferenceStore::string(const std::string& key) const { return lookup(strings_, key); }
void MemoryPreferenceStore::setString(const std::string& key, const std::string& value) { strings_[key] = value; }
std::optional<std::vector<std::string>> MemoryPreferenceStore::stringList(const std::string& key) const {
    return lookup(lists_, key);
}
void MemoryPreferenceStore::setStringList(const std::string& key, const std::vector<std::string>& value) {
    lists_[key] = value;
}
std::optional<int> MemoryPreferenceStore::integer(const std::string& key) const { return lookup(ints_, key); }
void MemoryPreferenceStore::setInteger(const std::string& key, int value) { ints_[key] = value; }

}  // namespace tarvik
