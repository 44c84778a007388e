#include "ui/library/trips/trip_list_view.h"

#include <QApplication>
#include <QEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPointer>
#include <QTableView>

#include "core/library/trips/trip_route.h"
#include "core/library/trips/trip_scanner.h"
#include "ui/l10n/orvo_languages.h"
#include "ui/library/playback/card_reads.h"

namespace tarvik {

TripListView::TripListView(QTableView* clipList) : QTreeWidget(clipList->parentWidget()), clipList_(clipList) {
    setObjectName("tripListView");
    setColumnCount(5);
    setHeaderLabels({tr_k("Start"), tr_k("End"), tr_k("Time"), QStringLiteral("km"), QStringLiteral("km/h")});
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(0, QHeaderView::Stretch);
    for (int c = 1; c < 5; ++c) header()->setSectionResizeMode(c, QHeaderView::ResizeToContents);
    setFocusPolicy(Qt::ClickFocus);
    setGeometry(clipList->geometry());
    clipList->installEventFilter(this);
    hide();
    auto activate = [this](QTreeWidgetItem* item) {
        const int i = indexOfTopLevelItem(item);
        if (i >= 0 && i < int(trips_.size())) emit tripActivated(trips_[std::size_t(i)]);
    };
    connect(this, &QTreeWidget::itemDoubleClicked, this, activate);
    connect(this, &QTreeWidget::itemActivated, this, activate);
}

bool TripListView::eventFilter(QObject* watched, QEvent* event) {
    if (watched == clipList_ && (event->type() == QEvent::Resize || event->type() == QEvent::Move))
        setGeometry(clipList_->geometry());
    return QTreeWidget::eventFilter(watched, event);
}

void TripListView::showTrips(const std::string& root) {
    trips_ = root.empty() ? std::vector<Trip>{} : scanCardTrips(root, false);
    fill();
    show();
    raise();
    measuring_ = true;
    const int generation = ++generation_;
    QPointer<TripListView> self(this);
    std::vector<Trip> work = trips_;
    cardReads().start([self, work = std::move(work), generation]() mutable {
        for (Trip& t : work) measureTrip(t);
        QMetaObject::invokeMethod(qApp, [self, work = std::move(work), generation] {
            if (!self || self->generation_ != generation) return;
            self->trips_ = work;
            self->measuring_ = false;
            self->fill();
            emit self->measured();
        });
    });
}

void TripListView::fill() {
    clear();
    for (const Trip& t : trips_) {
        auto* item = new QTreeWidgetItem(this);
        const long s = long(t.seconds());
        item->setText(0, QString::fromStdString(tripTimeText(t.start)));
        item->setText(1, QString::fromStdString(tripTimeText(t.end)).mid(11));
        item->setText(2, QStringLiteral("%1:%2").arg(s / 60).arg(s % 60, 2, 10, QChar('0')));
        const bool known = !measuring_ && t.hasTelemetry;
        item->setText(3, known ? QString::number(t.distanceMetres / 1000.0, 'f', 2) : QStringLiteral("-"));
        item->setText(4, known ? QString::number(t.topSpeedKmh) : QStringLiteral("-"));
        for (int c = 2; c < 5; ++c) item->setTextAlignment(c, Qt::AlignRight | Qt::AlignVCenter);
        item->setToolTip(0, tr_k("%n clips", int(t.clips.size())) + "  " + QString::fromStdString(t.folder));
    }
}

}  // namespace tarvik
