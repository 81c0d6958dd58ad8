#pragma once

#include "core/drawing_surface.h"
#include "look/colours.h"

#include <QColor>
#include <QFont>
#include <QLinearGradient>

#include <algorithm>
#include <cmath>

/// The measures of the window and of the pictures that are painted for it, and the colours that are
/// the same by day and by night. Lengths are logical pixels unless they are called a share. What
/// stands on the chart has its colours in `chartColour`.
namespace tarnel::look {

/// A colour of a drawing surface, 0xBBGGRR.
constexpr QColor fromSurface(Colour colour) {
    return {static_cast<int>(colour & 0xFF), static_cast<int>(colour >> 8 & 0xFF),
            static_cast<int>(colour >> 16 & 0xFF)};
}

inline QColor faded(QColor colour, double opacity) {
    colour.setAlphaF(static_cast<float>(opacity));
    return colour;
}

/// A gradient from top to bottom: there is one light, and it stands above.
inline QLinearGradient downward(double top, double bottom, QColor upper, QColor lower) {
    QLinearGradient gradient(0, top, 0, bottom);
    gradient.setColorAt(0, upper);
    gradient.setColorAt(1, lower);
    return gradient;
}

// Dark panel: gradients from top to bottom.
inline constexpr QColor panelTop = rgb(0x24292E);
inline constexpr QColor panelBottom = rgb(0x1A1E22);
inline constexpr QColor moduleTop = rgb(0x33393F);
inline constexpr QColor moduleBottom = rgb(0x292E33);
inline constexpr QColor bezelTop = rgb(0x41474E);
inline constexpr QColor bezelBottom = rgb(0x24282D);
inline constexpr QColor dialTop = rgb(0x1A1C1E);
inline constexpr QColor dialBottom = rgb(0x131516);
inline constexpr QColor digitWell = rgb(0x0A0D0D);
inline constexpr QColor caption = rgb(0xE6EAEE);
inline constexpr QColor unit = rgb(0xA9B3BD);

// Digits.
inline constexpr QColor setByYou = rgb(0xFFC14D);
inline constexpr QColor measured = rgb(0x5FE08E);

// Instruments.
inline constexpr QColor ticks = rgb(0xF3F4F2);
inline constexpr QColor course = rgb(0xFFDF00);
inline constexpr QColor headingBug = rgb(0xFF8000);
inline constexpr QColor needleOne = rgb(0xFFC81E);
inline constexpr QColor needleTwo = rgb(0x35D27B);

// Chart.
inline constexpr QColor paper = rgb(0xFFFFFF);

/// What a colour of `opacity` looks like on the paper, itself opaque: much cheaper to paint.
inline QColor onPaper(const QColor& colour, double opacity) {
    return over(paper, colour, opacity);
}

inline constexpr QColor gridMile = rgb(0xF4F6F9);
inline constexpr QColor gridFiveMiles = rgb(0xE7ECF1);
inline constexpr QColor gridTenMiles = rgb(0xDCE3EA);

// Type, heights in pixels.
inline constexpr int bodyType = 13;
inline constexpr int denseType = 12;   ///< dense controls and the status bar
inline constexpr int captionType = 12; ///< bold
inline constexpr int unitType = 11;    ///< units and what is secondary
inline constexpr int scaleType = 10;

inline QFont font(double pixels, QFont::Weight weight = QFont::Normal) {
    QFont result(QStringLiteral("Liberation Sans"));
    result.setPixelSize(std::max(1, static_cast<int>(std::lround(pixels))));
    result.setWeight(weight);
    return result;
}

/// The least side of what a pointer presses: WCAG 2.2, 2.5.8.
inline constexpr int leastTarget = 24;

// Spacing.
inline constexpr int gap = 8; ///< outer margin, gutters, inset of the panel
inline constexpr int cardInset = 10;
inline constexpr int moduleInset = 12;
inline constexpr int statusHeight = 26;
inline constexpr double paperRadius = 3;
inline constexpr double controlRadius = 5;
inline constexpr double moduleRadius = 6;
inline constexpr double panelRadius = 8;
inline constexpr double bezelRadiusShare = 0.045; ///< of the bezel

/// Shares of the bezel's side.
namespace bezel {
inline constexpr double glassRadius = 0.448;
inline constexpr double knobRadius = 0.062;
inline constexpr double knobInset = 0.088; ///< its centre from both edges
inline constexpr double channelButtonWidth = 0.205;
inline constexpr double selectorWidth = 0.19; ///< of the two keys at the top right
inline constexpr double keyHeight = 0.064;    ///< of that button and of these keys
inline constexpr double keyInset = 0.028;     ///< from both edges
inline constexpr double lettering = 0.029;    ///< but never below `smallestLettering`
inline constexpr int smallestLettering = 9;
} // namespace bezel

/// Shares of the card's radius, which is a share of the glass.
namespace card_share {
inline constexpr double numeralHeight = 0.132;
inline constexpr double cardinalHeight = 0.155;
} // namespace card_share

/// Pictures of digits, seven segments: a cell with a margin for the glow around the figure.
namespace digits {
inline constexpr int cellWidth = 168;
inline constexpr int cellHeight = 271;
inline constexpr int cellMargin = 9;
inline constexpr int figureHeight = cellHeight - 2 * cellMargin;
inline constexpr double strokeShare = 0.13; ///< of the height
} // namespace digits

/// Pictures of knobs.
namespace knob {
inline constexpr double rimInPicture = 0.75; ///< of half the picture; the rest is for the shadow
inline constexpr double innerCap = 0.56;     ///< of a concentric knob, of the outer rim
inline constexpr double pointerFrom = 0.24;  ///< of the rim
inline constexpr double pointerTo = 0.66;
} // namespace knob

} // namespace tarnel::look
