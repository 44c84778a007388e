#pragma once
// The card's trips in place of its clips: start, end, duration, distance and
// top speed, one row a drive. It lies over the clip list, at the same place
// and size, and is shown instead of it on request. Distances need every
// clip's telemetry, so the rows are measured on a worker thread.

#include <QTreeWidget>
#include <vector>

#include "core/library/trips/trip.h"

class QTableView;

namespace tarvik {

class TripListView : public QTreeWidget {
    Q_OBJECT
public:
    explicit TripListView(QTableView* clipList);

    // Lists the trips of the card at root and shows the list.
    void showTrips(const std::string& root);
    const std::vector<Trip>& trips() const { return trips_; }
    bool isMeasuring() const { return measuring_; }

signals:
    // A row was double-clicked or Enter pressed on it.
    void tripActivated(const tarvik::Trip& trip);
    void measured();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fill();

    QTableView* clipList_;
    std::vector<Trip> trips_;
    bool measuring_ = false;
    int generation_ = 0;
};

}  // namespace tarvik
