#include "core/number_text.h"
#include "core/plain_text.h"
#include "persistence/line_source.h"
#include "tracks/track_builder.h"
#include "tracks/track_reader.h"
#include "tracks/track_time.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <utility>

namespace tarnel {

namespace {

constexpr std::size_t none = std::string_view::npos;

/// The fields of a line, without the quotes around them.
std::vector<std::string_view> fieldsOf(std::string_view line, char separator) {
    std::vector<std::string_view> fields;
    while (true) {
        const bool quoted = line.starts_with('"');
        const std::size_t quote = quoted ? line.find('"', 1) : none;
        const std::size_t end = line.find(separator, quote == none ? 0 : quote);
        fields.push_back(quote == none ? line.substr(0, end) : line.substr(1, quote - 1));
        if (end == none)
            return fields;
        line.remove_prefix(end + 1);
    }
}

/// Where in a line stands what.
struct Columns {
    std::size_t time = none;
    std::size_t latitude = none;
    std::size_t longitude = none;
    std::size_t altitude = none;
    double feet = 1; ///< of a unit of the altitude

    [[nodiscard]] bool usable() const {
        return time != none && latitude != none && longitude != none;
    }
};

constexpr std::array timeWords = {"time", "timestamp", "utc", "datetime", "date", "seconds"};
constexpr std::array latitudeWords = {"latitude", "lat"};
constexpr std::array longitudeWords = {"longitude", "lon", "long", "lng"};
constexpr std::array altitudeWords = {"altitude", "alt", "elevation", "ele", "height"};

/// The columns by their names. Of several that would do, the first one counts.
Columns columnsOf(std::string_view line, char separator) {
    Columns columns;
    const std::vector<std::string_view> names = fieldsOf(line, separator);
    for (std::size_t i = 0; i < names.size(); ++i) {
        std::string name = lowerCase(std::string(names[i]));
        name.erase(0, std::min(name.size(), name.find_first_not_of(' ')));
        const auto end =
            std::ranges::find_if_not(name, [](unsigned char c) { return std::islower(c) != 0; });
        const std::string_view word(name.begin(), end);
        const auto takes = [&](std::size_t& column, const auto& words) {
            if (column != none || std::ranges::find(words, word) == words.end())
                return false;
            column = i;
            return true;
        };
        const std::string_view unit(end, name.end());
        const bool inFeet = unit.find('f') != none;
        if (takes(columns.time, timeWords) || takes(columns.latitude, latitudeWords) ||
            takes(columns.longitude, longitudeWords))
            continue;
        if ((inFeet || unit.find('m') != none) && takes(columns.altitude, altitudeWords))
            columns.feet = inFeet ? 1 : feetPerMetre;
    }
    return columns;
}

/// `CsvTrackReader`: reads a track line by line.
class CsvTrackReader {
  public:
    explicit CsvTrackReader(std::string bytes) : source(std::move(bytes)) {}

    Track read() && {
        source.openPlain();
        readNames();
        while (!source.atEnd())
            readLine(next(FileField::trackPoint));
        return std::move(builder).finish(lines);
    }

  private:
    std::string_view next(FileField expected) {
        ++lines;
        return source.next(expected);
    }

    /// Read over, and not as the names of columns.
    static bool isRemark(std::string_view line) {
        return line.find_first_not_of(" \t") == none || line.starts_with('#');
    }

    void readNames() {
        std::string_view line = next(FileField::trackColumns);
        while (isRemark(line))
            line = next(FileField::trackColumns);
        for (const char candidate : {',', ';', '\t'}) {
            separator = candidate;
            columns = columnsOf(line, separator);
            if (columns.usable())
                return;
        }
        source.fail(FileField::trackColumns);
    }

    void readLine(std::string_view line) {
        if (isRemark(line))
            return;
        const std::vector<std::string_view> fields = fieldsOf(line, separator);
        const auto field = [&](std::size_t column) {
            return column < fields.size() ? fields[column] : std::string_view();
        };
        TrackPoint point;
        point.line = lines;
        point.position = {need(number(field(columns.latitude)), FileField::latitude),
                          need(number(field(columns.longitude)), FileField::longitude)};
        if (const auto altitude = number(field(columns.altitude)))
            point.altitude = *altitude * columns.feet;
        const std::string_view moment = field(columns.time);
        const auto time = secondsOfUtc(moment);
        if (const auto problem =
                builder.add(point, time ? *time : need(number(moment), FileField::time)))
            source.fail(*problem);
    }

    [[nodiscard]] std::optional<double> number(std::string_view text) const {
        std::string plain(text);
        if (separator != ',')
            std::ranges::replace(plain, ',', '.');
        return parseNumber(plain);
    }

    [[nodiscard]] double need(std::optional<double> value, FileField expected) const {
        if (!value)
            source.fail(expected);
        return *value;
    }

    LineSource source;
    int lines = 0; ///< taken so far
    char separator = ',';
    Columns columns;
    TrackBuilder builder;
};

} // namespace

Track readCsvTrack(std::string bytes) {
    return CsvTrackReader(std::move(bytes)).read();
}

} // namespace tarnel
