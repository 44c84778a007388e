#pragma once
// The viewer's preferences live in the platform's defaults store; the core
// decides what to read and write through this small interface so that the
// rules can be checked without a desktop session.

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace tarvik {

class PreferenceStore {
public:
    virtual ~PreferenceStore() = default;
    virtual std::optional<std::string> string(const std::string& key) const = 0;
    virtual void setString(const std::string& key, const std::string& value) = 0;
    virtual std::optional<std::vector<std::string>> stringList(const std::string& key) const = 0;
    virtual void setStringList(const std::string& key, const std::vector<std::string>& value) = 0;
    // The value as a 32-bit integer; nothing when the key is absent.
    virtual std::optional<int> integer(const std::string& key) const = 0;
    virtual void setInteger(const std::string& key, int value) = 0;
    virtual void synchronize() = 0;
};

// An in-memory store for tests and for runs without a defaults store.
class MemoryPreferenceStore : public PreferenceStore {
public:
    std::optional<std::string> string(const std::string& key) const override;
    void setString(const std::string& key, const std::string& value) override;
    std::optional<std::vector<std::string>> stringList(const std::string& key) const override;
    void setStringList(const std::string& key, const std::vector<std::string>& value) override;
    std::optional<int> integer(const std::string& key) const override;
    void setInteger(const std::string& key, int value) override;
    void synchronize() override { ++syncCount; }

    int syncCount = 0;

private:
    std::map<std::string, std::string> strings_;
    std::map<std::string, std::vector<std::string>> lists_;
    std::map<std::string, int> ints_;
};

}  // namespace tarvik
