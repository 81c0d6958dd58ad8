#include "shell/form_1.h"

namespace tarnel {

namespace {

/// What `c_WindSetEN` asks for.
enum WindMode : std::int16_t { windNone, windDrawn, windByChance, windAgain };

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
    windPage.show.onClick = [this] { showWind(); };
}

bool Form1::windIsTold() const {
    const WindSource source = UserControl11.windSource;
    return source == WindSource::none || source == WindSource::byHand || windPage.show.value() == 1;
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
    UserControl2& sim = UserControl11;
    const bool told = windPage.show.value() == 1;
    sim.tellChanceWind(told);
    windPage.readout.setText(told ? sim.c_wind.get() : text(Text::windHidden));
    if (sim.windSource == WindSource::byChance) {
        windPage.random.show();
        windPanel.setText(text(Text::panelWindRandom));
    } else if (sim.windSource == WindSource::none) {
        windPage.none.show();
        windPanel.setText(text(Text::panelWindOff));
    } else {
        windPage.manual.show();
        windPanel.setText(text(Text::panelWindManual));
    }
}

} // namespace tarnel
