#include "ui/library/incident/incident_features.h"

#include <QApplication>
#include <QCoreApplication>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPainter>
#include <QSlider>
#include <QToolButton>

#include "core/library/trips/trip_builder.h"
#include "ui/base/prefs/notification_center.h"
#include "ui/base/prefs/qsettings_store.h"
#include "ui/l10n/orvo_languages.h"
#include "ui/library/incident/incident_export_dialog.h"
#include "ui/library/incident/incident_export_progress.h"
#include "ui/library/incident/incident_span_choice.h"
#include "ui/library/incident/incident_still_saver.h"

namespace tarvik {

namespace {

// Finding a span reads the headers of the drive's clips, which on a slow card
// takes a moment: the pointer says so meanwhile.
template <typename F>
auto busy(F&& find) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
    auto found = find();
    QApplication::restoreOverrideCursor();
    return found;
}

}  // namespace

namespace {

// A bracket and the band it opens (in) or closes (out), in the band's colour.
QIcon markIcon(bool in) {
    QPixmap pixmap(40, 40);
    pixmap.fill(Qt::transparent);
    QPainter p(&pixmap);
    p.fillRect(in ? QRect(12, 14, 22, 12) : QRect(6, 14, 22, 12), QColor(72, 220, 120, 170));
    const int x = in ? 10 : 28;
    p.fillRect(QRect(x, 6, 3, 28), Qt::white);
    p.fillRect(in ? QRect(x, 6, 8, 3) : QRect(x - 5, 6, 8, 3), Qt::white);
    p.fillRect(in ? QRect(x, 31, 8, 3) : QRect(x - 5, 31, 8, 3), Qt::white);
    return QIcon(pixmap);
}

QToolButton* markButton(QWidget* toolbar, bool in, int x) {
    auto* b = new QToolButton(toolbar);
    b->setObjectName(in ? "markInButton" : "markOutButton");
    b->setIcon(markIcon(in));
    b->setIconSize(QSize(24, 24));
    b->setAutoRaise(true);
    b->setFocusPolicy(Qt::NoFocus);
    b->setGeometry(x, 24, 32, 32);
    b->setEnabled(false);
    b->show();
    return b;
}

}  // namespace

IncidentFeatures::IncidentFeatures(QSlider* slider, QWidget* toolbar, QWidget* window,
                                   IncidentMarks::PlayingSource playing, CardRoot cardRoot, QObject* parent)
    : QObject(parent),
      window_(window),
      cardRoot_(std::move(cardRoot)),
      marks_(new IncidentMarks(slider, std::move(playing), this)),
      // In the free stretch of the tool bar after the full-screen button.
      markIn_(markButton(toolbar, true, 612)),
      markOut_(markButton(toolbar, false, 648)),
      still_(new IncidentStillSaver(window, QSettingsStore::shared(), this)) {
    connect(still_, &IncidentStillSaver::saved, this, [this](bool ok, const QString& path, const QString& why) {
        if (!ok) alert(tr_k("The still could not be saved: %1").arg(why));
    });
    connect(markIn_, &QToolButton::clicked, marks_, &IncidentMarks::markIn);
    connect(markOut_, &QToolButton::clicked, marks_, &IncidentMarks::markOut);
    connect(marks_, &IncidentMarks::playingChanged, this, &IncidentFeatures::updateButtons);
    // Points of another card mean nothing on this one.
    connect(marks_, &IncidentMarks::marksChanged, this, [this] { markedRoot_ = cardRoot_(); });
    connect(marks_, &IncidentMarks::playingChanged, this, [this] {
        if ((marks_->inPoint() || marks_->outPoint()) && cardRoot_() != markedRoot_) marks_->clear();
    });
    connect(&NotificationCenter::shared(), &NotificationCenter::refreshLanguage, this, &IncidentFeatures::applyTexts);
    applyTexts();
}

IncidentMarks::Playing IncidentFeatures::playingAt(const std::string& clip, double seconds, double length) {
    IncidentMarks::Playing p;
    const auto slash = clip.find_last_of('/');
    const auto start = clipStartFromName(slash == std::string::npos ? clip : clip.substr(slash + 1));
    if (clip.empty() || !start) return p;
    p.clip = clip;
    p.start = *start;
    p.seconds = seconds;
    p.length = length;
    return p;
}

IncidentExportDialog* IncidentFeatures::dialog() const { return dialog_; }

IncidentExportProgress* IncidentFeatures::progress() const { return progress_; }

void IncidentFeatures::applyTexts() {
    markIn_->setToolTip(tr_k("Mark the start of an incident") + " (I)");
    markOut_->setToolTip(tr_k("Mark the end of an incident") + " (O)");
}

void IncidentFeatures::updateButtons() {
    const bool on = !marks_->playing().clip.empty();
    markIn_->setEnabled(on);
    markOut_->setEnabled(on);
}

