#include "ui/settings/web/format/udisks2_card_formatter.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QDir>
#include <QVariantMap>

#include "ui/l10n/orvo_languages.h"

namespace tarvik {

namespace {

const QString kService = QStringLiteral("org.freedesktop.UDisks2");
const QString kManagerPath = QStringLiteral("/org/freedesktop/UDisks2/Manager");
const QString kManagerIface = QStringLiteral("org.freedesktop.UDisks2.Manager");
const QString kBlockIface = QStringLiteral("org.freedesktop.UDisks2.Block");
const QString kFsIface = QStringLiteral("org.freedesktop.UDisks2.Filesystem");
const QString kDriveIface = QStringLiteral("org.freedesktop.UDisks2.Drive");
const QString kPropsIface = QStringLiteral("org.freedesktop.DBus.Properties");
constexpr int kQuickCallMs = 10 * 1000;

// UDisks2 hands paths over as NUL-terminated byte strings.
QString bytesToPath(QByteArray b) {
    while (b.endsWith('\0')) b.chop(1);
    return QString::fromLocal8Bit(b);
}

QString cleanPath(const QString& p) {
    QString c = QDir::cleanPath(p);
    return c.isEmpty() ? p : c;
}

class Bus {
public:
    explicit Bus(QDBusConnection& c) : c_(c) {}

    QDBusMessage call(const QString& path, const QString& iface, const QString& method, const QVariantList& args,
                      int timeoutMs = kQuickCallMs) {
        QDBusMessage m = QDBusMessage::createMethodCall(kService, path, iface, method);
        m.setArguments(args);
        // The user may have to authorise formatting in a polkit dialog.
        m.setInteractiveAuthorizationAllowed(true);
        return c_.call(m, QDBus::Block, timeoutMs);
    }
    static bool ok(const QDBusMessage& r) { return r.type() == QDBusMessage::ReplyMessage; }

    QVariant property(const QString& path, const QString& iface, const QString& name) {
        QDBusMessage r = call(path, kPropsIface, QStringLiteral("Get"), {iface, name});
        if (!ok(r) || r.arguments().isEmpty()) return {};
        return r.arguments().first().value<QDBusVariant>().variant();
    }

