#pragma once

#include "shell/progress.h"

#include <QWidget>

class QGridLayout;
class QLabel;

namespace tarnel {

/// `ProgressFigures`: three figures over all: right answers, the time of an answer, flights.
class ProgressFigures : public QWidget {
    Q_OBJECT

  public:
    explicit ProgressFigures(const StringTable& table, QWidget* parent = nullptr);

    /// `flights` are those of the span of time that is shown.
    void show(const ExerciseProgress& all, const std::vector<LoggedFlight>& flights);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    struct Figure {
        QLabel* value;
        QLabel* change;
        QLabel* below;
    };
    Figure makeFigure(QGridLayout& grid, int column);
    void showChange(QLabel& label, std::int64_t now, std::optional<std::int64_t> before,
                    bool moreIsBetter, const QString& unit) const;

    const StringTable& texts;
    Figure right;
    Figure time;
    Figure flown;
};

/// Whether nothing was wrong in it.
[[nodiscard]] bool isFaultless(const LoggedFlight& flight);

} // namespace tarnel
