#include "window/radios/dme_module.h"

#include "window/radios/receiver_travel.h"
#include "window/widgets/spoken.h"
#include "window/widgets/text_of.h"

#include <algorithm>
#include <array>

namespace tarnel {

namespace {

constexpr double columns = 2;
constexpr std::size_t wholeMegahertz = 3;
constexpr std::size_t wholeMiles = 2;

} // namespace

DmeModule::DmeModule(DMEControlFace& dme, PictureStore& pictures, const StringTable& table,
                     QWidget* parent)
    : ModuleFrame(textOf(table, Text::faceDme), parent),
      face(dme),
      texts(table),
      frequency(dme.frequency, pictures, {.pointAfter = wholeMegahertz}, this),
      distance(dme.distance, pictures, {.pointAfter = wholeMiles, .measured = true}, this),
      speed(dme.speed, pictures, {.measured = true}, this),
      sourceSelector(dme, pictures, table, this) {
    frequency.setToolTip(textOf(texts, Text::dmeFrequencyTip));
    frequency.setAccessibleName(accessibleName() + ", " + textOf(texts, Text::spokenFrequencyKnob));
    frequency.step = [this](int steps) {
        guard([this, steps] { steps > 0 ? face.stepUp() : face.stepDown(); });
        refresh();
    };
    frequency.travel = [this] { return travelOf(face); };
    sourceSelector.guard = [this](const std::function<void()>& action) {
        guard(action);
        refresh();
    };
    refresh();
}

void DmeModule::refresh() {
    const bool own = face.mode() == DmeMode::freq;
    for (DigitDisplay* digits : {static_cast<DigitDisplay*>(&frequency), &distance, &speed}) {
        digits->refresh();
        digits->setDimmed(face.c_OnOff != 1);
    }
    setDimmed(face.c_OnOff != 1);
    distance.setPointShown(!face.wholeMiles());
    frequency.setMeasured(!own);
    frequency.setOffered(own && face.knobActs());
    sourceSelector.refresh();
    speak();
}

void DmeModule::speak() {
    const auto measured = station ? station() : std::nullopt;
    if (face.surface.revision() == spoken && measured == spokenOf)
        return;
    spoken = face.surface.revision();
    spokenOf = measured;
    setSpokenDescription(*this, QString::fromStdString(spokenDme(face, measured, texts)));
    const auto told = [this](const DigitReadout& digits, std::size_t pointAfter) {
        return QString::fromStdString(spokenDigits(digits, pointAfter, texts));
    };
    setSpokenDescription(frequency, told(face.frequency, wholeMegahertz));
    setSpokenName(distance, told(face.distance, face.wholeMiles() ? 0 : wholeMiles) + ' ' +
                                textOf(texts, Text::unitNauticalMiles));
    setSpokenName(speed, told(face.speed, 0) + ' ' + textOf(texts, Text::unitKnots));
}

void DmeModule::placeParts(const QRectF& body) {
    constexpr double digitShare = 0.46;
    const double gap = partGap * scale();
    sourceSelector.setScale(scale());
    if (isStacked(body.size(), columns, scale())) {
        QRectF upper = body;
        upper.setHeight(body.height() * digitShare);
        placeWells(upper, upper.height());
        const double top = frequency.geometry().bottom() + 1 + gap / 2;
        const double high = body.bottom() - top;
        const double wide = sourceSelector.widthFor(high);
        sourceSelector.setGeometry(
            QRectF(body.center().x() - wide / 2, top, wide, high).toAlignedRect());
        return;
    }
    constexpr double knobShare = 0.15;
    const double high = std::min(body.height(), body.width() * knobShare);
    const double wide = sourceSelector.widthFor(high);
    placeWells(body.adjusted(0, 0, -wide - gap, 0), wellHeightIn(body.height(), scale()));
    sourceSelector.setGeometry(
        QRectF(body.right() - wide, body.center().y() - high / 2, wide, high).toAlignedRect());
}

/// All digits are of one height: each well gets the width that its digits need.
void DmeModule::placeWells(const QRectF& row, double highest) {
    const std::array<DigitDisplay*, 3> wells{&frequency, &distance, &speed};
    const double gap = partGap * scale();
    double total = 0;
    for (DigitDisplay* digits : wells) {
        digits->setScale(scale());
        total += digits->widthPerHeight();
    }
    const double perHeight = (row.width() - gap * (wells.size() - 1)) / total;
    QRectF cell = row;
    std::vector<Unit> wellUnits;
    const std::array unitTexts{Text::unitMegahertz, Text::unitNauticalMiles, Text::unitKnots};
    for (std::size_t i = 0; i < wells.size(); ++i) {
        cell.setWidth(perHeight * wells[i]->widthPerHeight());
        wells[i]->setGeometry(wellIn(cell, *wells[i], highest).toAlignedRect());
        wellUnits.push_back({textOf(texts, unitTexts[i]), cell.right()});
        cell.moveLeft(cell.right() + gap);
    }
    setUnits(std::move(wellUnits));
}

} // namespace tarnel
