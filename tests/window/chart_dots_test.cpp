#include "window/chart/chart_dots.h"
#include "window/chart/chart_ground.h"

#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

#include <functional>

namespace tarnel {
namespace {

constexpr Colour black = 0;
constexpr double diameter = 4.4;

/// Where the ink on white paper lies, logical pixels, and how much it is.
struct Ink {
    QPointF centre;
    double amount = 0;
};

Ink inkOn(const QImage& image) {
    Ink ink;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const double dark = 1 - qGray(image.pixel(x, y)) / 255.0;
            ink.amount += dark;
            ink.centre += QPointF(x + 0.5, y + 0.5) * dark;
        }
    ink.centre /= std::max(ink.amount, 1e-9) * image.devicePixelRatio();
    return ink;
}

QImage painted(const DotLayer& layer, double pixelRatio) {
    const int side = static_cast<int>(200 * pixelRatio);
    QImage image(side, side, QImage::Format_RGB32);
    image.setDevicePixelRatio(pixelRatio);
    image.fill(Qt::white);
    QPainter painter(&image);
    ChartDots dots;
    dots.paint(painter, ChartFrame(200, 4000, pixelRatio), layer.all(), diameter);
    return image;
}

TEST(ChartDots, StandWhereTheyBelongAndHaveTheirSize) {
    const double area = 3.14159 * diameter * diameter / 4;
    for (const double ratio : {1.0, 1.5, 2.0})
        for (const auto& [x, y] :
             {std::pair<short, short>(1000, 1500), {1003, 1511}, {1017, 1498}, {2209, 37}}) {
            DrawingSurface surface;
            DotLayer layer(surface);
            layer.plot(x, y, black);
            const Ink ink = inkOn(painted(layer, ratio));
            if (y < 100) {
                EXPECT_GT(ink.amount, 0) << "cut off by the edge, but there";
                continue;
            }
            EXPECT_NEAR(ink.amount, area * ratio * ratio, 0.06 * area * ratio * ratio);
            EXPECT_NEAR(ink.centre.x(), x / 20.0, 0.2 / ratio) << x << ' ' << ratio;
            EXPECT_NEAR(ink.centre.y(), y / 20.0, 0.2 / ratio) << y << ' ' << ratio;
        }
}

TEST(ChartDots, BesideThePaperAreNotPainted) {
    DrawingSurface surface;
    DotLayer layer(surface);
    layer.plot(-200, 1000, black);
    layer.plot(1000, 32767, black);
    layer.plot(-32768, -32768, black);
    EXPECT_EQ(inkOn(painted(layer, 1)).amount, 0);
}

QImage painted(ChartGround& ground, const ChartPicture& picture, const GridPlace& grid,
               bool traced) {
    QImage image(200, 200, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    ground.paint(painter, ChartFrame(200, picture.size, 1), grid, picture, traced);
    return image;
}

int mostDifference(const QImage& one, const QImage& other) {
    int most = 0;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x)
            most = std::max(most, std::abs(qGray(one.pixel(x, y)) - qGray(other.pixel(x, y))));
    return most;
}

TEST(ChartGround, LooksLikeANewOneWhateverHasChanged) {
    ChartPicture picture;
    GridPlace grid{{40, 50}, 7, 0};
    bool traced = true;
    const std::function<void()> changes[] = {
        [&] { picture.trace.plot(3000, 3000, black); },
        [&] { picture.trace.plot(3300, 3000, black); },
        [&] {
            picture.radialsI2.course = {{3400, 3400}, {5000, 1000}, black, 1, true};
        },
        [&] { picture.trace.clear(); },
        [&] { picture.trace.plot(1000, 5000, black), picture.trace.plot(1500, 5000, black); },
        [&] { picture.trace.clear(), picture.trace.plot(5000, 5000, black); },
        [&] { grid.origin.x += 3; },
        [&] { traced = false; },
    };
    ChartGround kept;
    QImage before = painted(kept, picture, grid, traced);
    for (std::size_t i = 0; i < std::size(changes); ++i) {
        changes[i]();
        ChartGround anew;
        const QImage now = painted(anew, picture, grid, traced);
        EXPECT_GT(mostDifference(now, before), 20) << i;
        for (int time = 0; time < 3; ++time)
            EXPECT_LE(mostDifference(painted(kept, picture, grid, traced), now), 1) << i << time;
        before = now;
    }
}

} // namespace
} // namespace tarnel
