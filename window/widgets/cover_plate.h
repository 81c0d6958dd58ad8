#pragma once

#include "strings/string_table.h"

#include <QWidget>

namespace tarnel {

/// `CoverPlate`: lies over an instrument that would give a question's answer away, as an instructor
/// covers it.
class CoverPlate : public QWidget {
    Q_OBJECT

  public:
    CoverPlate(const StringTable& texts, QWidget* parent);

    /// Why it lies there.
    void setReason(const QString& text);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void paintScrews(QPainter& painter, double side) const;

    QString name;
    QString reason;
};

} // namespace tarnel
