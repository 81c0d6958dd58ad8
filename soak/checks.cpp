#include "soak/checks.h"

#include "shell/form_1.h"
#include "soak/trail.h"
#include "window/frame/main_window.h"

#include <QApplication>
#include <QPixmapCache>

#include <cmath>
#include <filesystem>
#include <malloc.h>

#ifdef __SANITIZE_ADDRESS__
extern "C" std::size_t __sanitizer_get_current_allocated_bytes(); // GCC 12 lacks its header
#endif

namespace tarnel {

namespace {

/// A number, and where it must lie, both ends included.
struct Range {
    const char* name;
    double least;
    double most;
};

constexpr Range simulationRanges[] = {
    {"c_HDG", 0, 360},
    {"c_HDGbug", 0, 360},
    {"Turn_Rate", -3, 3},
    {"c_TAS", 0, 360},
    {"c_Altitude", 0, 42000},
    {"c_TimerEN", 0, 1},
    {"c_TimerSIMrate", 83, 666},
    {"c_ApSeconds", 0, 59},
    {"c_ApMinutes", 0, 99},
    {"c_ApSeconds2", 0, 59},
    {"c_ApMinutes2", 0, 59},
    {"c_LocCrs1", 0, 360},
    {"c_inst2", 1, 5},
    {"c_inst3", 1, 5},
    {"c_MAPnorthUP", 0, 1},
    {"c_MAPscale", 1, 1000},
    {"c_TraceBufferMax", 0, Recording::lastSample},
    {"c_RepeatValue", 0, Recording::lastSample},
};

std::string at(const std::string& name, double value) {
    return name + " is " + std::to_string(value);
}

void checkNumber(const std::string& name, double value, double least, double most) {
    if (!(value >= least && value <= most)) // a value that is no number, too
        throw Fault(at(name, value));
}

void checkNumbers(const std::string& owner, const PropertyBag& bag) {
    for (const PropertyBase* property : bag.all())
        if (const std::string text = property->text();
            text.ends_with("nan") || text.ends_with("inf"))
            throw Fault(owner + "." + std::string(property->name()) + " is " + text);
}

void checkRanges(const PropertyBag& bag) {
    for (const Range& range : simulationRanges) {
        const PropertyBase* property = bag.find(range.name);
        if (!property)
            throw Fault(std::string("no property ") + range.name);
        checkNumber(range.name, parseNumber(property->text()).value_or(NAN), range.least,
                    range.most);
    }
}

void checkFlight(const UserControl2& sim) {
    checkNumber("latitude", sim.aircraft.aircraftLat, -90, 90);
    checkNumber("longitude", sim.aircraft.aircraftLon, -180, 180);
    checkNumber("true heading", sim.aircraft.trueHeading, 0, std::nextafter(360, 0));
    checkNumber("newest sample", sim.recording.sampleIndex(), 0, Recording::lastSample);
    checkNumber("present sample", sim.presentSampleIndex(), 0, Recording::lastSample);
    checkNumber("wind from", sim.wind.direction, 0, 360);
    checkNumber("wind", sim.wind.speed, 0, 200);
    const Sample& newest = sim.recording.at(sim.recording.sampleIndex());
    for (const GeoPosition& place : newest.traceStations)
        checkNumber("a station in the recording", place.latitude, -90, 90);
}

void checkPosition(const InstrumentPosition& position) {
    checkNumbers("an instrument", position.instrument.properties);
    checkNumber("a course", position.obs, 0, 360);
    checkNumber("a card", position.adfCard, 0, 360);
}

int openFiles() {
    int files = 0;
    for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator("/proc/self/fd"))
        ++files;
    return files;
}

std::int64_t liveBytes() {
#ifdef __SANITIZE_ADDRESS__
    return static_cast<std::int64_t>(__sanitizer_get_current_allocated_bytes());
#else
    const struct mallinfo2 heap = mallinfo2();
    return static_cast<std::int64_t>(heap.uordblks + heap.hblkhd);
#endif
}

} // namespace

void check(Form1& form, const MainWindow& window) {
    checkNumbers("UserControl11", form.UserControl11.properties);
    checkNumbers("QAform1", form.QAform1.properties);
    checkNumbers("APControlFace1", form.APControlFace1.properties);
    for (const InstrumentPosition* position : {&form.inst1, &form.inst2, &form.inst3})
        checkPosition(*position);
    checkRanges(form.UserControl11.properties);
    checkFlight(form.UserControl11);
    if (form.boxes.up() || QApplication::activePopupWidget())
        throw Fault("a box or a popup is left over");
    if (!window.isVisible())
        throw Fault("the window has gone");
}

Floor takeFloor(double hour, double age) {
    QPixmapCache::clear();
    return {hour, age, liveBytes(), static_cast<int>(QApplication::allWidgets().size()),
            openFiles()};
}

} // namespace tarnel
