#pragma once
// Deleting a clip from the list: the user is asked first, with the clip and
// its front/rear partner named; both go to the desktop's trash (on a card,
// the card's own trash folder) so that they can be restored; a clip that is
// playing is never deleted.

#include <QString>
#include <QStringList>
#include <functional>
#include <memory>
#include <string>

class QWidget;

namespace tarvik {

class ClipCatalogue;

class DeleteDialogs {
public:
    virtual ~DeleteDialogs() = default;
    // True when the user agrees to move `files` to the trash.
    virtual bool confirm(QWidget* parent, const QStringList& files) = 0;
    virtual void tell(QWidget* parent, const QString& message) = 0;
};

class QtDeleteDialogs : public DeleteDialogs {
public:
    bool confirm(QWidget* parent, const QStringList& files) override;
    void tell(QWidget* parent, const QString& message) override;
};

class ClipDeleter {
public:
    enum class Outcome { Trashed, Declined, Refused, Failed };
    using PlayingCheck = std::function<bool(const std::string& path)>;

    explicit ClipDeleter(std::unique_ptr<DeleteDialogs> dialogs = std::make_unique<QtDeleteDialogs>());

    void setPlayingCheck(PlayingCheck check) { playing_ = std::move(check); }
    void setDialogs(std::unique_ptr<DeleteDialogs> d) { if (d) dialogs_ = std::move(d); }

    // The clip of `row` and its partner, when the partner is there.
    static QStringList filesOf(const ClipCatalogue& catalogue, int row);
    // Asks, then moves the files to the trash. The caller rescans the list.
    Outcome deleteRow(QWidget* parent, const ClipCatalogue& catalogue, int row);
    // Where the files of the last deletion lie in the trash.
    const QStringList& lastTrashed() const { return lastTrashed_; }

private:
    std::unique_ptr<DeleteDialogs> dialogs_;
    PlayingCheck playing_;
    QStringList lastTrashed_;
};

}  // namespace tarvik
