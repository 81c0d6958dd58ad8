#include "instruments/user_control_1.h"

#include "core/angle.h"
#include "core/rounding.h"
#include "instruments/instrument_files.h"
#include "instruments/instrument_look.h"

namespace tarnel {

namespace {

BackgroundChoice choiceOf(const UserControl_1& instrument) {
    return {instrument.c_Large == 1, instrument.c_NAVselect, instrument.c_ADFCardselect};
}

} // namespace

UserControl_1::UserControl_1() {
    resize();
}

std::optional<InstrumentKind> UserControl_1::kind() const {
    if (Display < 1 || Display > 5)
        return std::nullopt;
    return static_cast<InstrumentKind>(Display.get());
}

void UserControl_1::switchDisplay() {
    loadBackground();
    if (const auto shown = kind())
        square = CardSquare(picture.size, cardScaleOf(*shown));
    lastAngle = -1;
    lockKnobs();
    Initialize_Display();
    UpdateInstrument();
}

void UserControl_1::resize() {
    sizeInstrument(picture, c_Large == 1);
}

void UserControl_1::lockKnobs() {
    const bool free = c_DisableKnobs != 0;
    picture.surface.set(picture.Image2.enabled, free);
    picture.surface.set(picture.Image3.enabled, free);
    picture.surface.set(picture.Image4.enabled, free && (turnsCourse() || !showsCourse()));
}

void UserControl_1::loadBackground() {
    const auto shown = kind();
    if (!shown)
        return;
    picture.surface.set(picture.Image1.file,
                        pathIn(c_MainAppPath.get(), backgroundName(*shown, choiceOf(*this))));
    showCourseKnob();
    if (is(InstrumentKind::vor))
        LoadVORDisplay(flagKindOf(flagState));
}

/// The knob stands only where what it turns is seen: a course, or the card of an ADF that is turned
/// by hand.
void UserControl_1::showCourseKnob() {
    const bool turnsCard = is(InstrumentKind::adf) && c_ADFCardselect == fixedCard;
    picture.surface.show(picture.Image4, showsCourse() || turnsCard);
}

void UserControl_1::LoadVORDisplay(std::int16_t flagKind) {
    const std::string name = vorBackgroundName(flagKind, choiceOf(*this));
    if (!name.empty())
        picture.surface.set(picture.Image1.file, pathIn(c_MainAppPath.get(), name));
}

void UserControl_1::Initialize_Display() {
    const auto shown = kind();
    if (!shown) {
        if (showMessage)
            showMessage("Unsupported Dislpay");
        return;
    }
    dressInstrument(picture, *shown, c_Large == 1);
    placeFixedParts(picture, square);
    drawn.needle2.reset();
    drawn.bug.reset();
    forceRedraw = 1;
}

void UserControl_1::UpdateInstrument() {
    updateDeviation();
    updateSecondNeedle();
    updateFirstNeedle();
    updateCard();
    drawn.adfradial = adfradial;
    drawn.adf2radial = adf2radial;
    drawn.c_OBS = c_OBS;
    drawn.c_OBS_x = c_OBS_x;
    drawn.c_HDG = c_HDG;
}

void UserControl_1::updateDeviation() {
    if (!showsCourse())
        return;
    if (forceRedraw != 1 && c_OBS_x == drawn.c_OBS_x && c_OBS == drawn.c_OBS &&
        c_HDG == drawn.c_HDG && adf2radial == drawn.adf2radial)
        return;
    VOR(c_OBS, c_OBS_x, c_HDG, adf2radial);
    forceRedraw = 0;
}

void UserControl_1::VOR(double course, double courseX, double heading, double radial) {
    const Receiver receiver = receiverFor(c_LOCEN);
    const NeedleReading needle = readNeedle(receiver, course, radial, cdiDeviation);
    deviation = needle.deviation;
    if (needle.sector != Sector::abeam)
        cdiDeviation = toInt16(needle.deviation);
    showFlag(needle, receiver.localizer);

    const std::int16_t rotation = toInt16(courseX + heading);
    if (rotation != lastHsiRotation || forceRedraw == 1) {
        lastHsiRotation = rotation;
        hsiRotation = toInt16(notAbove360<int>(rotation));
        if (!is(InstrumentKind::hsi))
            hsiRotation = 0;
        turnDots(picture, square, hsiRotation);
    }

    const double travel = barTravel(receiver, needle.deviation);
    if (is(InstrumentKind::vor))
        placeBar(picture, square, travel);
    if (is(InstrumentKind::hsi)) {
        const int flagRotation = needle.sector == Sector::from ? 180 : 0;
        turnCourseArrow(picture, square, hsiRotation, toInt16(hsiRotation + flagRotation), travel);
    }
}

void UserControl_1::showFlag(const NeedleReading& needle, bool localizer) {
    DrawingSurface& surface = picture.surface;
    const bool abeam = needle.sector == Sector::abeam;
    surface.set(picture.flagged, abeam);
    surface.set<std::string>(picture.Label2_4.caption, abeam ? "/////" : "");
    surface.show(picture.Text1, abeam && is(InstrumentKind::hsi));
    for (Line& side : picture.Line15)
        surface.show(side, !localizer && is(InstrumentKind::hsi));
    if (is(InstrumentKind::vor) && needle.flag != flagState)
        LoadVORDisplay(flagKindOf(needle.flag));
    flagState = needle.flag;
    sector = needle.sector;
}

void UserControl_1::updateSecondNeedle() {
    const bool onHsi = is(InstrumentKind::hsi);
    const bool overlay = onHsi && c_RMIoverlayEN == 1;
    const bool shown = overlay || is(InstrumentKind::rmi);
    picture.surface.set(picture.secondNeedle,
                        shown ? secondNeedleOf(picture.kind) : NeedleRole::none);
    if (!onHsi && !shown)
        return;
    picture.surface.set(picture.Label2_3.caption, c_LabelText4.get());

    const std::int16_t radial = toInt16(adf2radial);
    const std::int16_t needle2 = onHsi ? toInt16(radial - 180 + c_HDG) : radial;
    for (std::size_t i = 0; i < picture.Line7to12.size(); ++i) {
        const bool singleShaft = i >= 2 && i <= 4;
        picture.surface.show(picture.Line7to12[i], !onHsi || (overlay && singleShaft));
    }
    if (needle2 == drawn.needle2)
        return;
    turnSecondNeedle(picture, needle2, onHsi ? InstrumentKind::hsi : InstrumentKind::rmi);
    drawn.needle2 = needle2;
}

void UserControl_1::updateFirstNeedle() {
    const bool needleKind = is(InstrumentKind::adf) || is(InstrumentKind::rmi);
    if (forceRedraw != 1 && !(needleKind && adfradial != drawn.adfradial))
        return;
    forceRedraw = 0;
    turnFirstNeedle(picture, square, toInt16(adfradial));
}

void UserControl_1::updateCard() {
    const std::int16_t cardAngle = toInt16(angle);
    if (angle != lastAngle) {
        turnCard(picture, square, cardAngle);
        lastAngle = angle;
    }
    const std::int16_t bugAngle = toInt16(c_HDGbug - (360 - cardAngle));
    if (bugAngle != drawn.bug)
        DrawHDGbug(bugAngle);
}

void UserControl_1::DrawHDGbug(std::int16_t bugAngle) {
    turnHeadingBug(picture, square, bugAngle);
    drawn.bug = bugAngle;
}

InstrumentReading UserControl_1::reading() const {
    const double cardTop = intoCircle(360.0 - angle);
    return {Display,   cardTop,   is(InstrumentKind::hsi) ? c_OBS_x.get() : cardTop,
            deviation, flagState, sector != Sector::abeam};
}

} // namespace tarnel
