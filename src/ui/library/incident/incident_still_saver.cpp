#include "ui/library/incident/incident_still_saver.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPointer>
#include <QStandardPaths>
#include <QThreadPool>
#include <algorithm>
#include <cmath>

#include "core/app/preference_store.h"
#include "core/library/incident/incident_exporter.h"
#include "core/library/incident/incident_still.h"
#include "ui/l10n/orvo_languages.h"
#include "ui/library/incident/incident_export_dialog.h"

namespace tarvik {

IncidentStillSaver::IncidentStillSaver(QWidget* window, PreferenceStore& store, QObject* parent)
    : QObject(parent), window_(window), store_(store) {
    chooser_ = [](QWidget* parent, const QString& suggested) {
        return QFileDialog::getSaveFileName(parent, tr_k("Save still of both cameras"), suggested, "PNG (*.png)");
    };
}

bool IncidentStillSaver::save(const IncidentSpan& span, double at) {
    if (saving_ || span.parts.empty()) return false;
    QString folder = QString::fromStdString(store_.string(IncidentExportDialog::kFolderKey).value_or(""));
    if (folder.isEmpty()) folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    QString name = QString::fromStdString(tripTimeText(std::int64_t(std::floor(at))));
    name.replace('-', "").replace(':', "").replace(' ', '_');
    QString path = chooser_(window_, QDir(folder).filePath("still_" + name + ".png"));
    if (path.isEmpty()) return false;
    if (!path.endsWith(".png", Qt::CaseInsensitive)) path += ".png";
    const std::string file = QFile::encodeName(path).toStdString();
    if (!IncidentExporter::destinationRefusal(span.root, QFile::encodeName(QFileInfo(path).absolutePath()).toStdString())
             .empty()) {
        auto* box = new QMessageBox(QMessageBox::Warning, QStringLiteral("Tarvik Viewer"),
                                    tr_k("This folder is on the memory card. Evidence is never written to the card "
                                         "it comes from: choose a folder on another disk."),
                                    QMessageBox::Ok, window_);
        box->setObjectName("incidentAlert");
        box->setAttribute(Qt::WA_DeleteOnClose);
        box->open();
        return false;
    }
    // Laid out as the last export was.
    IncidentStill still;
    layoutFromName(store_.string(IncidentExportDialog::kLayoutKey).value_or("side"), &still.video.layout);
    const bool rear = std::all_of(span.parts.begin(), span.parts.end(),
                                  [](const IncidentPart& p) { return !p.clip.partner.empty(); });
    if (!rear) still.video.layout = IncidentLayout::Front;
    still.overlay = store_.integer(IncidentExportDialog::kOverlayKey).value_or(1) != 0;
    still.overlayOptions.mph = store_.integer(IncidentExportDialog::kSpeedUnitKey).value_or(0) == 1;
    saving_ = true;
    QPointer<IncidentStillSaver> self(this);
    QThreadPool::globalInstance()->start([self, span, at, still, file, path] {
        std::string why;
        const bool ok = writeIncidentStill(span, at, still, file, &why);
        QMetaObject::invokeMethod(qApp, [self, ok, path, why = QString::fromStdString(why)] {
            if (!self) return;
            self->saving_ = false;
            emit self->saved(ok, path, why);
        });
    });
    return true;
}

}  // namespace tarvik
