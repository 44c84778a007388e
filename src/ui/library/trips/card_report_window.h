#pragma once
// The card report in a window of its own: a summary line (clips, trips, free
// space, settings files) and one row for each thing found. The check runs on a
// worker thread; the window says so until it is done.

#include <QDialog>

#include "core/library/check/card_report.h"

class QLabel;
class QTreeWidget;

namespace tarvik {

class CardReportWindow : public QDialog {
    Q_OBJECT
public:
    explicit CardReportWindow(QWidget* parent = nullptr);

    // Starts checking the card at root; showReport follows when done.
    void checkCard(const QString& root);
    void showReport(const CardReport& report);

    QTreeWidget* findingList() const { return list_; }
    QLabel* summaryLabel() const { return summary_; }
    QLabel* verdictLabel() const { return verdict_; }
    bool isChecking() const { return checking_; }

signals:
    void reportShown();

private:
    QLabel* title_;
    QLabel* summary_;
    QLabel* verdict_;
    QTreeWidget* list_;
    bool checking_ = false;
    int generation_ = 0;
};

// Words for a finding's kind, as the window lists them.
QString findingKindText(const std::string& kind);

}  // namespace tarvik
