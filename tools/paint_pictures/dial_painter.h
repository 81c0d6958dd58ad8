// The dial under the glass: the matt card, the fixed marks around it, the flag window, the glass.
// Lengths are fractions of half the side, measured from the centre, y downward.
#pragma once

#include <QPainter>

namespace tarnel {

struct DialShape {
    double glassRadius;
    double cardRadius; // where the live ticks end
};

enum class TopMark { Triangle, SlimBar };

enum class WindowFlag { To, From, Closed };

void paintCard(QPainter& painter, const DialShape& shape);

// The mark at the top and the bars at every further 45 degrees, between the card and the glass.
void paintFixedMarks(QPainter& painter, const DialShape& shape, TopMark topMark);

void paintFlagWindow(QPainter& painter, WindowFlag flag);

// The reflection of the light on the upper half of the glass, at most a tenth of white.
void paintGlass(QPainter& painter, const DialShape& shape);

} // namespace tarnel
