#pragma once

#include "window/progress/progress_model.h"

#include <QWidget>

class QLabel;
class QPushButton;
class QVBoxLayout;

namespace tarnel {

/// `FlightsCard`: the latest of the flights that were judged, with what was worst in each.
class FlightsCard : public QWidget {
    Q_OBJECT

  public:
    static constexpr std::size_t most = 5;

    explicit FlightsCard(const ProgressModel& progressModel, QWidget* parent = nullptr);

    void show(const std::vector<LoggedFlight>& flights);

    std::function<void()> onAllFlights;
    std::function<void(const std::vector<std::int64_t>& flights)> onOpen;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void addRow(const LoggedFlight& flight);

    const ProgressModel& model;
    QLabel* beside = nullptr;
    QVBoxLayout* rows = nullptr;
    QPushButton* all = nullptr;
};

/// When a flight was: "Today 15:42", "Wed 19:20", "15 Nov".
[[nodiscard]] QString momentOf(const LoggedFlight& flight, const ProgressModel& model);
/// "4 of 7": findings that were right, of those that were judged.
[[nodiscard]] QString scoreOf(const LoggedFlight& flight, const StringTable& texts);
/// The worst finding as a sentence with its sign, or that there was none.
[[nodiscard]] QString worstOf(const LoggedFlight& flight, const ProgressModel& model);

} // namespace tarnel
