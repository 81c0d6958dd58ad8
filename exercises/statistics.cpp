#include "exercises/statistics.h"

#include "core/number_text.h"
#include "core/rounding.h"
#include "exercises/val_str.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tarnel {

namespace {

constexpr std::string_view application = "qxr1";
constexpr std::string_view section = "stats";
constexpr std::string_view dummyKey = "dummy";

std::string totalKey(std::string_view stem) {
    return std::string(stem) + "_total";
}

std::string badKey(std::string_view stem) {
    return std::string(stem) + "_bad";
}

} // namespace

std::int64_t Statistics::read(const std::string& key) const {
    constexpr double most = std::numeric_limits<std::int32_t>::max();
    const double number = Val(settings.value(application, section, key, "0"));
    return static_cast<std::int64_t>(roundToEven(std::clamp(number, 0.0, most)));
}

void Statistics::write(const std::string& key, std::int64_t value) {
    settings.setValue(application, section, key, numberText(value));
}

Counters Statistics::of(std::string_view stem) const {
    return {read(totalKey(stem)), read(badKey(stem))};
}

void Statistics::countUp(const std::string& counter, int index, int lastQuestion) {
    write(counter + Str(index), read(counter + Str(index)) + 1);
    std::int64_t sum = 0;
    for (int question = 0; question <= lastQuestion; ++question)
        sum += read(counter + Str(question));
    write(counter, sum);
}

void Statistics::count(std::string_view stem, int index, int lastQuestion, bool allRight) {
    countUp(totalKey(stem), index, lastQuestion);
    if (!allRight)
        countUp(badKey(stem), index, lastQuestion);
    settings.flush();
}

void Statistics::prepare() {
    settings.setValue(application, section, dummyKey, "0");
    settings.flush();
}

void Statistics::reset() {
    constexpr std::string_view absent = "empty";
    if (settings.value(application, section, dummyKey, absent) != absent)
        settings.deleteSection(application, section);
    prepare();
}

std::string statisticLine(const Counters& counters, const StringTable& texts) {
    const std::string attempts(texts[Text::attempts]);
    if (counters.total <= 0)
        return attempts + ": 0";
    const std::int64_t right = counters.total - counters.bad;
    const double share = static_cast<double>(right) / static_cast<double>(counters.total);
    const auto perCent = static_cast<std::int64_t>(std::floor(share * 100));
    const std::string gap(5, ' ');
    return attempts + ":" + Str(counters.total) + gap + std::string(texts[Text::correct]) + ":" +
           Str(right) + gap + std::string(texts[Text::performance]) + ":" + Str(perCent) + "%";
}

} // namespace tarnel
