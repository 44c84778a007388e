#include "ui/shell/clip_list_model.h"

#include <QApplication>
#include <QFont>
#include <algorithm>
#include <QColor>
#include <QFile>
#include <QPalette>

#include "core/library/clip_catalogue.h"

namespace tarvik {

ClipListModel::ClipListModel(const ClipCatalogue& catalogue, QObject* parent)
    : QAbstractTableModel(parent), catalogue_(catalogue) {}

int ClipListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : catalogue_.rowCount();
}

int ClipListModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : 1; }

QVariant ClipListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= catalogue_.rowCount()) return {};
    switch (role) {
    case Qt::DisplayRole: {
        // Names on a card are bytes; show what can be shown rather than fail.
        const QString name = QFile::decodeName(QByteArray::fromStdString(catalogue_.rowFileName(index.row())));
        return index.row() == playingRow() ? QString::fromUtf8("\u25B6 ") + name : name;
    }
    case Qt::FontRole: {
        if (index.row() != playingRow()) return {};
        QFont bold = QApplication::font();
        bold.setBold(true);
        return bold;
    }
    case Qt::ToolTipRole:
        return QFile::decodeName(QByteArray::fromStdString(catalogue_.pathAt(index.row())));
    case Qt::ForegroundRole:
        switch (catalogue_.rowCategory(index.row())) {
        case ClipRowCategory::Saved:
            return QColor(Qt::magenta);
        case ClipRowCategory::Option:
            return QColor(Qt::yellow);
        case ClipRowCategory::Normal:
            return QApplication::palette().color(QPalette::Text);
        }
        return {};
    default:
        return {};
    }
}

void ClipListModel::setPlayingClip(const QByteArray& clip) {
    if (clip == playing_) return;
    playing_ = clip;
    if (rowCount() > 0) emit dataChanged(index(0, 0), index(rowCount() - 1, 0));
}

int ClipListModel::playingRow() const {
    if (playing_.isEmpty()) return -1;
    const auto& list = catalogue_.filteredVideoFileList();
    const auto it = std::find(list.begin(), list.end(), playing_.toStdString());
    return it == list.end() ? -1 : static_cast<int>(it - list.begin());
}

void ClipListModel::reload() {
    beginResetModel();
    endResetModel();
    emit rowsAvailable(catalogue_.hasRows());
}

}  // namespace tarvik
