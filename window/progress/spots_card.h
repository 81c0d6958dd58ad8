#pragma once

#include "shell/progress.h"

#include <QWidget>

#include <functional>
#include <vector>

class QLabel;
class QPushButton;
class QVBoxLayout;

namespace tarnel {

/// `SpotsCard`: the weak spots in words, the weakest first, each with a way to train it, and one
/// for all that went wrong.
class SpotsCard : public QWidget {
    Q_OBJECT

  public:
    /// As many spots are shown: more at once nobody trains.
    static constexpr std::size_t most = 5;

    explicit SpotsCard(const StringTable& table, QWidget* parent = nullptr);

    /// `mistakes`: questions of `exercise`, the one that the button trains, that went wrong.
    void show(const Progress& progress, ExerciseType exercise, int mistakes, bool mayStart);

    std::function<void(const SpotProgress&)> onPractise;
    std::function<void()> onPractiseMistakes;
    std::function<void()> onPractiseAll;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void addRow(const SpotProgress& spot, bool mayStart);

    /// Words matter more than cells where there is no room for both.
    [[nodiscard]] bool hasRoomForCells() const;

    const StringTable& texts;
    QVBoxLayout* rows = nullptr;
    QPushButton* chosen = nullptr;
    QPushButton* all = nullptr;
    QLabel* count = nullptr;
};

} // namespace tarnel
