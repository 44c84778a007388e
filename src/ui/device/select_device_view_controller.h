#pragma once
// The model picker, for a card that does not say which camera wrote it:
// item n of the list is model type n.

#include <cstdint>

#include "ui/device/picker_pane.h"

namespace tarvik {

class SelectDeviceViewController : public PickerPane {
    Q_OBJECT
public:
    explicit SelectDeviceViewController(QObject* parent = nullptr);

    void loadView();
    // The selected item's index, -1 for none.
    std::int64_t selectedModelType() const;
};

}  // namespace tarvik
