#include "shell/form_1.h"

namespace tarnel {

/// The letters in brackets on the status panels.
bool Form1::pressKey(char letter) {
    if (exercise.questionOpen() && letter != 'M')
        return false;
    switch (letter) {
    case 'M':
        // The button rests while a replay plays; the key means to fly from where that stands.
        if (exercise.mayFly() && replay.runs())
            replayPage.stop.click();
        startButton.click();
        break;
    case 'P':
        (replay.runs() ? replayPage.stop : replayPage.play).click();
        break;
    case 'H':
        replayPage.hide.click();
        break;
    case 'T':
        chartPage.trace.click();
        break;
    case 'V':
        display.stepVectors();
        break;
    case 'W':
        windDesk.step();
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
