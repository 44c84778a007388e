#pragma once
// The card formatter of a Linux desktop: UDisks2 on the system bus. The block
// device is the one mounted at the card's mount point; it is unmounted,
// formatted with its own file-system type and label, and mounted again.
//
// UDisks2 also authorises the user (polkit), so the viewer needs no
// privileges of its own and never touches the raw device.

#include <QDBusConnection>

#include "ui/settings/web/format/card_formatter.h"

namespace tarvik {

class UDisks2CardFormatter : public CardFormatter {
public:
    // `bus` is where UDisks2 lives: the system bus, or a private bus in tests.
    explicit UDisks2CardFormatter(QDBusConnection bus = QDBusConnection::systemBus());

    std::optional<CardVolume> inspect(const MountEntry& mount) override;
    bool format(const CardVolume& volume) override;
    // In the current language; call it on the interface thread.
    QString failureReason() const override;

    // A text of the language tables, and what it says in place of %1.
    struct Reason {
        const char* key = nullptr;
        QString detail;
    };

    // The longest a single UDisks2 call may take; erasing a large card is slow.
    static constexpr int kFormatTimeoutMs = 30 * 60 * 1000;

protected:
    // UDisks2's own account of the drive (object path `drive`, "/" when the
    // block device has none, as for a loop device): removable or with
    // removable media.
    virtual bool driveIsRemovable(const QString& drive);

private:
    QDBusConnection bus_;
    Reason reason_;
};

}  // namespace tarvik
