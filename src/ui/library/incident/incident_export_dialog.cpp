#include "ui/library/incident/incident_export_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStandardItemModel>
#include <QStandardPaths>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>
#include <filesystem>

#include "core/app/preference_store.h"
#include "ui/l10n/orvo_languages.h"

namespace tarvik {

namespace {

// H.264 quality (CRF) of each choice, best first.
constexpr int kQualities[] = {18, 23, 28};

// "2026-11-21 10:00:02.4", to the tenth.
QString momentText(double t) {
    const auto whole = std::int64_t(std::floor(t));
    const int tenth = std::min(9, int(std::lround((t - double(whole)) * 10)));
    return QString::fromStdString(tripTimeText(whole)) + "." + QString::number(tenth);
}

// The incident folder's name: the in point to the second.
QString folderName(const IncidentSpan& span) {
    QString text = QString::fromStdString(tripTimeText(std::int64_t(std::floor(span.start()))));
    text.replace('-', "").replace(':', "").replace(' ', '_');
    return "incident_" + text;
}

}  // namespace

IncidentExportDialog::IncidentExportDialog(const IncidentSpan& span, PreferenceStore& store, QWidget* parent)
    : QDialog(parent),
      span_(span),
      store_(store),
      layout_(new QComboBox(this)),
      overlay_(new QCheckBox(tr_k("Time, speed, G values and position over the picture"), this)),
      routeInset_(new QCheckBox(tr_k("The route in a corner, with the car on it"), this)),
      quality_(new QComboBox(this)),
      destination_(new QLineEdit(this)),
      problem_(new QLabel(this)),
      export_(new QPushButton(tr_k("Export"), this)) {
    setObjectName("incidentExportDialog");
    setWindowTitle(tr_k("Export incident"));
    const bool rear = std::all_of(span.parts.begin(), span.parts.end(),
                                  [](const IncidentPart& p) { return !p.clip.partner.empty(); });
    const std::pair<IncidentLayout, const char*> layouts[] = {
        {IncidentLayout::Front, "Front camera only"},
        {IncidentLayout::Rear, "Rear camera only"},
        {IncidentLayout::Side, "Front and rear side by side"},
        {IncidentLayout::PictureInPicture, "Rear in a corner of the front"}};
    for (const auto& [layout, text] : layouts) {
        layout_->addItem(tr_k(text), int(layout));
        // A span with a clip of one camera only has no rear to show.
        if (!rear && layoutNeedsRear(layout))
            if (auto* model = qobject_cast<QStandardItemModel*>(layout_->model()))
                model->item(layout_->count() - 1)->setEnabled(false);
    }
    const char* qualities[] = {"High (larger file)", "Standard", "Compact (smaller file)"};
    for (int i = 0; i < 3; ++i) quality_->addItem(tr_k(qualities[i]), kQualities[i]);
    layout_->setObjectName("incidentLayout");
    overlay_->setObjectName("incidentOverlay");
    routeInset_->setObjectName("incidentRouteInset");
    // The inset is part of the overlay: without it there is nothing to draw on.
    connect(overlay_, &QCheckBox::toggled, routeInset_, &QWidget::setEnabled);
    quality_->setObjectName("incidentQuality");
    destination_->setObjectName("incidentDestination");
    problem_->setObjectName("incidentProblem");
    problem_->setWordWrap(true);
    problem_->setStyleSheet("color: #d03030;");
    problem_->hide();

    auto* spanLabel = new QLabel(QString("%1  \xE2\x80\x93  %2  (%3 s)")
                                     .arg(momentText(span.start()), momentText(span.start() + span.seconds()))
                                     .arg(span.seconds(), 0, 'f', 1),
                                 this);
    spanLabel->setObjectName("incidentSpanText");
    auto* choose = new QPushButton(tr_k("Choose..."), this);
    choose->setObjectName("incidentChooseFolder");
    connect(choose, &QPushButton::clicked, this, &IncidentExportDialog::chooseFolder);
    connect(destination_, &QLineEdit::textChanged, problem_, &QWidget::hide);
    auto* folderRow = new QHBoxLayout;
    folderRow->addWidget(destination_, 1);
    folderRow->addWidget(choose);

    auto* form = new QFormLayout;
    form->addRow(tr_k("Span"), spanLabel);
    form->addRow(tr_k("Layout"), layout_);
    form->addRow(tr_k("Overlay"), overlay_);
    form->addRow(QString(), routeInset_);
    form->addRow(tr_k("Quality"), quality_);
    form->addRow(tr_k("Destination"), folderRow);
    auto* buttons = new QDialogButtonBox(this);
    buttons->addButton(export_, QDialogButtonBox::AcceptRole);
    buttons->addButton(QDialogButtonBox::Cancel)->setText(tr_k("Cancel"));
    export_->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* column = new QVBoxLayout(this);
    column->addLayout(form);
    column->addWidget(problem_);
    column->addWidget(buttons);
    setMinimumWidth(560);
    restore();
}

void IncidentExportDialog::restore() {
    const QString layout = QString::fromStdString(store_.string(kLayoutKey).value_or("side"));
    IncidentLayout chosen = IncidentLayout::Side;
    layoutFromName(layout.toStdString(), &chosen);
    int row = layout_->findData(int(chosen));
    // A remembered rear layout with no rear here: the front alone.
    if (auto* model = qobject_cast<QStandardItemModel*>(layout_->model()); model && !model->item(row)->isEnabled())
        row = layout_->findData(int(IncidentLayout::Front));
    layout_->setCurrentIndex(row);
    overlay_->setChecked(store_.integer(kOverlayKey).value_or(1) != 0);
    routeInset_->setChecked(store_.integer(kRouteInsetKey).value_or(0) != 0);
    routeInset_->setEnabled(overlay_->isChecked());
    const int q = quality_->findData(store_.integer(kQualityKey).value_or(kQualities[1]));
    quality_->setCurrentIndex(q < 0 ? 1 : q);
    QString folder = QString::fromStdString(store_.string(kFolderKey).value_or(""));
    if (folder.isEmpty()) folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    destination_->setText(QDir::toNativeSeparators(folder));
}

void IncidentExportDialog::remember() {
    store_.setString(kLayoutKey, layoutName(choice_.video.layout));
    store_.setInteger(kOverlayKey, choice_.overlay ? 1 : 0);
    store_.setInteger(kRouteInsetKey, routeInset_->isChecked() ? 1 : 0);
    store_.setInteger(kQualityKey, choice_.video.crf);
    store_.setString(kFolderKey, QDir::fromNativeSeparators(destination_->text().trimmed()).toStdString());
    store_.synchronize();
}

void IncidentExportDialog::chooseFolder() {
    const QString folder = QFileDialog::getExistingDirectory(this, tr_k("Destination"), destination_->text());
    if (!folder.isEmpty()) destination_->setText(QDir::toNativeSeparators(folder));
}

void IncidentExportDialog::accept() {
    auto refuse = [this](const QString& why) {
        problem_->setText(why);
        problem_->show();
    };
    const QString destination = QDir::fromNativeSeparators(destination_->text().trimmed());
    if (destination.isEmpty()) return refuse(tr_k("Choose the folder the incident goes into."));
    const std::string folder = QFile::encodeName(destination).toStdString();
    if (!IncidentExporter::destinationRefusal(span_.root, folder).empty())
        return refuse(tr_k("This folder is on the memory card. Evidence is never written to the card it comes "
                           "from: choose a folder on another disk."));
    // Never into an earlier incident: a second export of the same moment
    // gets a folder of its own.
    namespace fs = std::filesystem;
    const std::string name = folderName(span_).toStdString();
    fs::path target = fs::path(folder) / name;
    std::error_code ec;
    for (int n = 2; fs::exists(target, ec); ++n) target = fs::path(folder) / (name + "-" + std::to_string(n));
    choice_.folder = target.string();
    choice_.video.layout = IncidentLayout(layout_->currentData().toInt());
    choice_.video.crf = quality_->currentData().toInt();
    choice_.overlay = overlay_->isChecked();
    choice_.overlayOptions.routeInset = choice_.overlay && routeInset_->isChecked();
    remember();
    QDialog::accept();
}

}  // namespace tarvik
