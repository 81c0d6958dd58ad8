#include "shell/wind_desk.h"

#include "engine/wind_request.h"

namespace tarnel {

WindDesk::WindDesk(UserControl2& simulation, TrainerControls& controls, ChartDisplay& chartDisplay,
                   const StringTable& table)
    : sim(simulation), strip(controls), texts(table) {
    WindPage& page = strip.windPage;
    const auto request = [this](WindRequest wanted) {
        return [this, wanted] { sim.c_WindSetEN = static_cast<std::int16_t>(wanted); };
    };
    page.none.onClick = request(WindRequest::none);
    page.manual.onClick = request(WindRequest::lastAgain);
    page.random.onClick = request(WindRequest::byChance);
    page.random.repeats = true;
    page.draw.onClick = [&chartDisplay, draw = request(WindRequest::drawn)] {
        chartDisplay.setNorthUp(true);
        draw();
    };
    page.show.onClick = [this] { show(); };
}

bool WindDesk::isTold() const {
    return sim.windSource == WindSource::none || sim.windSource == WindSource::byHand || asked();
}

void WindDesk::step() {
    WindPage& page = strip.windPage;
    if (page.none.chosen())
        page.manual.click();
    else if (page.manual.chosen())
        page.random.click();
    else
        page.none.click();
}

void WindDesk::show() {
    WindPage& page = strip.windPage;
    sim.tellChanceWind(asked());
    page.readout.setText(asked() ? sim.c_wind.get() : std::string(texts[Text::windHidden]));
    if (sim.windSource == WindSource::byChance) {
        page.random.show();
        strip.windPanel.setText(std::string(texts[Text::panelWindRandom]));
    } else if (sim.windSource == WindSource::none) {
        page.none.show();
        strip.windPanel.setText(std::string(texts[Text::panelWindOff]));
    } else {
        page.manual.show();
        strip.windPanel.setText(std::string(texts[Text::panelWindManual]));
    }
}

} // namespace tarnel
