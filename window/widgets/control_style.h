#pragma once

#include <QProxyStyle>

namespace tarnel {

/// `ControlStyle`: paints those of Qt's own controls whose looks no style sheet can give: tick
/// boxes, lists and the panel's keys. Lists and keys with the property "dark" belong to the panel,
/// lists with the property "quiz" to the exercises; all others look as Fusion has them.
class ControlStyle : public QProxyStyle {
    Q_OBJECT

  public:
    ControlStyle();

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
    [[nodiscard]] QSize sizeFromContents(ContentsType type, const QStyleOption* option,
                                         const QSize& contents,
                                         const QWidget* widget) const override;
    [[nodiscard]] QRect subElementRect(SubElement element, const QStyleOption* option,
                                       const QWidget* widget) const override;
};

} // namespace tarnel
