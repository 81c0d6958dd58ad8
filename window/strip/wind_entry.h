#pragma once

#include "shell/box_desk.h"
#include "shell/wind_desk.h"

#include <QWidget>

class QSpinBox;

namespace tarnel {

/// `WindEntry`: two fields for the wind's direction and speed. They show the present wind unless
/// one is being typed into. A wind that is not to be told leaves them empty, and steps count from
/// 0.
class WindEntry : public QWidget {
    Q_OBJECT

  public:
    WindEntry(WindDesk& windDesk, BoxDesk& boxDesk, QWidget* parent = nullptr);

    /// Shows the present wind.
    void refresh();

  private:
    QSpinBox* addField(const char* name, Text caption, Text unit);
    void take();

    WindDesk& desk;
    BoxDesk& boxes;
    QSpinBox* direction = nullptr;
    QSpinBox* speed = nullptr;
};

} // namespace tarnel
