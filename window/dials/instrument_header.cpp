#include "window/dials/instrument_header.h"

#include "look/panel_look.h"
#include "window/dials/needle_swatch.h"
#include "window/widgets/dark_list.h"
#include "window/widgets/icons.h"
#include "window/widgets/spoken.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QToolButton>

namespace tarnel {

namespace {

constexpr int partGap = 9;
constexpr int briefPartGap = 4;
constexpr int swatchGap = 3;

/// Of a needle's sign in the short form.
double signScale(bool brief) {
    return brief ? 0.5 : 1;
}

} // namespace

InstrumentHeader::InstrumentHeader(const HeaderControls& own, BoxDesk& boxDesk,
                                   FormBinding& binding, QWidget* parent)
    : QWidget(parent), controls(own), boxes(boxDesk) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(3);
    auto* kinds = new DarkList(this);
    kinds->setProperty("dark", true);
    binding.bind(controls.links.typeList, *kinds);
    row->addWidget(kinds);

    QToolButton* radial = addToggle(*row);
    radial->setIcon(panelSignIcon(Sign::radial));
    binding.bind(controls.links.radialBox, *radial);
    // The binding shows the toggle; its place is hidden where an instrument has no use for it.
    overlayPlace = new QWidget(this);
    row->addWidget(overlayPlace);
    auto* inPlace = new QHBoxLayout(overlayPlace);
    inPlace->setContentsMargins(0, 0, 0, 0);
    QToolButton* overlay = addToggle(*inPlace);
    overlay->setIcon(panelSignIcon(Sign::pointer));
    binding.bind(controls.links.overlayBox, *overlay);
    QToolButton* size = addToggle(*row);
    size->setIcon(panelSignIcon(Sign::enlarge));
    followSize(*size);
    toggles = size;
    row->addStretch(1);
    refresh();
}

QToolButton* InstrumentHeader::addToggle(QHBoxLayout& row) {
    auto* button = new QToolButton(this);
    button->setProperty("dark", true);
    button->setCheckable(true);
    button->setToolButtonStyle(Qt::ToolButtonIconOnly);
    row.addWidget(button);
    return button;
}

/// One toggle stands for the two size options.
void InstrumentHeader::followSize(QToolButton& button) {
    button.setObjectName(QStringLiteral("Size_") + controls.links.typeList.name().data());
    button.setToolTip(textOf(boxes.texts, Text::largeDisplayTip));
    button.setAccessibleName(textOf(boxes.texts, Text::largeDisplay));
    connect(&button, &QToolButton::clicked, this, [this](bool large) {
        boxes.guarded([&] { (large ? controls.largeSize : controls.smallSize).click(); });
    });
}

void InstrumentHeader::refresh() {
    const InstrumentPosition& position = controls.links.position;
    overlayPlace->setVisible(position.type == hsi);
    auto next = instrumentLegend(boxes.texts, position, controls.positions.feedSources(),
                                 controls.exercise.cover());
    if (next == legend)
        return;
    legend = std::move(next);
    QStringList parts;
    for (const LegendPart& part : legend)
        parts << QString::fromStdString(part.text);
    setSpokenDescription(*this, parts.join(QStringLiteral(", ")));
    update();
}

/// A needle is shown once, before the first of the parts that speak of it.
bool InstrumentHeader::hasSwatch(std::size_t part) const {
    return legend[part].needle != NeedleRole::none &&
           (part == 0 || legend[part - 1].needle != legend[part].needle);
}

int InstrumentHeader::partWidth(std::size_t part, bool brief, const QFontMetrics& metrics) const {
    const std::string& text = brief ? legend[part].shortText : legend[part].text;
    return metrics.horizontalAdvance(QString::fromStdString(text)) +
           (hasSwatch(part) ? swatchWidth(legend[part].needle, signScale(brief)) + swatchGap : 0);
}

int InstrumentHeader::legendWidth(bool brief, const QFontMetrics& metrics) const {
    int width = 0;
    for (std::size_t part = 0; part < legend.size(); ++part)
        width += partWidth(part, brief, metrics) + (brief ? briefPartGap : partGap);
    return width;
}

void InstrumentHeader::paintPart(QPainter& painter, std::size_t part, bool brief, int left) const {
    const LegendPart& shown = legend[part];
    if (hasSwatch(part)) {
        const int wide = swatchWidth(shown.needle, signScale(brief));
        paintSwatch(painter, shown.needle, {left + wide / 2.0, height() / 2.0}, signScale(brief));
        left += wide + swatchGap;
    }
    painter.setPen(needleColour(shown.needle));
    painter.drawText(QRect(left, 0, width(), height()), Qt::AlignVCenter | Qt::AlignLeft,
                     QString::fromStdString(brief ? shown.shortText : shown.text));
}

/// The legend ends at the right edge; where its short form is still too long it begins behind the
/// toggles, and its end is left out.
void InstrumentHeader::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QFont bold = font();
    bold.setBold(true);
    bold.setPixelSize(qMax(10, bold.pixelSize() * look::unitType / look::bodyType));
    painter.setFont(bold);
    const QFontMetrics metrics = painter.fontMetrics();
    const int room = toggles->geometry().right() + briefPartGap;
    const bool brief = legendWidth(false, metrics) > width() - room;
    int left = qMax(room, width() - legendWidth(brief, metrics));
    for (std::size_t part = 0; part < legend.size(); ++part) {
        const int wide = partWidth(part, brief, metrics);
        if (left + wide > width())
            return;
        paintPart(painter, part, brief, left);
        left += wide + (brief ? briefPartGap : partGap);
    }
}

} // namespace tarnel
