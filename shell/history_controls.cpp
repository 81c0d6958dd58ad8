#include "shell/form_1.h"

namespace tarnel {

void Form1::connectHistory() {
    editMenu.undo.onClick = [this] {
        if (UserControl11.undo())
            showPresentSample();
        followHistory();
    };
    editMenu.redo.onClick = [this] {
        UserControl11.redo();
        followHistory();
    };
}

/// A flight that came back is shown at the sample where it was.
void Form1::showPresentSample() {
    followReplayBar();
    replayIndex = UserControl11.presentSampleIndex();
    replayPage.bar.setValue(replayIndex);
}

/// At rest and outside of exercises, what was done can be taken back.
void Form1::followHistory() {
    const HandHistory& history = UserControl11.history;
    const bool free = simStopped == 1 && !exerciseUp;
    editMenu.undo.setEnabled(free && history.undoable());
    editMenu.redo.setEnabled(free && history.redoable());
}

} // namespace tarnel
