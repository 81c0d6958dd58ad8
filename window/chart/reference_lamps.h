#pragma once

#include "engine/user_control_2.h"
#include "strings/string_table.h"

#include <QWidget>

namespace tarnel {

/// `ReferenceLamps`: how far the flight is off its reference, as nine lamps on a scale of 0 to 3
/// NM. It shows only where there is a reference.
class ReferenceLamps : public QWidget {
    Q_OBJECT

  public:
    ReferenceLamps(const UserControl2& simulation, const StringTable& texts,
                   QWidget* parent = nullptr);

    /// Shows the present reading.
    void refresh();

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void paintNumber(QPainter& painter, int miles) const;
    /// The left edge of a lamp, of the nine and one beyond, in shares of the plate's height.
    [[nodiscard]] static double lampAt(std::size_t lamp);

    const UserControl2& sim;
    const StringTable& texts;
    Lamps shown{};
};

} // namespace tarnel
