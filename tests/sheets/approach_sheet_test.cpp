#include "approach/drawn_approach.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <sstream>

namespace tarnel {
namespace {

/// A sheet as it is printed, ten pixels a millimetre.
class Print {
  public:
    explicit Print(const std::string& pdf) {
        const TemporaryFolder folder;
        const std::string name = folder.path + "/sheet";
        const std::string command = "pdftoppm -r 254 -singlefile '" + pdf + "' " + name;
        EXPECT_EQ(std::system(command.c_str()), 0);
        std::ifstream file(name + ".ppm", std::ios::binary);
        std::string kind;
        int deepest = 0;
        file >> kind >> width >> height >> deepest;
        file.get();
        bytes.assign(std::istreambuf_iterator<char>(file), {});
    }
    /// 0xBBGGRR, as on the chart.
    [[nodiscard]] Colour at(double x, double y) const {
        const auto pixel = static_cast<std::size_t>(std::lround(y) * width + std::lround(x)) * 3;
        const auto byte = [&](std::size_t i) -> Colour {
            return static_cast<unsigned char>(bytes.at(pixel + i));
        };
        return byte(0) | byte(1) << 8 | byte(2) << 16;
    }

    int width = 0;
    int height = 0;

  private:
    std::string bytes;
};

bool isAbout(Colour one, Colour other) {
    for (int shift = 0; shift < 24; shift += 8)
        if (std::abs(static_cast<int>(one >> shift & 0xFF) -
                     static_cast<int>(other >> shift & 0xFF)) > 40)
            return false;
    return true;
}

class PrintedSheet : public testing::TestWithParam<const char*> {
  protected:
    /// The colour at a place of the plan, whose window begins 7 mm from the left edge of the paper
    /// and 31 mm from the upper one.
    [[nodiscard]] Colour colourAt(Point twips) const {
        return print.at(70 + twips.x / 20, 310 + twips.y / 20);
    }
    [[nodiscard]] static bool isInWindow(Point twips) {
        return twips.x > 200 && twips.x < 26600 && twips.y > 200 && twips.y < 20200;
    }
    /// Whether neither the way nor the runway is painted over it.
    [[nodiscard]] bool isBesideTheWay(Point at) const {
        std::vector<Point> painted = drawn.plan.track;
        painted.push_back(drawn.plan.farEnd);
        for (std::size_t i = 1; i < painted.size(); ++i) {
            const Point step = painted[i] - painted[i - 1];
            for (int part = 0; part <= 100; ++part)
                if (lengthOf(at - painted[i - 1] -
                             onCourse(courseOf(step), lengthOf(step) * part / 100)) < 300)
                    return false;
        }
        return true;
    }
    [[nodiscard]] bool isClose(Point at, Slot slot) const {
        return lengthOf(at - drawn.plane->station(slot)) < 400;
    }
    /// Whether a fix is painted over it.
    [[nodiscard]] bool isAtFix(Point at) const {
        return std::any_of(drawn.plan.fixes.begin(), drawn.plan.fixes.end(),
                           [&](const PlanFix& fix) { return lengthOf(fix.at - at) < 400; });
    }
    static std::string documentOf(const std::string& place) {
        for (const ApproachChart& chart : approachCharts())
            if (std::string(chart.document).starts_with(place))
                return TARNEL_APPLICATION_FOLDER "/default/charts/" + std::string(chart.document);
        return {};
    }

    DrawnApproach drawn{GetParam()};
    Print print{documentOf(GetParam())};
};

TEST_P(PrintedSheet, HasStationsAndWayWhereThePlanHasThem) {
    ASSERT_NEAR(print.width, 1480, 3); // the paper's size is rounded to points
    ASSERT_NEAR(print.height, 2100, 3);
    for (const Slot slot : {Slot::vor1, Slot::vor2, Slot::ndb1, Slot::ndb2}) {
        const Point at = drawn.plane->station(slot);
        const Colour colour = slotColour(static_cast<std::size_t>(slot));
        const bool isUnderBeacon =
            hasDme(slot) && (isClose(at, Slot::ndb1) || isClose(at, Slot::ndb2));
        if (!isInWindow(at) || !isBesideTheWay(at) || isUnderBeacon)
            continue;
        EXPECT_TRUE(isAbout(colourAt(at), colour)) << static_cast<int>(slot);
        EXPECT_FALSE(isAbout(colourAt(at + Point{60, 60}), colour)) << static_cast<int>(slot);
    }
    const auto inked = [&](Point at) { return isAbout(colourAt(at), chartColour::ink); };
    for (const Point at : drawn.plan.track)
        EXPECT_TRUE(inked(at) || isAtFix(at)) << at.x << " " << at.y;
    const Point along = drawn.plan.farEnd - drawn.plan.threshold;
    const Point middle = drawn.plan.threshold + onCourse(courseOf(along), lengthOf(along) / 2);
    EXPECT_TRUE(inked(middle));
    for (const double side : {-90, 90})
        EXPECT_FALSE(inked(middle + onCourse(courseOf(along) + side, 220))) << side;
}

INSTANTIATE_TEST_SUITE_P(Charts, PrintedSheet, testing::ValuesIn(placesOfCharts));

} // namespace
} // namespace tarnel
