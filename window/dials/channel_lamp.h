#pragma once

#include <QAbstractButton>

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
    bool lit = false;
};

} // namespace tarnel
