#pragma once

#include "window/strip/strip_model.h"
#include "window/widgets/form_binding.h"

#include <QWidget>

#include <vector>

class QHBoxLayout;
class QLabel;
class QPushButton;
class QScrollArea;
class QStackedWidget;

namespace tarnel {

class StripPage;

/// `ControlStrip`: the card below the chart: start and stop, the speed and the read-outs, and below
/// them one of four pages.
class ControlStrip : public QWidget {
    Q_OBJECT

  public:
    ControlStrip(const StripModel& stripModel, FormBinding& links, QWidget* parent = nullptr);

    /// Shows the page that is chosen, and on the start button what a click will do.
    void refresh();

    /// The height at which every page has room at a width.
    [[nodiscard]] int wantedHeight(int width) const;
    /// The height that it does with, since its pages scroll.
    [[nodiscard]] int leastHeight(int width) const;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    QLayout* makeFlightRow();
    QLayout* makeTabRow();
    QScrollArea* makePages();
    [[nodiscard]] int heightWith(int page, int width) const;
    std::vector<OptionButton*> pageOptions();
    void addReadout(QHBoxLayout& row, Text name, TextPanel& readout, Text unit);
    QLabel* captioned(Text text);
    void tellKeys();

    StripModel model;
    FormBinding& binding;
    QLabel* speedCaption = nullptr;
    std::vector<QLabel*> readoutCaptions;
    QPushButton* startButton = nullptr;
    QScrollArea* scroll = nullptr;
    QStackedWidget* stack = nullptr;
    std::vector<StripPage*> pages;
    bool startShowsStop = false;
};

} // namespace tarnel
