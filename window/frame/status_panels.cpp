#include "window/frame/status_panels.h"

#include "look/look.h"
#include "window/widgets/announce.h"

#include <QLabel>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

#include <array>

namespace tarnel {

namespace {

/// How much of the width each panel takes, in thousandths.
constexpr std::array<int, 7> panelShares = {185, 135, 135, 135, 150, 145, 115};
constexpr int allPanelShares = 1000;
constexpr int edge = 1; ///< px, the line above
constexpr int noticeMilliseconds = 8000;

} // namespace

StatusPanels::StatusPanels(TrainerControls& form, TextPanel& flightNotice, FormBinding& binding,
                           QWidget* parent)
    : QWidget(parent) {
    setObjectName(QStringLiteral("StatusPanels"));
    const std::array<TextPanel*, 7> order = {
        &form.sessionPanel, &form.windPanel, &form.hidePanel,      &form.tracePanel,
        &form.vectorsPanel, &form.modePanel, &form.flightTimePanel};
    for (TextPanel* panel : order) {
        auto* label = new QLabel(this);
        binding.bind(*panel, *label);
        panels.push_back(label);
    }
    panels.back()->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    notice = new QLabel(this); // lies over them for a moment
    binding.bind(flightNotice, *notice);
    noticeEnd.setSingleShot(true);
    connect(&noticeEnd, &QTimer::timeout, this,
            [&flightNotice] { flightNotice.setVisible(false); });
    binding.follow([this, &flightNotice] {
        if (!flightNotice.visible() || noticeEnd.isActive())
            return;
        noticeEnd.start(noticeMilliseconds);
        announce(*this, QString::fromStdString(flightNotice.text()));
    });
}

int StatusPanels::linesAt(int width) const {
    const QLabel& time = *panels.back();
    time.ensurePolished();
    const int needed = time.fontMetrics().horizontalAdvance(QStringLiteral("59h59min59sec")) +
                       2 * time.fontMetrics().averageCharWidth();
    return width * panelShares.back() < needed * allPanelShares ? 2 : 1;
}

/// In two lines all columns are alike, and time stands at the right of the second.
void StatusPanels::arrange() {
    const auto count = static_cast<int>(panels.size());
    const int lines = linesAt(width());
    const int columns = lines == 1 ? count : (count + 1) / 2;
    const QRect inner = rect().adjusted(0, edge, 0, 0);
    const int high = inner.height() / lines;
    int share = 0;
    for (int i = 0; i < count; ++i) {
        QRect place(0, inner.top() + i / columns * high, 0, high);
        if (lines == 1) {
            place.setLeft(width() * share / allPanelShares);
            share += panelShares[static_cast<std::size_t>(i)];
            place.setRight(width() * share / allPanelShares - 1);
        } else {
            const int column = i + 1 == count ? columns - 1 : i % columns;
            place.setLeft(width() * column / columns);
            place.setRight(width() * (column + 1) / columns - 1);
        }
        panels[static_cast<std::size_t>(i)]->setGeometry(place);
    }
    notice->setGeometry(inner);
}

void StatusPanels::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    arrange();
}

void StatusPanels::paintEvent(QPaintEvent*) {
    QStyleOption option;
    option.initFrom(this);
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
    painter.setPen(look::colours().line);
    for (std::size_t i = 1; i < panels.size(); ++i) {
        const QRect place = panels[i]->geometry();
        const int inset = place.height() / 5;
        if (place.x() > 0)
            painter.drawLine(place.x(), place.top() + inset, place.x(), place.bottom() - inset);
    }
}

} // namespace tarnel
