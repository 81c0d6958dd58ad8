// The bezel: the plate around an instrument, its round recess, and what is let into the corners.
// Lengths are fractions of half the side, measured from the centre, y downward.
#pragma once

#include <QPainter>
#include <QPointF>
#include <QString>

namespace tarnel {

enum class Corner { TopRight, BottomLeft, BottomRight };

// Where a selector stands: the first or the second of its two words is lit.
struct Selector {
    QString caption;
    QString firstWord;
    QString secondWord;
    bool firstLit = true;
};

void paintPlate(QPainter& painter);

// The sloping ring and the seal between the plate and a glass of this radius.
void paintRecess(QPainter& painter, double glassRadius);

// The shadowed place of a knob, the scale around it and its word.
void paintKnobSeat(QPainter& painter, Corner corner, const QString& word);

void paintScrew(QPainter& painter, Corner corner);

void paintSelector(QPainter& painter, const Selector& selector);

// The instrument's short name, dim, below the glass.
void paintTypeWord(QPainter& painter, const QString& word);

} // namespace tarnel
