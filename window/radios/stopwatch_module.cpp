#include "window/radios/stopwatch_module.h"

#include "window/dials/spoken_reading.h"
#include "window/widgets/spoken.h"
#include "window/widgets/text_of.h"

#include <algorithm>

namespace tarnel {

namespace {

constexpr std::size_t minuteDigits = 2;

} // namespace

StopwatchModule::StopwatchModule(tvsmtimer& stopwatch, PictureStore& pictures,
                                 const StringTable& table, QWidget* parent)
    : ModuleFrame(textOf(table, Text::faceStopwatch), parent),
      face(stopwatch),
      texts(table),
      digits(stopwatch.digits, pictures, {.pointAfter = minuteDigits, .measured = true}, this),
      start(textOf(table, Text::stopwatchStart), this),
      reset(textOf(table, Text::stopwatchReset), this) {
    start.setToolTip(textOf(texts, Text::stopwatchStartTip));
    reset.setToolTip(textOf(texts, Text::stopwatchResetTip));
    refresh();
}

void StopwatchModule::refresh() {
    digits.refresh();
    if (face.surface.revision() == spoken)
        return;
    spoken = face.surface.revision();
    const QString told = QString::fromStdString(spokenDigits(face.digits, minuteDigits, texts));
    setSpokenDescription(*this, told);
    setSpokenName(digits, told);
}

/// Of either button, wide enough for every word that the first one can bear.
QSizeF StopwatchModule::buttonSize() const {
    DarkButton stop(textOf(texts, Text::stopwatchStop));
    stop.setScale(scale());
    return start.sizeHint().expandedTo(reset.sizeHint()).expandedTo(stop.sizeHint());
}

void StopwatchModule::placeParts(const QRectF& body) {
    const double gap = partGap * scale();
    digits.setScale(scale());
    start.setScale(scale());
    reset.setScale(scale());
    if (isStacked(body.size(), 1, scale())) {
        placeButtonsBelow(body);
        return;
    }
    constexpr double between = 4;
    constexpr double widthShare = 0.28;
    constexpr double highest = 0.45; ///< of its width
    QSizeF size = buttonSize();
    size.setWidth(std::max(size.width(), body.width() * widthShare));
    size.setHeight(std::min(std::max(size.height(), size.width() * highest),
                            (body.height() - between * scale()) / 2));
    const double left = body.right() - size.width();
    const QRectF rest = body.adjusted(0, 0, -size.width() - gap, 0);
    digits.setGeometry(wellIn(rest, digits, wellHeightIn(body.height(), scale())).toAlignedRect());
    const double middle = body.center().y();
    const double half = between * scale() / 2;
    start.setGeometry(QRectF({left, middle - half - size.height()}, size).toAlignedRect());
    reset.setGeometry(QRectF({left, middle + half}, size).toAlignedRect());
}

void StopwatchModule::placeButtonsBelow(const QRectF& body) {
    constexpr double digitShare = 0.46;
    constexpr double roomShare = 0.8;
    const double gap = partGap * scale();
    QRectF upper = body;
    upper.setHeight(body.height() * digitShare);
    const QRectF well = wellIn(upper, digits, upper.height());
    digits.setGeometry(well.toAlignedRect());
    const QRectF lower(body.left(), well.bottom(), body.width(), body.bottom() - well.bottom());
    const double high = std::min(buttonSize().height() * 1.3, lower.height() * roomShare);
    const QSizeF size((body.width() - gap) / 2, high);
    const double top = lower.center().y() - high / 2;
    start.setGeometry(QRectF({body.left(), top}, size).toAlignedRect());
    reset.setGeometry(QRectF({body.right() - size.width(), top}, size).toAlignedRect());
}

} // namespace tarnel
