#include "window/frame/window_layout.h"

#include "look/look.h"

#include <algorithm>
#include <cmath>

namespace tarnel {

namespace {

/// What stands below the chart has this height in a window of 1280 x 800, and a part of what other
/// windows are higher or lower.
constexpr double usualFoot = 178;
constexpr double usualBody = 746;
constexpr double footShare = 0.3;
constexpr double lowestFoot = 120;
constexpr double highestFoot = 270;

constexpr int smallestChart = 160;
constexpr double usefulChart = 320;     ///< below that the strip scrolls first
constexpr double narrowestColumn = 408; ///< a smaller chart stands in its middle
/// In a window of this height the chart leaves the room below it that exercises and comments need,
/// so that it keeps its size when one comes or goes. In a lower one it is the larger without.
constexpr double steadyBody = 740;
constexpr double steadyFoot = 266;
constexpr double steadyFootOfNarrowColumn = 284; ///< their texts take more lines there
constexpr double narrowColumn = 480;
constexpr double headerHeight = 32;
constexpr double panelReferenceWidth = 712;
constexpr double largeToSmall = 1.35;
constexpr double largeChartShare = 0.82;
constexpr double chartWidthShare = 0.477;
/// A row of modules: the lowest at text scale 1, the highest at panel scale 1.
constexpr double lowestRow = 74;
constexpr double lowestRowOfLowPanel = 64;
constexpr double lowPanel = 560;
constexpr double highestRow = 200;
/// Two rows of modules in place of three need a panel this wide, at text scale 1.
constexpr double twoRowWidth = 840;

double uiScaleOf(QSize body) {
    return std::clamp(std::min(body.width() / 1920.0, body.height() / 1000.0), 1.0, 2.0);
}

double footOf(QSize body, double uiScale) {
    const double height = body.height() / uiScale;
    return uiScale *
           std::clamp(usualFoot + footShare * (height - usualBody), lowestFoot, highestFoot);
}

double steadyFootOf(QSize body, double uiScale, int columnWidth) {
    if (body.height() < steadyBody * uiScale)
        return 0;
    return uiScale * (columnWidth < narrowColumn * uiScale ? steadyFootOfNarrowColumn : steadyFoot);
}

int whole(double value) {
    return static_cast<int>(std::lround(value));
}

/// Splits `width` into `shares.size()` columns with a gutter between them.
template <std::size_t count>
std::array<QRect, count> columns(double left, double top, double width, double height,
                                 const std::array<double, count>& shares, double gutter) {
    double total = 0;
    for (const double share : shares)
        total += share;
    const double free = width - gutter * (count - 1);
    std::array<QRect, count> result;
    double x = left;
    for (std::size_t i = 0; i < count; ++i) {
        const double columnWidth = free * shares[i] / total;
        result[i] = QRect(QPoint(whole(x), whole(top)),
                          QPoint(whole(x + columnWidth) - 1, whole(top + height) - 1));
        x += columnWidth + gutter;
    }
    return result;
}

/// The panel: headers and instruments on top, the modules below. Its lettering grows with it.
class PanelLayout {
  public:
    PanelLayout(WindowLayout& target, PanelSizes wanted)
        : layout(target), sizes(wanted), scale(target.bodyScale) {}

    void layOut() {
        const QSize panel = layout.panel.size();
        layout.panelScale = std::clamp(
            std::min(panel.width() / panelReferenceWidth, panel.height() / 640.0), 0.7, 3.0);
        margin = look::gap * scale;
        inner = panel.width() - 2 * margin;
        head = headerHeight * scale;
        chooseRows(panel);
        const auto [width2, width3] = bezelWidths(tallestBezel(panel));
        const double slack = inner - margin - width2 - width3;
        spare = slack / 6;
        const double left2 = margin + slack / 3;
        const double left3 = left2 + width2 + margin + slack / 3;
        const double bottom = margin + head + std::max(width2, width3);
        placeInstrument(0, left2, width2, bottom);
        placeInstrument(1, left3, width3, bottom);
        placeModules(bottom + margin, panel.height() - margin - (bottom + margin));
    }

  private:
    /// A low, wide panel gives its height to a large instrument: the modules then stand in two
    /// rows.
    void chooseRows(QSize panel) {
        const auto [first, second] = bezelWidths(panel.height());
        const bool large = sizes.inst2Large || sizes.inst3Large;
        const bool tooTall = std::max(first, second) > tallestBezel(panel) * 1.05;
        rows = large && tooTall && panel.width() >= twoRowWidth * scale ? 2 : 3;
    }

    [[nodiscard]] double tallestBezel(QSize panel) const {
        const bool low = panel.height() < lowPanel * scale;
        const double row = (low ? lowestRowOfLowPanel : lowestRow) * scale;
        const double lowestModules = rows * row + (rows - 1) * margin;
        return panel.height() - 3 * margin - head - lowestModules;
    }

