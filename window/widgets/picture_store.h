#pragma once

#include <QHash>
#include <QImage>
#include <QPixmap>
#include <QRectF>
#include <QSize>
#include <QString>

#include <functional>
#include <map>
#include <tuple>

class QPainter;

namespace tarnel {

/// Loads pictures from a folder when they are first shown, and keeps them at the sizes shown.
class PictureStore {
  public:
    explicit PictureStore(const QString& folder);

    /// The picture `name` scaled smoothly to `devicePixels`: a bare name, or a path with "/" or
    /// "\". Upper and lower case of the file's name do not matter. What a path's folder lacks is
    /// looked for in the store's own. Null if missing or unreadable.
    [[nodiscard]] QPixmap scaled(const QString& name, QSize devicePixels);

    /// To be called once when widgets have got other sizes: forgets what was not shown lately.
    void sizesChanged();

    [[nodiscard]] std::size_t kept() const { return pictures.size(); }

    /// Called once for each name that is missing or can't be read, from within a paint: whoever
    /// wants to show a box does so later.
    std::function<void(const QString& name)> onMissing;

  private:
    using Key = std::tuple<QString, int, int>;
    struct Kept {
        QPixmap pixmap;
        int lastShown = 0;
    };

    [[nodiscard]] QPixmap load(const QString& name, QSize devicePixels);
    /// The picture's file, or its copy in the folder "small" if that is large enough.
    [[nodiscard]] QImage source(const QString& name, QSize devicePixels);
    [[nodiscard]] QString fileOf(const QString& name);
    [[nodiscard]] QString fileIn(const QString& path, const QString& lowerName);

    QString folder;
    QHash<QString, QHash<QString, QString>> listings; ///< by folder: lower-case name, file
    QHash<QString, bool> missing;
    std::map<Key, Kept> pictures;
    int sizeRound = 0;
};

/// How many pixels of the screen or picture lie along a length of 1, also when a widget is painted
/// into a picture.
[[nodiscard]] double devicePixelsPerUnit(const QPainter& painter);

/// Draws a picture into `target`, moved to whole device pixels. False if there is none.
bool drawPicture(QPainter& painter, PictureStore& pictures, const QString& name,
                 const QRectF& target);

} // namespace tarnel
