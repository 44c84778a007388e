#pragma once
// The clip table's data: one row a clip of the filtered list, its file name,
// coloured by where the clip lies (saved by the viewer, extra camera, other).

#include <QAbstractTableModel>

namespace tarvik {

class ClipCatalogue;

class ClipListModel : public QAbstractTableModel {
    Q_OBJECT
public:
    explicit ClipListModel(const ClipCatalogue& catalogue, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

    // Call after the catalogue's filtered list changed.
    void reload();
    // The clip that plays stands out in the list (the file system's bytes; empty for none).
    void setPlayingClip(const QByteArray& clip);
    // Its row in the filtered list, -1 when it is not there.
    int playingRow() const;

signals:
    // Whether the list has rows, each time the table is reloaded: the remove
    // and save buttons follow it.
    void rowsAvailable(bool any);

private:
    const ClipCatalogue& catalogue_;
    QByteArray playing_;
};

}  // namespace tarvik
