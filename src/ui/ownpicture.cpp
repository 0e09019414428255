#include "ui/ownpicture.h"

#include <QPixmapCache>

#include "ui/qtext.h"

namespace tarvane {

QPixmap OwnPicture(const std::string& file, QSize room) {
    if (file.empty() || room.isEmpty()) return {};
    const QString key = QStringLiteral("%1|%2x%3").arg(QText(file)).arg(room.width()).arg(room.height());
    QPixmap picture;
    if (QPixmapCache::find(key, &picture)) return picture;
    if (QPixmap whole; whole.load(QText(file)))
        picture = whole.scaled(room, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    QPixmapCache::insert(key, picture);
    return picture;
}

}  // namespace tarvane
