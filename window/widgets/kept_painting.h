#pragma once

#include <QPainter>
#include <QPixmap>
#include <QRect>

#include <optional>

namespace tarnel {

/// A painting that is kept as a pixmap once it came twice the same: for what is painted again only
/// because something beside or below it has changed. `Key` is all that it depends on besides its
/// place.
template <class Key>
class KeptPainting {
  public:
    /// Paints what `draw(QPainter&)` paints within `place` of the painter's device; nothing if that
    /// is empty. `draw` is given a smooth painter without a pen.
    template <class Draw>
    void paint(QPainter& painter, const QRect& place, const Key& key, const Draw& draw) {
        if (place.isEmpty())
            return;
        const Shown now{key, place, painter.device()->devicePixelRatioF()};
        if (now != shown) {
            shown = now;
            pixmap = {};
            painter.save();
            begin(painter, draw);
            painter.restore();
            return;
        }
        if (pixmap.isNull())
            keep(draw);
        painter.drawPixmap(place.topLeft(), pixmap);
    }

    void forget() { shown.reset(); }

  private:
    struct Shown {
        Key key;
        QRect place;
        qreal ratio; ///< device pixels to a logical one
        bool operator==(const Shown&) const = default;
    };

    template <class Draw>
    static void begin(QPainter& painter, const Draw& draw) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        draw(painter);
    }
    template <class Draw>
    void keep(const Draw& draw) {
        pixmap = QPixmap((QSizeF(shown->place.size()) * shown->ratio).toSize());
        pixmap.setDevicePixelRatio(shown->ratio);
        pixmap.fill(Qt::transparent);
        QPainter onPixmap(&pixmap);
        onPixmap.translate(-shown->place.topLeft());
        begin(onPixmap, draw);
    }

    std::optional<Shown> shown;
    QPixmap pixmap; ///< null until it came twice
};

} // namespace tarnel
