#pragma once

#include <QColor>

class QPalette;

/// The colours of the window's own parts, which follow the desktop: bars, cards, fields, texts.
/// The instrument panel is dark by day and by night. What stands on paper is always `day`: the
/// chart, and whatever is written as a page or a picture.
namespace tarnel::look {

/// A colour from 0xRRGGBB.
constexpr QColor rgb(unsigned hex) {
    return {static_cast<int>(hex >> 16 & 0xFF), static_cast<int>(hex >> 8 & 0xFF),
            static_cast<int>(hex & 0xFF)};
}

struct Colours {
    QColor desktop; ///< behind the cards
    QColor bars;
    QColor card;
    QColor field;     ///< what is pressed or written in
    QColor pressed;   ///< such a field under the hand
    QColor tint;      ///< what is chosen
    QColor focusTint; ///< what has the keyboard
    QColor line;
    QColor hairline;
    QColor ink;
    QColor secondaryInk;
    QColor disabledInk;
    QColor accent; ///< means "act" and nothing else
    QColor onAccent;
    QColor accentUnderMouse;
    QColor accentPressed;
    QColor right;
    QColor wrong;
    QColor exceeded; ///< worse than before, outside a limit
    QColor solution;
    QColor first; ///< stations 1, as the chart has them
    QColor second;
    QColor localizer;
    QColor curve; ///< of progress
    QColor quietCurve;
    QColor allExercises;
    QColor askedBar;
    bool operator==(const Colours&) const = default;
};

inline constexpr Colours day{
    .desktop = rgb(0xE8EBEE),
    .bars = rgb(0xF7F8F9),
    .card = rgb(0xFBFCFD),
    .field = rgb(0xFFFFFF),
    .pressed = rgb(0xDDE1E6),
    .tint = rgb(0xDDE7F2),
    .focusTint = rgb(0xEDF2F8),
    .line = rgb(0xC6CCD3),
    .hairline = rgb(0xDDE1E6),
    .ink = rgb(0x1B2128),
    .secondaryInk = rgb(0x55606B),
    .disabledInk = rgb(0x67717B),
    .accent = rgb(0x1B5FAA),
    .onAccent = rgb(0xFFFFFF),
    .accentUnderMouse = rgb(0x1F6DC4),
    .accentPressed = rgb(0x154983),
    .right = rgb(0x1A7440),
    .wrong = rgb(0xB3261E),
    .exceeded = rgb(0xA05200),
    .solution = rgb(0x006080),
    .first = rgb(0xC4262E),
    .second = rgb(0x1F56B8),
    .localizer = rgb(0x3A7458),
    .curve = rgb(0x007C98),
    .quietCurve = rgb(0x5F8CA6),
    .allExercises = rgb(0x7E8994),
    .askedBar = rgb(0xDCE3E8),
};

inline constexpr Colours night{
    .desktop = rgb(0x14171A),
    .bars = rgb(0x1E2226),
    .card = rgb(0x22272B),
    .field = rgb(0x2D3338),
    .pressed = rgb(0x1A1E22),
    .tint = rgb(0x2B3F54),
    .focusTint = rgb(0x2D3B49),
    .line = rgb(0x59636D),
    .hairline = rgb(0x363D44),
    .ink = rgb(0xE6EAEE),
    .secondaryInk = rgb(0xB0BAC4),
    .disabledInk = rgb(0x96A0AA),
    .accent = rgb(0x8CC0F5),
    .onAccent = rgb(0x10171E),
    .accentUnderMouse = rgb(0xA9D1FA),
    .accentPressed = rgb(0x6FA6DE),
    .right = rgb(0x63C98A),
    .wrong = rgb(0xFF958C),
    .exceeded = rgb(0xF0A858),
    .solution = rgb(0x6CC5E0),
    .first = rgb(0xFF958F),
    .second = rgb(0x97B9FF),
    .localizer = rgb(0x7CC8A0),
    .curve = rgb(0x4CB8D4),
    .quietCurve = rgb(0x7FA6BC),
    .allExercises = rgb(0x9AA4AE),
    .askedBar = rgb(0x3A434C),
};

/// The contrast of two opaque colours, 1 to 21: WCAG 2.1, definitions of "contrast ratio" and
/// "relative luminance".
[[nodiscard]] double contrast(const QColor& one, const QColor& other);

/// A colour of `opacity` over an opaque ground, itself opaque.
[[nodiscard]] QColor over(const QColor& ground, const QColor& colour, double opacity);

/// White or dark, whatever is clearer on `ground`.
[[nodiscard]] QColor markOn(const QColor& ground);

/// What suits a desktop of that palette: by day, by night, or the palette's own few colours where
/// it is one of high contrast. The palette that comes of them, `paletteOf`, leads back to them.
[[nodiscard]] Colours coloursFor(const QPalette& desktop);

/// A palette for the controls of Qt's own boxes and dialogs.
[[nodiscard]] QPalette paletteOf(const Colours& colours);

/// Those that are in use.
[[nodiscard]] const Colours& colours();
void useColours(const Colours& next);

} // namespace tarnel::look
