#include "window/frame/status_panels.h"

#include "look/look.h"

#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

#include <array>

namespace tarnel {

namespace {

/// How much of the width each panel takes, in thousandths.
constexpr std::array<int, 7> shares = {185, 135, 135, 135, 150, 145, 115};
constexpr int noticeMilliseconds = 8000;

} // namespace

StatusPanels::StatusPanels(TrainerControls& form, TextPanel& flightNotice, FormBinding& binding,
                           QWidget* parent)
    : QWidget(parent) {
    setObjectName(QStringLiteral("StatusPanels"));
    const std::array<TextPanel*, 7> order = {
        &form.sessionPanel, &form.windPanel, &form.hidePanel,      &form.tracePanel,
        &form.vectorsPanel, &form.modePanel, &form.flightTimePanel};
    auto* row = new QGridLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    for (TextPanel* panel : order) {
        auto* label = new QLabel(this);
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
        binding.bind(*panel, *label);
        const int column = static_cast<int>(panels.size());
        row->addWidget(label, 0, column);
        row->setColumnStretch(column, shares[panels.size()]);
        panels.push_back(label);
    }
    panels.back()->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    auto* notice = new QLabel(this); // lies over them for a moment
    notice->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    binding.bind(flightNotice, *notice);
    row->addWidget(notice, 0, 0, 1, static_cast<int>(panels.size()));
    noticeEnd.setSingleShot(true);
    connect(&noticeEnd, &QTimer::timeout, this,
            [&flightNotice] { flightNotice.setVisible(false); });
    binding.follow([this, &flightNotice] {
        if (flightNotice.visible() && !noticeEnd.isActive())
            noticeEnd.start(noticeMilliseconds);
    });
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