    QStringList mountPoints(const QString& path) {
        QStringList out;
        QVariant v = property(path, kFsIface, QStringLiteral("MountPoints"));
        if (!v.canConvert<QDBusArgument>()) return out;
        const QDBusArgument arg = v.value<QDBusArgument>();
        arg.beginArray();
        while (!arg.atEnd()) {
            QByteArray b;
            arg >> b;
            out << cleanPath(bytesToPath(b));
        }
        arg.endArray();
        return out;
    }

private:
    QDBusConnection& c_;
};

constexpr const char* kNoService = "The disk service (UDisks2) does not answer.";

// UDisks2's answer in the user's words where it is a common one, else its own.
UDisks2CardFormatter::Reason reasonOf(const QDBusMessage& reply) {
    const QString name = reply.errorName();
    if (name.endsWith(QLatin1String(".DeviceBusy")) || name.endsWith(QLatin1String(".Busy")))
        return {"The card is in use by another program.", {}};
    if (name.contains(QLatin1String("NotAuthorized")) || name.endsWith(QLatin1String(".AccessDenied")))
        return {"Formatting the card was not authorised.", {}};
    if (name.endsWith(QLatin1String(".ServiceUnknown")) || name.endsWith(QLatin1String(".NoReply")))
        return {kNoService, {}};
    return {"The disk service (UDisks2) said: %1", reply.errorMessage().isEmpty() ? name : reply.errorMessage()};
}

}  // namespace

UDisks2CardFormatter::UDisks2CardFormatter(QDBusConnection bus) : bus_(std::move(bus)) {}

std::optional<CardVolume> UDisks2CardFormatter::inspect(const MountEntry& mount) {
    reason_ = {kNoService, {}};
    if (!bus_.isConnected()) return std::nullopt;
    Bus bus(bus_);
    const QString device = QString::fromStdString(mount.source);
    const QString mountPoint = cleanPath(QString::fromStdString(mount.mountPoint));
    QDBusMessage r = bus.call(kManagerPath, kManagerIface, QStringLiteral("ResolveDevice"),
                              {QVariantMap{{QStringLiteral("path"), device}}, QVariantMap{}});
    if (!Bus::ok(r) || r.arguments().isEmpty()) {
        reason_ = reasonOf(r);
        return std::nullopt;
    }
    reason_ = {"The disk service (UDisks2) does not know the device mounted here.", {}};
    const auto objects = qdbus_cast<QList<QDBusObjectPath>>(r.arguments().first());
    for (const QDBusObjectPath& o : objects) {
        const QString path = o.path();
        // The device must be the one mounted there now, not merely share its name.
        if (!bus.mountPoints(path).contains(mountPoint)) continue;
        CardVolume v;
        v.mountPoint = mountPoint;
        v.device = device;
        v.objectPath = path;
        v.fsType = bus.property(path, kBlockIface, QStringLiteral("IdType")).toString();
        v.label = bus.property(path, kBlockIface, QStringLiteral("IdLabel")).toString();
        const QString drive = bus.property(path, kBlockIface, QStringLiteral("Drive")).value<QDBusObjectPath>().path();
        if (v.fsType.isEmpty()) {
            reason_ = {"The disk service (UDisks2) finds no file system on the card.", {}};
            return std::nullopt;
        }
        if (!driveIsRemovable(drive)) {
            reason_ = {"The disk service (UDisks2) says the card's drive is not removable.", {}};
            return std::nullopt;
        }
        reason_ = {};
        return v;
    }
    return std::nullopt;
}

QString UDisks2CardFormatter::failureReason() const {
    if (!reason_.key) return {};
    const QString text = tr_k(reason_.key);
    return reason_.detail.isEmpty() ? text : text.arg(reason_.detail);
}

bool UDisks2CardFormatter::driveIsRemovable(const QString& drive) {
    if (drive.isEmpty() || drive == QLatin1String("/")) return false;
    Bus bus(bus_);
    return bus.property(drive, kDriveIface, QStringLiteral("Removable")).toBool() ||
           bus.property(drive, kDriveIface, QStringLiteral("MediaRemovable")).toBool();
}

bool UDisks2CardFormatter::format(const CardVolume& v) {
    reason_ = {kNoService, {}};
    if (!bus_.isConnected() || v.objectPath.isEmpty() || v.fsType.isEmpty()) return false;
    Bus bus(bus_);
    if (!bus.mountPoints(v.objectPath).isEmpty()) {
        const QDBusMessage unmounted = bus.call(v.objectPath, kFsIface, QStringLiteral("Unmount"), {QVariantMap{}});
        if (!Bus::ok(unmounted)) {
            reason_ = reasonOf(unmounted);
            return false;  // something still holds the card: nothing was erased
        }
    }
    QVariantMap options;
    if (!v.label.isEmpty()) options.insert(QStringLiteral("label"), v.label);
    const QDBusMessage reply =
        bus.call(v.objectPath, kBlockIface, QStringLiteral("Format"), {v.fsType, options}, kFormatTimeoutMs);
    const bool formatted = Bus::ok(reply);
    reason_ = formatted ? Reason{} : reasonOf(reply);
    // Mount again whatever happened, so that a failed erase does not also take
    // the card away; a desktop automounter may have been quicker.
    if (bus.mountPoints(v.objectPath).isEmpty()) {
        QDBusMessage m = bus.call(v.objectPath, kFsIface, QStringLiteral("Mount"), {QVariantMap{}});
        if (!Bus::ok(m) && !m.errorName().endsWith(QLatin1String("AlreadyMounted"))) {
            if (!reason_.key) reason_ = reasonOf(m);
            return false;
        }
    }
    return formatted;
}

}  // namespace tarvik
