#include "window/widgets/picture_store.h"

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QImageReader>
#include <QPainter>

#include <cmath>

namespace tarnel {

namespace {

constexpr int roundsKept = 2;

QString withSlashes(QString name) {
    return name.replace('\\', '/');
}

double wholeDevicePixels(double length, double ratio) {
    return std::round(length * ratio) / ratio;
}

} // namespace

PictureStore::PictureStore(const QString& picturesFolder) : folder(withSlashes(picturesFolder)) {}

QPixmap PictureStore::scaled(const QString& name, QSize devicePixels) {
    if (devicePixels.isEmpty() || missing.contains(name))
        return {};
    const Key key(name, devicePixels.width(), devicePixels.height());
    auto found = pictures.find(key);
    if (found == pictures.end()) {
        QPixmap pixmap = load(name, devicePixels);
        if (pixmap.isNull()) {
            missing.insert(name, true);
            if (onMissing)
                onMissing(name);
            return {};
        }
        found = pictures.emplace(key, Kept{std::move(pixmap), sizeRound}).first;
    }
    found->second.lastShown = sizeRound;
    return found->second.pixmap;
}

void PictureStore::sizesChanged() {
    ++sizeRound;
    std::erase_if(pictures, [this](const auto& entry) {
        return entry.second.lastShown < sizeRound - roundsKept;
    });
}

QPixmap PictureStore::load(const QString& name, QSize devicePixels) {
    const QImage image = source(name, devicePixels);
    if (image.isNull())
        return {};
    return QPixmap::fromImage(
        image.scaled(devicePixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

QImage PictureStore::source(const QString& name, QSize devicePixels) {
    const QString file = fileOf(name);
    if (file.isEmpty())
        return {};
    const QFileInfo info(file);
    QImageReader small(info.dir().filePath("small/" + info.fileName()));
    const QSize size = small.size();
    if (size.width() >= devicePixels.width() && size.height() >= devicePixels.height())
        return small.read();
    return QImage(file);
}

QString PictureStore::fileOf(const QString& name) {
    const QString path = withSlashes(name);
    const QFileInfo info(path);
    const QString lowerName = info.fileName().toLower();
    if (path.contains('/')) {
        QString file = fileIn(QDir(folder).filePath(info.path()), lowerName);
        if (!file.isEmpty())
            return file;
    }
    return fileIn(folder, lowerName);
}

QString PictureStore::fileIn(const QString& path, const QString& lowerName) {
    auto listing = listings.find(path);
    if (listing == listings.end()) {
        listing = listings.insert(path, {});
        const QDir directory(path);
        for (const QString& file : directory.entryList(QDir::Files))
            listing->insert(file.toLower(), directory.filePath(file));
    }
    return listing->value(lowerName);
}

double devicePixelsPerUnit(const QPainter& painter) {
    return std::sqrt(std::abs(painter.deviceTransform().determinant()));
}

bool drawPicture(QPainter& painter, PictureStore& pictures, const QString& name,
                 const QRectF& target) {
    const double ratio = devicePixelsPerUnit(painter);
    const QSize pixels(static_cast<int>(std::lround(target.width() * ratio)),
                       static_cast<int>(std::lround(target.height() * ratio)));
    const QPixmap pixmap = pictures.scaled(name, pixels);
    if (pixmap.isNull())
        return false;
    const QRectF place(wholeDevicePixels(target.x(), ratio), wholeDevicePixels(target.y(), ratio),
                       pixels.width() / ratio, pixels.height() / ratio);
    painter.drawPixmap(place, pixmap, QRectF(QPointF(), QSizeF(pixels)));
    return true;
}

} // namespace tarnel
