#include "tools/paint_pictures/instrument_faces.h"

#include "tools/paint_pictures/deep_picture.h"

namespace tarnel {

namespace {

constexpr DialShape cardDial{0.81, 0.741};
constexpr DialShape hsiDial{0.81, 0.702};
constexpr DialShape gyroDial{0.905, 0.858};

Selector receiver(int number) {
    return {"NAV", "1", "2", number == 1};
}

Selector cardKind(bool fixed) {
    return {"CARD", "FIX", "SLV", fixed};
}

FaceParts adf(const QString& stem, bool fixedCard) {
    const QString cardKnob = fixedCard ? "CRD" : "";
    return {stem, "ADF", cardDial, TopMark::Triangle, cardKind(fixedCard), cardKnob, {}, {}};
}

FaceParts rmi(const QString& stem, int nav) {
    return {stem, "RMI", cardDial, TopMark::Triangle, receiver(nav), {}, "HDG", {}};
}

FaceParts vor(const QString& stem, int nav, WindowFlag flag) {
    return {stem, "VOR", cardDial, TopMark::Triangle, receiver(nav), "OBS", {}, flag};
}

FaceParts hsi(const QString& stem, int nav) {
    return {stem, "HSI", hsiDial, TopMark::SlimBar, receiver(nav), "OBS", "HDG", {}};
}

FaceParts directionalGyro(const QString& stem) {
    return {stem, {}, gyroDial, TopMark::Triangle, {}, {}, "HDG", {}};
}

void paintBottomCorner(QPainter& painter, Corner corner, const QString& knobWord) {
    if (knobWord.isEmpty())
        paintScrew(painter, corner);
    else
        paintKnobSeat(painter, corner, knobWord);
}

} // namespace

std::vector<FaceParts> instrumentFaces() {
    return {adf("QXRadff", true),
            adf("QXRadfs", false),
            rmi("qxrrmi1", 1),
            rmi("qxrrmi2", 2),
            vor("QXRvor1t", 1, WindowFlag::To),
            vor("QXRvor1f", 1, WindowFlag::From),
            vor("QXRvor1l", 1, WindowFlag::Closed),
            vor("QXRvor2t", 2, WindowFlag::To),
            vor("QXRvor2f", 2, WindowFlag::From),
            vor("QXRvor2l", 2, WindowFlag::Closed),
            hsi("qxrhsi1", 1),
            hsi("qxrhsi2", 2),
            directionalGyro("qxrhdg")};
}

std::vector<FaceForm> faceForms() {
    return {{1100, ""}, {1500, "g"}};
}

QImage paintFace(const FaceParts& parts, int side) {
    QImage face = deepPicture({side, side});
    QPainter painter(&face);
    useHalfSideUnits(painter, side);
    paintPlate(painter);
    paintRecess(painter, parts.shape.glassRadius);
    paintCard(painter, parts.shape);
    paintFixedMarks(painter, parts.shape, parts.topMark);
    if (parts.flag)
        paintFlagWindow(painter, *parts.flag);
    paintGlass(painter, parts.shape);
    paintTypeWord(painter, parts.typeWord);
    paintBottomCorner(painter, Corner::BottomLeft, parts.leftKnob);
    paintBottomCorner(painter, Corner::BottomRight, parts.rightKnob);
    if (parts.selector)
        paintSelector(painter, *parts.selector);
    else
        paintScrew(painter, Corner::TopRight);
    painter.end();
    return dithered(face);
}

} // namespace tarnel
