#pragma once

#include <QRect>
#include <QSize>

#include <array>
#include <functional>

namespace tarnel {

/// What the panel has to show.
struct PanelSizes {
    bool inst2Large = false;
    bool inst3Large = false;
    bool operator==(const PanelSizes&) const = default;
};

/// Where everything stands in the window, in pixels. Panel places are relative to the panel.
struct WindowLayout {
    double uiScale = 1;    ///< of texts and controls: 1 up to full HD, 2 on a 4K screen at 100 %,
                           ///< and never less than the desktop's
    double bodyScale = 1;  ///< the same without the desktop's: of the texts on the panel
    double panelScale = 1; ///< of what stands on the panel: 1 at 712 px width
    QRect chart;
    QRect strip;
    QRect comment; ///< empty without one
    QRect panel;
    std::array<QRect, 2> headers;     ///< above the instruments
    std::array<QRect, 2> instruments; ///< square
    QRect nav1;
    QRect nav2;
    QRect adf;
    QRect dme;
    QRect stopwatch;
    QRect autopilot;
};

/// The heights that parts of the chart's column want at its width.
struct ColumnWishes {
    using Height = std::function<int(int)>;
    Height strip = [](int) { return 0; };        ///< with all of it in sight
    Height leastStrip = [](int) { return 0; };   ///< with pages that scroll
    Height comment = [](int) { return 0; };      ///< with all of its text in sight
    Height leastComment = [](int) { return 0; }; ///< with text that scrolls; 0 for no card
};

/// Lays out the space between menu bar and status bar. A large instrument takes its room from the
/// chart. A comment takes it from what the strip leaves, and where that is too little from the
/// chart's height: instruments and radios stay where they are. Meant for windows of 960 x 540 and
/// more, and with texts of more than scale 1 for 1024 x 768 and more.
[[nodiscard]] WindowLayout layOutWindow(QSize body, PanelSizes sizes,
                                        const ColumnWishes& wishes = {}, double textScale = 1);

} // namespace tarnel
