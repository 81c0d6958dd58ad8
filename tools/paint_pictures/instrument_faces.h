// The faces of all instruments: which picture file consists of which parts.
#pragma once

#include "tools/paint_pictures/bezel_painter.h"
#include "tools/paint_pictures/dial_painter.h"

#include <QImage>
#include <QString>

#include <optional>
#include <vector>

namespace tarnel {

// Everything on one instrument's face that never moves. An empty word means that there is none.
struct FaceParts {
    QString fileStem;
    QString typeWord;
    DialShape shape;
    TopMark topMark = TopMark::Triangle;
    std::optional<Selector> selector;
    QString leftKnob;
    QString rightKnob;
    std::optional<WindowFlag> flag;
};

// The side in pixels and what the file name gets behind its stem.
struct FaceForm {
    int side;
    QString suffix;
};

std::vector<FaceParts> instrumentFaces();

std::vector<FaceForm> faceForms();

QImage paintFace(const FaceParts& parts, int side);

} // namespace tarnel
