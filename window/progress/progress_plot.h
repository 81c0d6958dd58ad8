#pragma once

#include "shell/progress.h"
#include "window/progress/time_spans.h"

#include <QWidget>

#include <optional>

namespace tarnel {

/// `ProgressPlot`: right answers and times of an exercise over the spans of time, beside those of
/// all exercises, with how many were asked.
class ProgressPlot : public QWidget {
    Q_OBJECT

  public:
    explicit ProgressPlot(const StringTable& table, QWidget* parent = nullptr);

    void show(const ExerciseProgress& exercise, const ExerciseProgress& all,
              const TimeSpans& spans);

    /// As it is shown, as the bytes of a PNG of twice its size.
    [[nodiscard]] QByteArray picture();

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    struct Area {
        QRectF place;
        double top = 0; ///< the value at its upper edge
    };
    using Value = std::optional<double> (*)(const Tally&);

    void paintHeader(QPainter& painter) const;
    void paintScale(QPainter& painter, const Area& area, Text caption, Text unit, int lines) const;
    void paintAsked(QPainter& painter, const Area& area) const;
    void paintCurves(QPainter& painter, const Area& area, Value value) const;
    void paintMarks(QPainter& painter, const Area& area) const;
    [[nodiscard]] double across(const Area& area, int span) const;
    [[nodiscard]] QString spoken() const;

    const StringTable& texts;
    std::optional<ExerciseProgress> shown;
    ExerciseProgress others;
    std::optional<TimeSpans> axis;
};

} // namespace tarnel
