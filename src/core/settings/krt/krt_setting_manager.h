#pragma once
// SETTING/blackbox.cfg of the KRT family (the Q260): "[section]" headings and
// key=value lines joined by "\r\n". The file is never parsed into a record:
// it is kept as its lines so that comments, unknown keys and their order
// survive a load and a save untouched. A key is found by prefix ("front_led=")
// on the whole line, first match wins, sections are not consulted.
//
// The card's folder and model type come from the shared M420SettingManager.

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvik {

class KRTSettingManager {
public:
    static KRTSettingManager& SharedKRTSettingManager();

    // Three presets, each from "continuous", "event", "park", "manual" to a
    // percentage text; every preset adds up to 95.
    static const std::vector<std::map<std::string, std::string>>& memoryPartitionRatiosArray();
    // Recording kind of the presets -> its key ("continuous" -> "const=").
    static const std::map<std::string, std::string>& memoryPartitionKeys();

    // The factory file `default_Q260.cfg`. The interface layer hands in the
    // text of its resource; without it the file is looked for beside the
    // program (settings/default_Q260.cfg next to it or up to three folders up,
    // which covers test programs in the build tree).
    static void setFactoryDefaultsText(std::optional<std::string> text);
    static std::optional<std::string> factoryDefaultsText();

    std::vector<std::string>& linedSettings() { return linedSettings_; }
    const std::vector<std::string>& linedSettings() const { return linedSettings_; }
    void setLinedSettings(std::vector<std::string> lines) { linedSettings_ = std::move(lines); }

    // The card's blackbox.cfg, else the factory file.
    void loadData();
    // The factory file, only when the model type is 6 (Q260).
    void loadDefaultValue();
    void loadDefaultData_Q260();
    // Writes the lines atomically under the card's folder; raises the
    // memory-card alert and returns false when there is no card or it fails.
    bool saveData();

    // Removes the first "year=", "month=", "day=", "hour=", "min=", "sec=" line.
    void removeTimeDateDelimiters();
    // Inserts the lines after the first "set=" line, or after the file's first
    // line when there is none (appended to an empty list).
    void addTimeDateDelimiters(const std::vector<std::string>& lines);
    // The six clock lines for a date, in order.
    static std::vector<std::string> clockLines(int year, int month, int day, int hour, int minute,
                                               int second);

    // Replaces the first line beginning with key by key + value; a missing key
    // is never added. True when a line was replaced.
    bool setValueForKey(std::string_view key, std::string_view value);
    // The text after the key on its first line; nothing when no line has it.
    std::optional<std::string> valueForKey(std::string_view key) const;
    // The value's leading integer (0 when there is none or no line).
    int intValueForKey(std::string_view key) const;
    // Index of the first line beginning with prefix, or -1.
    int indexOfLineWithPrefix(std::string_view prefix) const;

    // Writes preset 0..2 into the four partition lines.
    void applyMemoryPartitionPreset(int preset);
    // The preset equal to the four partition values, or -1.
    int currentMemoryPartitionPreset() const;

    // Text <-> lines: blanks and tabs trimmed at both ends of the whole text,
    // then split at every "\r\n"; joined with "\r\n" and no final line end.
    static std::vector<std::string> splitLines(std::string_view text);
    static std::string joinLines(const std::vector<std::string>& lines);

private:
    std::vector<std::string> linedSettings_;
};

}  // namespace tarvik
