#pragma once
// The memory card picker: the removable volumes that are mounted, the last
// one chosen by default. OK stays disabled while there is none.

#include <optional>
#include <string>
#include <vector>

#include "ui/device/picker_pane.h"

namespace tarvik {

class SelectFlashMemoryViewController : public PickerPane {
    Q_OBJECT
public:
    explicit SelectFlashMemoryViewController(QObject* parent = nullptr);

    // Rebuilds the list from the mounted volumes (called by the constructor).
    void loadView();
    const std::vector<std::string>& diskVolumes() const { return diskVolumes_; }
    // The chosen volume; nothing when none is selected.
    std::optional<std::string> selectedFlashMeoryUrl() const;

private:
    std::vector<std::string> diskVolumes_;
};

}  // namespace tarvik
