#pragma once

#include "shell/progress.h"
#include "window/progress/progress_model.h"
#include "window/progress/time_spans.h"

#include <QWidget>

#include <array>
#include <optional>

class QBoxLayout;
class QComboBox;
class QLabel;
class QPushButton;
class QStackedLayout;
class QToolButton;

namespace tarnel {

class ChoiceButton;
class ExerciseTable;
class FlightsCard;
class FlightsPage;
class ProgressFigures;
class ProgressPlot;
class SpotsCard;

/// `ProgressPage`: what the log tells, in the place of chart and panel: how the student is doing,
/// what to train next, then the details.
class ProgressPage : public QWidget {
    Q_OBJECT

  public:
    explicit ProgressPage(ProgressModel progressModel, QWidget* parent = nullptr);

    /// Reads the log and comes up.
    void open();
    /// Reads the log anew while it is up.
    void reload();
    void readLog(const TimeSpans& shownSpans);

    /// The page has gone, by the user's wish or because an exercise starts.
    std::function<void()> onClose = [] {};

  protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    QWidget* makeHeader();
    void addSpanButtons(QBoxLayout& line);
    void addMenu(QBoxLayout& line);
    QWidget* makeProgress();
    QToolButton* stepButton(int way, const char* name, Text spoken);
    void chooseSpan(SpanKind kind);
    void step(int way);
    void showFlights(bool shown);
    void practise(const std::string& course, ExerciseType exercise, std::optional<Text> spot);
    [[nodiscard]] TimeSpans spans() const { return {kind, day, model.texts}; }
    [[nodiscard]] QDate today() const;
    [[nodiscard]] const LoggedCourse* course() const;
    void followCourses();
    void show(const TimeSpans& shownSpans);
    void showChosen();
    void openFlights(const std::vector<std::int64_t>& ids);
    void close();

    ProgressModel model;
    SpanKind kind = SpanKind::week;
    QDate day;
    Progress progress;
    std::vector<LoggedCourse> known;
    std::vector<LoggedFlight> flights;

    std::array<ChoiceButton*, 3> spanButtons{};
    QToolButton* forward = nullptr;
    QLabel* spanTitle = nullptr;
    QLabel* spanBeside = nullptr;
    QComboBox* courses = nullptr;
    QPushButton* closeButton = nullptr;
    QStackedLayout* pages = nullptr;
    ProgressFigures* figures = nullptr;
    ExerciseTable* table = nullptr;
    ProgressPlot* plot = nullptr;
    SpotsCard* spots = nullptr;
    FlightsCard* latest = nullptr;
    FlightsPage* all = nullptr;
};

} // namespace tarnel