QMenu* IncidentFeatures::addMenuTo(QMenuBar* bar) {
    QMenu* menu = bar->addMenu(QString());
    menu->setObjectName("incidentMenu");
    auto title = [menu] { menu->setTitle(tr_k("Incident")); };
    title();
    connect(&NotificationCenter::shared(), &NotificationCenter::refreshLanguage, menu, title);
    connect(menu, &QMenu::aboutToShow, this, [this, menu] {
        menu->clear();
        const bool playing = !marks_->playing().clip.empty();
        // The keys are those of the window's key table, named here only.
        menu->addAction(tr_k("Mark the start of an incident") + "\tI", marks_, &IncidentMarks::markIn)
            ->setEnabled(playing);
        menu->addAction(tr_k("Mark the end of an incident") + "\tO", marks_, &IncidentMarks::markOut)
            ->setEnabled(playing);
        menu->addAction(tr_k("Clear the marks"), marks_, &IncidentMarks::clear)
            ->setEnabled(marks_->inPoint() || marks_->outPoint());
        menu->addSeparator();
        menu->addAction(tr_k("Export incident..."), this, &IncidentFeatures::exportIncident)
            ->setEnabled(playing || marks_->hasSpan());
        menu->addAction(tr_k("Save still of both cameras..."), this, &IncidentFeatures::saveStill)
            ->setEnabled(playing && !still_->isSaving());
    });
    return menu;
}

void IncidentFeatures::addCommands(QMenu& menu, const Trip* trip, const std::vector<std::string>& selectedClips) {
    if (trip) {
        const Trip whole = *trip;
        menu.addAction(tr_k("Export incident..."), this, [this, whole] {
            if (const auto span = spanOfTrip(cardRoot_(), whole)) exportSpan(*span);
            else alert(tr_k("This drive cannot be exported: the length of its clips is unknown."));
        });
        return;
    }
    const std::vector<std::string> clips = selectedClips;
    menu.addAction(tr_k("Export incident..."), this, [this, clips] {
        if (const auto span = busy([&] { return spanOfClips(cardRoot_(), clips); })) exportSpan(*span);
        else alert(tr_k("The selected clips are not one stretch of a drive, or their length is unknown."));
    })->setEnabled(!clips.empty());
}

bool IncidentFeatures::exportIncident() {
    const std::string root = cardRoot_();
    if (marks_->hasSpan()) {
        std::string why;
        const auto span = busy([&] { return findIncidentSpan(root, *marks_->inPoint(), *marks_->outPoint(), true, &why); });
        if (!span) {
            alert(tr_k("The marked span cannot be exported: %1").arg(QString::fromStdString(why)));
            return false;
        }
        return exportSpan(*span);
    }
    const IncidentMarks::Playing p = marks_->playing();
    const auto span = p.clip.empty() ? std::nullopt : busy([&] { return spanOfClips(root, {p.clip}); });
    if (!span) {
        alert(tr_k("Play a clip, or mark the start and the end of an incident, first."));
        return false;
    }
    return exportSpan(*span);
}

bool IncidentFeatures::saveStill() {
    const IncidentMarks::Playing p = marks_->playing();
    const auto span = p.clip.empty() ? std::nullopt : busy([&] { return spanOfClips(cardRoot_(), {p.clip}); });
    if (!span) {
        alert(tr_k("Play a clip first."));
        return false;
    }
    return still_->save(*span, double(p.start) + p.seconds);
}

bool IncidentFeatures::exportSpan(const IncidentSpan& span) {
    if (dialog_ || (progress_ && progress_->isRunning())) return false;
    dialog_ = new IncidentExportDialog(span, QSettingsStore::shared(), window_);
    dialog_->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog_, &QDialog::accepted, this, [this, span] { startExport(span); });
    dialog_->open();
    return true;
}

void IncidentFeatures::startExport(const IncidentSpan& span) {
    IncidentExport to = dialog_->choice();
    to.programVersion = QCoreApplication::applicationVersion().toStdString();
    // The still shows what is on the screen, when that lies in the span.
    const IncidentMarks::Playing p = marks_->playing();
    if (!p.clip.empty()) to.stillAt = double(p.start) + p.seconds;
    to.overlayOptions.mph = QSettingsStore::shared().integer(IncidentExportDialog::kSpeedUnitKey).value_or(0) == 1;
    if (progress_) progress_->deleteLater();
    progress_ = new IncidentExportProgress(span, std::move(to), window_);
    progress_->setAttribute(Qt::WA_DeleteOnClose);
    progress_->setWindowModality(Qt::WindowModal);
    progress_->show();
    progress_->start();
}

void IncidentFeatures::alert(const QString& text) {
    auto* box = new QMessageBox(QMessageBox::Warning, QStringLiteral("Tarvik Viewer"), text, QMessageBox::Ok, window_);
    box->setObjectName("incidentAlert");
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowModality(Qt::WindowModal);
    box->open();
}

}  // namespace tarvik
