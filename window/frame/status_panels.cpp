#include "window/frame/status_panels.h"

#include "look/look.h"

#include <QLabel>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

#include <array>
#include <cmath>

namespace tarnel {

namespace {

/// The share of the width that each panel takes.
constexpr std::array<double, 7> shares = {.185, .135, .135, .135, .15, .145, .115};
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
    notice = new QLabel(this);
    binding.bind(flightNotice, *notice);
    noticeEnd.setSingleShot(true);
    connect(&noticeEnd, &QTimer::timeout, this,
            [&flightNotice] { flightNotice.setVisible(false); });
    binding.follow([this, &flightNotice] {
        if (flightNotice.visible() && !noticeEnd.isActive())
            noticeEnd.start(noticeMilliseconds);
    });
}

void StatusPanels::resizeEvent(QResizeEvent*) {
    double left = 0;
    for (std::size_t i = 0; i < panels.size(); ++i) {
        const double panelWidth = shares[i] * width();
        panels[i]->setGeometry(static_cast<int>(std::lround(left)), 0,
                               static_cast<int>(std::lround(panelWidth)), height());
        left += panelWidth;
    }
    notice->setGeometry(rect());
}

void StatusPanels::paintEvent(QPaintEvent*) {
    QStyleOption option;
    option.initFrom(this);
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
    painter.setPen(look::line);
    for (std::size_t i = 1; i < panels.size(); ++i) {
        const int x = panels[i]->x();
        painter.drawLine(x, height() / 5, x, height() - height() / 5);
    }
}

} // namespace tarnel
