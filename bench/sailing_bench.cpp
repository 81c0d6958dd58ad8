#include "bench/ratio_table.h"
#include "core/sailing.h"

#include <GeographicLib/Rhumb.hpp>
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <random>
#include <vector>

namespace {

using namespace tarnel;

constexpr double metresPerMile = 1852;
constexpr int legCount = 4096;

struct Leg {
    GeoPosition from;
    GeoPosition to;
    double course;
    double distance;
};

/// Legs up to 80 NM between 3 and 70 degrees north, with their solution by the reference. Nearer to
/// the equator a split position may lose its sign.
std::vector<Leg> makeLegs() {
    std::mt19937 random(1);
    std::uniform_real_distribution<double> latitude(3, 70);
    std::uniform_real_distribution<double> longitude(1, 170);
    std::uniform_real_distribution<double> course(0, 360);
    std::uniform_real_distribution<double> distance(0.05, 80);
    std::vector<Leg> legs(legCount);
    for (Leg& leg : legs) {
        leg.from = {latitude(random), longitude(random)};
        leg.course = course(random);
        leg.distance = distance(random);
        GeographicLib::Rhumb::WGS84().Direct(leg.from.latitude, leg.from.longitude, leg.course,
                                             leg.distance * metresPerMile, leg.to.latitude,
                                             leg.to.longitude);
    }
    return legs;
}

const std::vector<Leg>& legs() {
    static const std::vector<Leg> all = makeLegs();
    return all;
}

template <class Work>
void overAllLegs(benchmark::State& state, Work work) {
    const std::vector<Leg>& all = legs();
    auto next = all.begin();
    for (auto _ : state) {
        work(*next);
        if (++next == all.end())
            next = all.begin();
    }
}

void courseAndDistance(benchmark::State& state) {
    overAllLegs(state, [](const Leg& leg) {
        benchmark::DoNotOptimize(CourseAndDistance(leg.from, leg.to));
    });
}

void rhumbInverse(benchmark::State& state) {
    overAllLegs(state, [](const Leg& leg) {
        double metres = 0;
        double azimuth = 0;
        GeographicLib::Rhumb::WGS84().Inverse(leg.from.latitude, leg.from.longitude,
                                              leg.to.latitude, leg.to.longitude, metres, azimuth);
        benchmark::DoNotOptimize(metres + azimuth);
    });
}

void deadReckon(benchmark::State& state) {
    overAllLegs(state, [](const Leg& leg) {
        double course = leg.course;
        benchmark::DoNotOptimize(DeadReckon(toSplit(leg.from), leg.distance, course));
    });
}

void rhumbDirect(benchmark::State& state) {
    overAllLegs(state, [](const Leg& leg) {
        double latitude = 0;
        double longitude = 0;
        GeographicLib::Rhumb::WGS84().Direct(leg.from.latitude, leg.from.longitude, leg.course,
                                             leg.distance * metresPerMile, latitude, longitude);
        benchmark::DoNotOptimize(latitude + longitude);
    });
}

struct Errors {
    double distance = 0; ///< NM
    double course = 0;   ///< degrees
    double position = 0; ///< metres
};

Errors largestErrors() {
    Errors largest;
    for (const Leg& leg : legs()) {
        const CourseDistance sailed = CourseAndDistance(leg.from, leg.to);
        double course = leg.course;
        const GeoPosition reached = DeadReckon(toSplit(leg.from), leg.distance, course).plain;
        double metres = 0;
        double azimuth = 0;
        GeographicLib::Rhumb::WGS84().Inverse(leg.to.latitude, leg.to.longitude, reached.latitude,
                                              reached.longitude, metres, azimuth);
        largest.distance = std::max(largest.distance, std::abs(sailed.distance - leg.distance));
        largest.course =
            std::max(largest.course, std::abs(std::remainder(sailed.course - leg.course, 360)));
        largest.position = std::max(largest.position, metres);
    }
    return largest;
}

bool printErrors() {
    constexpr double mostMiles = 0.0001;
    constexpr double mostDegrees = 0.0001;
    constexpr double mostMetres = 2;
    const Errors largest = largestErrors();
    std::printf("largest error on %d legs up to 80 NM, latitudes up to 70 degrees\n", legCount);
    std::printf("  CourseAndDistance %.7f NM (at most %.4f), %.7f degrees (at most %.4f)\n",
                largest.distance, mostMiles, largest.course, mostDegrees);
    std::printf("  DeadReckon        %.4f m (at most %.0f)\n", largest.position, mostMetres);
    return largest.distance <= mostMiles && largest.course <= mostDegrees &&
           largest.position <= mostMetres;
}

} // namespace

int main(int argc, char** argv) {
    std::vector<char*> arguments(argv, argv + argc);
    std::string repetitions = "--benchmark_repetitions=9";
    std::string interleaving = "--benchmark_enable_random_interleaving=true";
    std::string shortRuns = "--benchmark_min_time=0.05";
    for (std::string* flag : {&repetitions, &interleaving, &shortRuns})
        arguments.push_back(flag->data());
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    benchmark::RegisterBenchmark("CourseAndDistance", courseAndDistance);
    benchmark::RegisterBenchmark("Rhumb::Inverse", rhumbInverse);
    benchmark::RegisterBenchmark("DeadReckon", deadReckon);
    benchmark::RegisterBenchmark("Rhumb::Direct", rhumbDirect);
    tarnel::RatioTable table;
    benchmark::RunSpecifiedBenchmarks(&table);
    const bool fast = table.print({{"CourseAndDistance", "Rhumb::Inverse", 1.0 / 3},
                                   {"DeadReckon", "Rhumb::Direct", 1.0 / 10}});
    const bool exact = printErrors();
    return fast && exact ? 0 : 1;
}
