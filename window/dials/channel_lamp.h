#pragma once

#include "window/widgets/kept_painting.h"

#include <QAbstractButton>
#include <QStyle>

namespace tarnel {

/// `ChannelLamp`: the lamp on a bezel that is lit while the instrument holds the OBS of its VOR. A
/// click on it is a click on the channel button.
class ChannelLamp : public QAbstractButton {
    Q_OBJECT

  public:
    explicit ChannelLamp(QWidget* parent = nullptr);

    void setLit(bool shines);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

  private:
    struct Face {
        QStyle::State state;
        QString text;
        bool lit;
        bool operator==(const Face&) const = default;
    };

    void paintFace(QPainter& painter) const;

    KeptPainting<Face> kept;
    bool lit = false;
};

} // namespace tarnel
