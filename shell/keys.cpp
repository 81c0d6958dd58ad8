#include "shell/form_1.h"

namespace tarnel {

/// The letters in brackets on the status panels.
bool Form1::pressKey(char letter) {
    if (questionOpen() && letter != 'M')
        return false;
    switch (letter) {
    case 'M':
        startButton.click();
        break;
    case 'P':
        (replayOn != 0 ? replayPage.stop : replayPage.play).click();
        break;
    case 'H':
        replayPage.hide.click();
        break;
    case 'T':
        chartPage.trace.click();
        break;
    case 'V':
        if (chartPage.vectors.enabled())
            chartPage.vectors.set((vectorMode + 1) % 3);
        break;
    case 'W':
        cycleWind();
        break;
    case 'R':
        radialCycleButton.click();
        break;
    default:
        return false;
    }
    return true;
}

} // namespace tarnel
