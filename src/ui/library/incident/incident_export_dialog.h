#pragma once
// The choices of an incident export: layout, overlay, quality and the folder
// the incident folder goes into. A folder on the card is refused here, before
// anything runs. The last choices come back the next time.

#include <QDialog>

#include "core/library/incident/incident_exporter.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace tarvik {

class PreferenceStore;

class IncidentExportDialog : public QDialog {
    Q_OBJECT
public:
    IncidentExportDialog(const IncidentSpan& span, PreferenceStore& store, QWidget* parent = nullptr);

    // The export as chosen (its folder inside the destination, named after
    // the in point); valid once the dialog was accepted.
    const IncidentExport& choice() const { return choice_; }
    QComboBox* layoutBox() const { return layout_; }
    QCheckBox* overlayBox() const { return overlay_; }
    QCheckBox* routeInsetBox() const { return routeInset_; }
    QComboBox* qualityBox() const { return quality_; }
    QLineEdit* destinationEdit() const { return destination_; }
    QLabel* problemLabel() const { return problem_; }
    QPushButton* exportButton() const { return export_; }

    void accept() override;

    // The store's keys of the last choices.
    static constexpr const char* kLayoutKey = "IncidentExportLayout";
    static constexpr const char* kOverlayKey = "IncidentExportOverlay";
    static constexpr const char* kRouteInsetKey = "IncidentExportRouteInset";
    static constexpr const char* kQualityKey = "IncidentExportQuality";
    static constexpr const char* kFolderKey = "IncidentExportFolder";
    // The dashboard's speed unit, which the overlay follows: 1 is miles per hour.
    static constexpr const char* kSpeedUnitKey = "OrvoViewerSpeedUnit";

private:
    void chooseFolder();
    void restore();
    void remember();

    IncidentSpan span_;
    PreferenceStore& store_;
    IncidentExport choice_;
    QComboBox* layout_;
    QCheckBox* overlay_;
    QCheckBox* routeInset_;
    QComboBox* quality_;
    QLineEdit* destination_;
    QLabel* problem_;
    QPushButton* export_;
};

}  // namespace tarvik
