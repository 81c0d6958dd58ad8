#include "paper/callout.h"

#include <gtest/gtest.h>

#include <vector>

namespace tarnel {
namespace {

TEST(Callout, StandsClearOfNamesAndTrackWhereverItsPlaceIs) {
    const Box sheet{0, 0, 400, 400};
    const std::vector<Box> names{{0, 0, 400, 40}, {150, 60, 120, 40}, {240, 240, 100, 60}};
    std::vector<Spot> track;
    for (int x = 20; x < 380; x += 5)
        track.push_back({static_cast<double>(x), 200});
    for (const Spot place : {Spot{30, 200}, {200, 200}, {380, 200}, {200, 390}, {5, 5}}) {
        const Callout callout = placeCallout(place, {110, 22}, sheet, names, track);
        EXPECT_TRUE(sheet.contains(callout.box)) << place.x;
        for (const Box& name : names)
            EXPECT_FALSE(callout.box.overlaps(name)) << place.x;
        for (const Spot& spot : track)
            EXPECT_FALSE(callout.box.contains(spot)) << place.x;
        EXPECT_EQ(callout.leader.from, place);
        EXPECT_TRUE(callout.box.contains(callout.leader.to));
        EXPECT_LT(callout.leader.length(), 120) << place.x;
    }
}

} // namespace
} // namespace tarnel
