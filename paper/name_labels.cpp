#include "paper/name_labels.h"

#include "paper/line_clipping.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <numbers>

namespace tarnel {

namespace {

constexpr double degreesPerRadian = 180 / std::numbers::pi;

/// The size that a name label is taken to have where its anchor is set, in twips.
constexpr double nominalWidth = 560;
constexpr double nominalHeight = 400;
constexpr double levelTwips = 50;  ///< what stands no lower than that counts as beside or above
constexpr double leastLean = 0.45; ///< of the longer side

constexpr int turnSteps = 24;
constexpr int rings = 4;
constexpr double ringShare = 0.75; ///< of the label's height
constexpr double labelGap = 3;     ///< between two labels
constexpr double paperMargin = 4;
constexpr double smallestSine = 1e-3;

// What a place costs. Standing on the far side costs 1.
constexpr double ringCost = 0.35;
constexpr double labelTouchCost = 2;
constexpr double labelCost = 10;
constexpr double areaTouchCost = 0.6;
constexpr double areaCost = 8;
constexpr double lineCost = 0.5;
constexpr double ownSymbolCost = 8;
constexpr double symbolCost = 6;
constexpr double roseCost = 1.5;
constexpr double leaderCost = 1;
constexpr double habitBonus = 0.12; ///< more than one step

struct Candidate {
    Box box;
    bool leftOfStation = false;
    int turn = 0;
    int ring = 0;
};

/// The part of `box` that `other` covers, 0 to 1.
double coveredShare(const Box& box, const Box& other) {
    return box.sharedArea(other) / (box.width * box.height);
}

Box squareAbout(Spot centre, double radius) {
    return Box::about(centre, {2 * radius, 2 * radius});
}

double distanceTo(const Box& box, Spot point) {
    const double dx = std::max({box.left - point.x, 0.0, point.x - box.right()});
    const double dy = std::max({box.top - point.y, 0.0, point.y - box.bottom()});
    return std::hypot(dx, dy);
}

/// How far out the middle of the bar stands on a bearing with that sine and cosine, so that the
/// whole box is `clearance` away from the station.
double barDistance(double sine, double cosine, double height, double clearance) {
    const double rise = height * std::abs(cosine);
    const double root = rise * rise - height * height + 4 * clearance * clearance;
    if (root >= 0) {
        const double byCorner = (rise + std::sqrt(root)) / 2;
        if (byCorner * std::abs(cosine) >= height / 2)
            return byCorner;
    }
    return clearance / std::max(std::abs(sine), smallestSine);
}

Box within(Box box, const Box& paper) {
    box.left = std::clamp(box.left, paper.left, std::max(paper.left, paper.right() - box.width));
    box.top = std::clamp(box.top, paper.top, std::max(paper.top, paper.bottom() - box.height));
    return box;
}

Candidate candidateFor(const NameLabel& label, int turn, int ring, const Box& paper) {
    const double angle = (label.side + turn * 360.0 / turnSteps) / degreesPerRadian;
    const double sine = std::sin(angle);
    const double cosine = std::cos(angle);
    const double height = label.size.height;
    const double distance =
        barDistance(sine, cosine, height, label.clearance) + ring * ringShare * height;
    const bool left = sine < 0;
    const Spot bar = label.station + Spot{sine, -cosine} * distance;
    const Box box{left ? bar.x - label.size.width : bar.x, bar.y - height / 2, label.size.width,
                  height};
    return {within(box, paper), left, turn, ring};
}

void apply(const Candidate& candidate, NameLabel& label) {
    label.box = candidate.box;
    label.leftOfStation = candidate.leftOfStation;
    label.turn = candidate.turn;
    label.ring = candidate.ring;
}

double effort(const NameLabel& label, int turn, int ring) {
    const double far = std::abs(turn) / (turnSteps / 2.0) + ring * ringCost;
    return label.turn == turn && label.ring == ring ? far - habitBonus : far;
}

/// The cost of standing near another label; its box is empty while it has no place yet.
double crowding(const NameLabel& tried, const NameLabel& other) {
    const Box room = tried.box.grownBy(labelGap);
    double cost = symbolCost * coveredShare(room, squareAbout(other.station, other.symbolRadius)) +
                  roseCost * coveredShare(room, squareAbout(other.station, other.clearance));
    if (other.box.empty())
        return cost;
    cost += labelCost * coveredShare(room, other.box);
    if (tried.box.overlaps(other.box))
        cost += labelTouchCost;
    if (clipped(tried.leader(), other.box) || clipped(other.leader(), tried.box))
        cost += leaderCost;
    return cost;
}

double costAt(const NameLabel& tried, std::size_t own, std::span<const NameLabel> labels,
              const LabelObstacles& obstacles) {
    double cost = 0;
    const double away = distanceTo(tried.box, tried.station);
    if (away < tried.clearance - 1)
        cost += ownSymbolCost * (1 - away / tried.clearance);
    for (const Box& area : obstacles.areas)
        if (const double share = coveredShare(tried.box, area); share > 0)
            cost += areaTouchCost + areaCost * share;
    for (const Stroke& line : obstacles.lines)
        if (clipped(line, tried.box))
            cost += lineCost;
    for (std::size_t i = 0; i < labels.size(); ++i)
        if (i != own && labels[i].shown)
            cost += crowding(tried, labels[i]);
    return cost;
}

void placeLabel(std::size_t own, std::span<NameLabel> labels, const Box& paper,
                const LabelObstacles& obstacles) {
    const NameLabel before = labels[own];
    NameLabel tried = before;
    double best = std::numeric_limits<double>::infinity();
    for (int ring = 0; ring < rings; ++ring) {
        for (int turn = 1 - turnSteps / 2; turn <= turnSteps / 2; ++turn) {
            const double least = effort(before, turn, ring);
            if (least >= best)
                continue;
            apply(candidateFor(before, turn, ring, paper), tried);
            const double cost = least + costAt(tried, own, labels, obstacles);
            if (cost >= best)
                continue;
            best = cost;
            labels[own] = tried;
        }
    }
}

} // namespace

Stroke NameLabel::bar() const {
    const double x = leftOfStation ? box.right() : box.left;
    return {{x, box.top}, {x, box.bottom()}};
}

Stroke NameLabel::leader() const {
    Stroke line{station, bar().middle()};
    const double length = line.length();
    if (length > symbolRadius)
        line.from = line.at(symbolRadius / length);
    return line;
}

double sideOf(const StationSymbol& symbol) {
    const double dx = symbol.name.anchor.x + nominalWidth / 2 - symbol.leader.from.x;
    const double dy = symbol.name.anchor.y + nominalHeight / 2 - symbol.leader.from.y;
    const double across = std::max(std::abs(dx), leastLean * std::abs(dy));
    const double along = std::max(std::abs(dy), leastLean * std::abs(dx));
    return degreesPerRadian *
           std::atan2(std::copysign(across, dx), std::copysign(along, dy > levelTwips ? -1 : 1));
}

void placeLabels(std::span<NameLabel> labels, const Box& paper, const LabelObstacles& obstacles) {
    const Box inner = paper.grownBy(-paperMargin);
    for (NameLabel& label : labels)
        label.box = {};
    // The second round lets the first labels see those that were placed after them.
    for (int round = 0; round < 2; ++round)
        for (std::size_t i = 0; i < labels.size(); ++i)
            if (labels[i].shown)
                placeLabel(i, labels, inner, obstacles);
}

} // namespace tarnel
