#pragma once

#include <QProxyStyle>

namespace tarnel {

/// `ControlStyle`: paints those of Qt's own controls whose looks no style sheet can give: tick
/// boxes, lists and the panel's keys. Lists and keys with the property "dark" belong to the panel,
/// lists with the property "quiz" to the exercises; all others look as Fusion has them. Whatever
/// palette the desktop has, the application gets the one of `look::coloursFor`.
class ControlStyle : public QProxyStyle {
    Q_OBJECT

  public:
    ControlStyle();

    using QProxyStyle::polish;
    void polish(QPalette& palette) override;
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
