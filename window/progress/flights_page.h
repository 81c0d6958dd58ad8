#pragma once

#include "window/progress/progress_model.h"

#include <QWidget>

#include <vector>

class QHBoxLayout;
class QPushButton;
class QSpinBox;
class QTableWidget;

namespace tarnel {

/// `FlightsPage`: all flights that were judged, and what can be done with them.
class FlightsPage : public QWidget {
    Q_OBJECT

  public:
    explicit FlightsPage(const ProgressModel& progressModel, QWidget* parent = nullptr);

    void show(const std::vector<LoggedFlight>& flights);
    /// Gives the list the keyboard.
    void takeFocus();

    /// Something has changed in the log.
    std::function<void()> onChange;
    std::function<void()> onBack;
    std::function<void(const std::vector<std::int64_t>& flights)> onOpen;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QHBoxLayout* makeButtons();
    QHBoxLayout* makeLimits();
    QPushButton* button(Text caption, const char* name, std::function<void()> action);
    void fill(int row, const LoggedFlight& flight);
    void followSelection();
    [[nodiscard]] std::vector<LoggedFlight> selected() const;
    void pinSelected();
    void removeSelected();
    void exportSelected();

    const ProgressModel& model;
    std::vector<LoggedFlight> shown;
    QTableWidget* table = nullptr;
    QPushButton* open = nullptr;
    QPushButton* compare = nullptr;
    QPushButton* pin = nullptr;
    QPushButton* save = nullptr;
    QPushButton* erase = nullptr;
    QSpinBox* most = nullptr;
    QSpinBox* megabytes = nullptr;
};

} // namespace tarnel
