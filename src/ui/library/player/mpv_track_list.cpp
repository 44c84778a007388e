#include "ui/library/player/mpv_track_list.h"

#include <QString>
#include <mpv/client.h>

namespace tarvik {

QSize videoTrackSize(const mpv_node& list, bool* anyVideo) {
    QSize size;
    if (list.format != MPV_FORMAT_NODE_ARRAY) return size;
    for (int i = 0; i < list.u.list->num; ++i) {
        const mpv_node& t = list.u.list->values[i];
        if (t.format != MPV_FORMAT_NODE_MAP) continue;
        QString type;
        bool selected = false, image = false;
        qint64 w = 0, h = 0;
        for (int k = 0; k < t.u.list->num; ++k) {
            const char* key = t.u.list->keys[k];
            const mpv_node& v = t.u.list->values[k];
            if (!qstrcmp(key, "type") && v.format == MPV_FORMAT_STRING) type = QString::fromUtf8(v.u.string);
            else if (!qstrcmp(key, "selected") && v.format == MPV_FORMAT_FLAG) selected = v.u.flag;
            else if (!qstrcmp(key, "albumart") && v.format == MPV_FORMAT_FLAG) image = v.u.flag;
            else if (!qstrcmp(key, "demux-w") && v.format == MPV_FORMAT_INT64) w = v.u.int64;
            else if (!qstrcmp(key, "demux-h") && v.format == MPV_FORMAT_INT64) h = v.u.int64;
        }
        if (type != "video" || image) continue;
        *anyVideo = true;
        if (selected && size.isEmpty() && w > 0 && h > 0) size = QSize(int(w), int(h));
    }
    return size;
}

}  // namespace tarvik
