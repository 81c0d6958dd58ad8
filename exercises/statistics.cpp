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

std::int64_t read(const SettingsStore& settings, const std::string& key) {
    constexpr double most = std::numeric_limits<std::int32_t>::max();
    const double number = Val(settings.value(application, section, key, "0"));
    return static_cast<std::int64_t>(roundToEven(std::clamp(number, 0.0, most)));
}

void write(SettingsStore& settings, const std::string& key, std::int64_t value) {
    settings.setValue(application, section, key, numberText(value));
}

void countUp(SettingsStore& settings, const std::string& counter, int index, int lastQuestion) {
    const std::string ofQuestion = counter + Str(index);
    write(settings, ofQuestion, read(settings, ofQuestion) + 1);
    std::int64_t sum = 0;
    for (int question = 0; question <= lastQuestion; ++question)
        sum += read(settings, counter + Str(question));
    write(settings, counter, sum);
}

} // namespace

Counters Statistics::of(std::string_view stem) const {
    return {read(settings, totalKey(stem)), read(settings, badKey(stem))};
}

void Statistics::count(std::string_view stem, int index, int lastQuestion, bool allRight) {
    settings.change([=, stem = std::string(stem)](SettingsStore& store) {
        countUp(store, totalKey(stem), index, lastQuestion);
        if (!allRight)
            countUp(store, badKey(stem), index, lastQuestion);
    });
}

void Statistics::prepare() {
    settings.setValue(application, section, dummyKey, "0");
    settings.flush();
}

void Statistics::reset() {
    settings.change([](SettingsStore& store) {
        constexpr std::string_view absent = "empty";
        if (store.value(application, section, dummyKey, absent) != absent)
            store.deleteSection(application, section);
        store.setValue(application, section, dummyKey, "0");
    });
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
