#include "panel/instrument_position.h"

#include "core/angle.h"

namespace tarnel {

namespace {

/// A dial from the instrument's mouse output, which counts the other way round, and back. Both in
/// 0 to 360 with both ends allowed.
double turnedRound(double degrees) {
    return notAbove360(notNegative(360 - degrees));
}

} // namespace

double InstrumentPosition::dial() const {
    if (type == adf)
        return adfCard;
    return type == hsi ? obsHsi : obs;
}

void InstrumentPosition::setDial(double degrees) {
    if (type == adf)
        adfCard = degrees;
    else
        obs = obsHsi = degrees;
    matchKnob();
}

void InstrumentPosition::matchKnob() {
    instrument.c_MouseOBS_HSI = turnedRound(type == adf ? adfCard : obsHsi);
    instrument.c_MouseOBS = turnedRound(type == adf ? adfCard : obs);
    mouseObsSeen = instrument.c_MouseOBS;
}

void InstrumentPosition::followKnob() {
    if (instrument.c_MouseOBS == mouseObsSeen)
        return;
    mouseObsSeen = instrument.c_MouseOBS;
    if (type == adf) {
        adfCard = turnedRound(instrument.c_MouseOBS);
        return;
    }
    obs = turnedRound(instrument.c_MouseOBS);
    obsHsi = turnedRound(instrument.c_MouseOBS_HSI);
}

void InstrumentPosition::setType(std::int16_t next) {
    if (next == adf && type != adf)
        adfCard = 0;
    type = next;
    matchKnob();
}

} // namespace tarnel
