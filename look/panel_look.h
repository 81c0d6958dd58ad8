#pragma once

#include "look/look.h"

/// What only the dark panel's painted parts need of colours and measures.
namespace tarnel::look {

inline constexpr QColor panelAccent = rgb(0x5B9BD8);  ///< "act" on the dark panel: hover and focus
inline constexpr QColor panelChosen = rgb(0x1B5FAA);  ///< "act": the ground of what is chosen
inline constexpr QColor panelFocus = rgb(0x8CC4FF);   ///< the ring around what has the keyboard
inline constexpr QColor panelRing = rgb(0x0E1113);    ///< the dark gap under a focus ring
inline constexpr QColor deviationBar = rgb(0xFF8000); ///< of the VOR indicator
inline constexpr QColor overlayNeedle = rgb(0xA9C4FF);
inline constexpr QColor flagRed = rgb(0xD8322A);
inline constexpr QColor shapeEdge = rgb(0x0B0C0D); ///< around needles, bug and aircraft
inline constexpr QColor hubRim = rgb(0x6A737C);
inline constexpr QColor keyTop = rgb(0x474D55);
inline constexpr QColor keyBottom = rgb(0x2D3238);
inline constexpr QColor dimCaption = rgb(0xA0A9B2); ///< of what is locked or switched off

/// How strongly what is locked or switched off still shows: knobs and marks, and digits, which have
/// to be read.
inline constexpr double dimmedOpacity = 0.4;
inline constexpr double switchedOffOpacity = 0.62;

/// Twips to a logical pixel at size 1.
inline constexpr double twipsPerPixel = 15;

} // namespace tarnel::look
