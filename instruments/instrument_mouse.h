#pragma once

#include "core/drawing_surface.h"
#include "instruments/knob_drag.h"

#include <cstdint>

namespace tarnel {

class UserControl_1;
struct KnobArea;

/// What can be turned or clicked on an instrument.
enum class InstrumentArea { none, obsKnob, headingBugKnob, selector, card, headingBug };

/// The mouse on an instrument: it turns the knobs and the card and clicks the selector. Positions
/// are twips of the control. While `c_DisableKnobs` is 0 nothing takes the mouse.
///
/// A drag runs on its horizontal way: 40 twips a degree with the left button, 250 with any other.
/// To the right the heading bug rises and the course falls. A drag on the dial goes round with the
/// hand: it turns the VOR indicator's card, the HSI's course arrow and the heading bug.
class InstrumentMouse {
  public:
    explicit InstrumentMouse(UserControl_1& control) : instrument(control) {}

    /// What takes the mouse at a position.
    [[nodiscard]] InstrumentArea areaAt(Point at) const;

    /// A press; says what it took hold of. A press on a numeral of a VOR indicator or HSI sets the
    /// course under it; the cards of other kinds have no course to set.
    InstrumentArea down(Point at);
    void move(Point at, MouseButton held);
    /// A release; over the selector, if it was pressed there, it is a click.
    void up(Point at);
    /// A press and a release at one place.
    void click(Point at);
    /// On the heading bug knob: the bug to the heading under the lubber line. Elsewhere a press.
    void doubleClick(Point at);

    /// Turns by wheel or key: the heading bug or the course (by its knob or on the dial) rises by
    /// one degree a step. Any number of steps on the selector is one click.
    void stepKnob(InstrumentArea area, int steps);

    /// To be called when the values that a drag counts from were set.
    void headingBugWasSet();
    void mouseObsWasSet();

  private:
    /// The knob of an area; null for what is taken on the dial.
    [[nodiscard]] const KnobArea* knobOf(InstrumentArea area) const;
    /// Twips from the left edge of the knob that was pressed.
    [[nodiscard]] double acrossKnob(Point at) const;
    [[nodiscard]] bool usable(InstrumentArea area) const;
    /// The bearing of a position from the middle, whole degrees from the top of the instrument.
    [[nodiscard]] double bearingOf(Point at) const;
    [[nodiscard]] bool onNumeral(Point at) const;
    [[nodiscard]] bool onHeadingBug(Point at) const;
    void grabCard(Point at);
    void dragCard(Point at);
    void turnHeadingBug(double heading);
    void turnCourse(double mouseObs);
    void clickSelector();

    UserControl_1& instrument;
    InstrumentArea pressed = InstrumentArea::none;
    KnobDrag hdgDrag;
    KnobDrag obsDrag;
    double cardGrab = 0; ///< what a VOR indicator's card stands away from the hand
    double bugGrab = 0;  ///< what the bug stands away from the hand
};

} // namespace tarnel
