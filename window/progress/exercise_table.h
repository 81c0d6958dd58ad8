#pragma once

#include "shell/progress.h"

#include <QTableWidget>

#include <cstdint>
#include <functional>

namespace tarnel {

/// `ExerciseTable`: a row for each exercise: right answers, change, time, and when it was asked.
class ExerciseTable : public QTableWidget {
    Q_OBJECT

  public:
    ExerciseTable(const StringTable& table, QWidget* parent = nullptr);

    /// Shows the exercises in their order at the moment `now`; the chosen one stays chosen.
    void show(const Progress& progress, std::int64_t now, const QString& spanMany);
    /// The row of `Progress::exercises` that is chosen.
    [[nodiscard]] int chosen() const { return std::max(0, currentRow()); }

    /// Another one is chosen.
    std::function<void()> onChoose = [] {};

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    enum Column { name, count, share, change, time, trend, lastAsked, columns };
    void fill(int row, const ExerciseProgress& exercise, std::int64_t now);
    void put(int row, Column column, const QString& text, bool bold = false);
    void shareOut();
    [[nodiscard]] int widestName() const;

    const StringTable& texts;
    ExerciseType chosenType = ExerciseType::closed;
};

} // namespace tarnel
