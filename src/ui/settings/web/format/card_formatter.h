#pragma once
// Erasing a memory card in place, behind an interface so that the flow around
// it can be driven by another formatter in tests.

#include <QString>

#include <optional>

#include "core/device/volume_list.h"

namespace tarvik {

// What the formatter knows of one mounted card.
struct CardVolume {
    QString mountPoint;
    QString device;      // e.g. "/dev/mmcblk0p1"
    QString objectPath;  // the formatter's own handle on the device
    QString fsType;      // kept when erasing, e.g. "vfat", "exfat"
    QString label;       // kept when erasing; may be empty
};

class CardFormatter {
public:
    virtual ~CardFormatter() = default;
    // Called on the interface thread before any question is asked: the card
    // mounted at `mount`, or none when the formatter does not know it or its
    // own account says the drive is not removable.
    virtual std::optional<CardVolume> inspect(const MountEntry& mount) = 0;
    // Called on a worker thread; blocks until done. True when the card was
    // erased with the same file-system type and label.
    virtual bool format(const CardVolume& volume) = 0;
    // Why the last inspect or format came to nothing, for the person who asked
    // (the service missing, the drive not removable, the card in use, ...);
    // empty when the formatter cannot tell. Read on the thread that called.
    virtual QString failureReason() const { return {}; }
};

}  // namespace tarvik
