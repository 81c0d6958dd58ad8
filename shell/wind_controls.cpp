#include "shell/form_1.h"

namespace tarnel {

namespace {

/// `c_WindSetEN`.
enum WindMode : std::int16_t { windNone, windDrawn, windByChance, windAgain, windReplayed };

} // namespace

void Form1::connectWind() {
    const auto set = [this](WindMode mode) {
        return [this, mode] { UserControl11.c_WindSetEN = mode; };
    };
    windPage.none.onClick = set(windNone);
    windPage.manual.onClick = set(windAgain);
    windPage.random.onClick = set(windByChance);
    windPage.random.repeats = true;
    windPage.draw.onClick = [this] {
        setNorthUp(true);
        UserControl11.c_WindSetEN = windDrawn;
    };
}

void Form1::setManualWind(double direction, std::int16_t speed) {
    UserControl11.setWind({direction, speed});
}

void Form1::cycleWind() {
    if (windPage.none.chosen())
        windPage.manual.click();
    else if (windPage.manual.chosen())
        windPage.random.click();
    else
        windPage.none.click();
}

/// The wind's read-out, and the option and the panel that tell where it comes from.
void Form1::showWind() {
    const UserControl2& sim = UserControl11;
    windPage.readout.setText(windPage.show.value() == 1 ? sim.c_wind.get()
                                                        : text(Text::windHidden));
    // A tool that was picked tells nothing until it has drawn.
    if (sim.c_WindSetEN == windDrawn && sim.c_wind.get() == windTold)
        return;
    windTold = sim.c_wind;
    const bool calm = sim.wind.speed == 0;
    const std::int16_t mode = sim.c_WindSetEN;
    if (mode == windByChance) {
        windPage.random.show();
        windPanel.setText(text(Text::panelWindRandom));
    } else if (mode == windNone || (mode >= windReplayed && calm)) {
        windPage.none.show();
        windPanel.setText(text(Text::panelWindOff));
    } else {
        windPage.manual.show();
        windPanel.setText(text(Text::panelWindManual));
    }
}

} // namespace tarnel