    /// The sides of the two bezels, none more than `tallest`.
    [[nodiscard]] std::pair<double, double> bezelWidths(double tallest) const {
        const double width = inner - margin;
        double first = width / 2;
        double second = width / 2;
        if (sizes.inst2Large != sizes.inst3Large) {
            const double small = width / (1 + largeToSmall);
            first = sizes.inst2Large ? width - small : small;
            second = width - first;
        }
        return {std::floor(std::min(first, tallest)), std::floor(std::min(second, tallest))};
    }

    /// The instruments stand on one line at their lower edges. A header has half of the room that
    /// lies free on either side.
    void placeInstrument(std::size_t index, double left, double side, double bottom) {
        const double instrumentTop = bottom - side;
        layout.instruments[index] = {whole(left), whole(instrumentTop), whole(side), whole(side)};
        layout.headers[index] = {whole(left - spare), whole(instrumentTop - head),
                                 whole(side + 2 * spare), whole(head - margin / 2)};
    }

    void placeModules(double top, double height) {
        const double row =
            std::min((height - (rows - 1) * margin) / rows, highestRow * layout.panelScale);
        const double next = row + margin;
        if (rows == 2) {
            const auto upper = columns<4>(margin, top, inner, row, {1, 1, 1, 1}, margin);
            const auto lower = columns<2>(margin, top + next, inner, row, {1, 1.35}, margin);
            layout.nav1 = upper[0];
            layout.nav2 = upper[1];
            layout.adf = upper[2];
            layout.stopwatch = upper[3];
            layout.dme = lower[0];
            layout.autopilot = lower[1];
            return;
        }
        const auto upper = columns<3>(margin, top, inner, row, {1, 1, 1}, margin);
        layout.nav1 = upper[0];
        layout.nav2 = upper[1];
        layout.adf = upper[2];
        layout.dme = upper[0].united(upper[1]).translated(0, whole(next));
        layout.stopwatch = upper[2].translated(0, whole(next));
        layout.autopilot = upper[0].united(upper[2]).translated(0, whole(2 * next));
    }

    WindowLayout& layout;
    PanelSizes sizes;
    double scale;
    int rows = 3;
    double margin = look::gap;
    double inner = 0;
    double head = 0;
    double spare = 0; ///< that a header has on either side of its instrument
};

/// Chart, strip and comment below each other in a column of `width`. The comment stands in the
/// room that the strip can spare; only if that is less than it needs the chart gives way.
void layOutChart(WindowLayout& layout, QSize body, int width, const ColumnWishes& wishes) {
    const int margin = whole(look::gap * layout.uiScale);
    const int bottom = body.height() - margin;
    const int strip = wishes.strip(width);
    const int leastStrip = std::min(strip, wishes.leastStrip(width));
    const int leastComment = wishes.leastComment(width);
    const int forComment = leastComment > 0 ? margin + leastComment : 0;
    const auto chartOver = [&](int foot) { return bottom - 2 * margin - foot; };
    const int foot = std::max({whole(footOf(body, layout.uiScale)),
                               whole(steadyFootOf(body, layout.uiScale, width)),
                               leastStrip + forComment, forComment > 0 ? 0 : strip});
    const int useful =
        std::min(whole(usefulChart * layout.uiScale), chartOver(leastStrip + forComment));
    const int side = std::clamp(std::max(chartOver(foot), useful), smallestChart, width);
    layout.chart = {margin + (width - side) / 2, margin, side, side};
    const int stripTop = margin + side + margin;
    const int room = bottom - stripTop;
    const int comment = forComment > 0 ? std::min(wishes.comment(width),
                                                  std::max(leastComment, room - margin - strip))
                                       : 0;
    layout.strip = {margin, stripTop, width, comment > 0 ? room - margin - comment : room};
    if (comment > 0)
        layout.comment = {margin, bottom - comment, width, comment};
}

} // namespace

WindowLayout layOutWindow(QSize body, PanelSizes sizes, const ColumnWishes& wishes,
                          double textScale) {
    WindowLayout layout;
    layout.bodyScale = uiScaleOf(body);
    layout.uiScale = std::max(layout.bodyScale, textScale);
    const int margin = whole(look::gap * layout.uiScale);
    const int height = body.height() - 2 * margin;
    const double widest = std::floor(chartWidthShare * body.width() / look::gap) * look::gap;
    double side = std::min(height - margin - footOf(body, layout.uiScale), widest);
    if (sizes.inst2Large || sizes.inst3Large)
        side *= largeChartShare;
    const int columnWidth =
        whole(std::max(side, std::min(narrowestColumn * layout.uiScale, widest)));
    layOutChart(layout, body, columnWidth, wishes);
    const int panelLeft = margin + columnWidth + margin;
    layout.panel = {panelLeft, margin, body.width() - margin - panelLeft, height};
    PanelLayout(layout, sizes).layOut();
    return layout;
}

} // namespace tarnel
