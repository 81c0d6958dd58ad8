#include "look/colours.h"

#include <QPalette>

#include <algorithm>
#include <cmath>

namespace tarnel::look {

namespace {

/// Of window and text; no usual desktop has it, black on light grey comes to 19.
constexpr double highContrast = 19.5;
constexpr double readable = 4.5; ///< WCAG 2.1, 1.4.3

Colours inUse = day;

double luminance(const QColor& colour) {
    const auto linear = [](double channel) {
        return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

/// Edges are as strong as the text. Verdicts keep their hues: they stand out most from pure black
/// and white.
Colours ofHighContrast(const QPalette& desktop, Colours colours) {
    const QColor ground = desktop.color(QPalette::Window);
    const QColor ink = desktop.color(QPalette::WindowText);
    colours.desktop = colours.bars = colours.card = colours.field = colours.pressed = ground;
    colours.ink = colours.secondaryInk = colours.line = colours.hairline = ink;
    colours.disabledInk = over(ground, ink, 0.7);
    colours.accent = ink;
    for (const QPalette::ColorRole role : {QPalette::Link, QPalette::Highlight})
        if (contrast(desktop.color(role), ground) >= readable)
            colours.accent = desktop.color(role);
    colours.accentUnderMouse = colours.accentPressed = colours.accent;
    colours.onAccent = ground;
    colours.tint = over(ground, colours.accent, 0.1);
    colours.focusTint = over(ground, colours.accent, 0.05);
    colours.curve = colours.quietCurve = colours.accent;
    colours.allExercises = ink;
    colours.askedBar = over(ground, ink, 0.25);
    return colours;
}

} // namespace

double contrast(const QColor& one, const QColor& other) {
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

QColor over(const QColor& ground, const QColor& colour, double opacity) {
    const auto mixed = [opacity](int below, int above) {
        return static_cast<int>(std::lround(below + (above - below) * opacity));
    };
    return {mixed(ground.red(), colour.red()), mixed(ground.green(), colour.green()),
            mixed(ground.blue(), colour.blue())};
}

QColor markOn(const QColor& ground) {
    return contrast(day.field, ground) > contrast(day.ink, ground) ? day.field : day.ink;
}

Colours coloursFor(const QPalette& desktop) {
    const QColor ground = desktop.color(QPalette::Window);
    const QColor ink = desktop.color(QPalette::WindowText);
    const Colours& usual = luminance(ground) < luminance(ink) ? night : day;
    return contrast(ground, ink) < highContrast ? usual : ofHighContrast(desktop, usual);
}

QPalette paletteOf(const Colours& colours) {
    QPalette palette(colours.field, colours.desktop);
    const std::initializer_list<std::pair<QPalette::ColorRole, QColor>> roles = {
        {QPalette::WindowText, colours.ink},
        {QPalette::Base, colours.field},
        {QPalette::AlternateBase, colours.card},
        {QPalette::Text, colours.ink},
        {QPalette::ButtonText, colours.ink},
        {QPalette::BrightText, colours.wrong},
        {QPalette::Highlight, colours.accent},
        {QPalette::HighlightedText, colours.onAccent},
        {QPalette::Link, colours.accent},
        {QPalette::LinkVisited, colours.secondaryInk},
        {QPalette::ToolTipBase, colours.card},
        {QPalette::ToolTipText, colours.ink},
        {QPalette::PlaceholderText, colours.secondaryInk}};
    for (const auto& [role, colour] : roles)
        palette.setColor(role, colour);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, colours.disabledInk);
    return palette;
}

const Colours& colours() {
    return inUse;
}

void useColours(const Colours& next) {
    inUse = next;
}

} // namespace tarnel::look
