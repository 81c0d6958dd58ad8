#include "tracks/track_writer.h"

#include "core/number_text.h"
#include "core/plain_text.h"
#include "core/rounding.h"
#include "persistence/text_encoding.h"
#include "tracks/track_time.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>
#include <cmath>

namespace tarnel {

namespace {

constexpr int positionDecimals = 9;

/// `value` without an exponent, which neither schema knows.
std::string fixed(double value, int decimals) {
    std::array<char, 400> text{};
    const auto end = std::to_chars(text.begin(), text.end(), std::isfinite(value) ? value : 0,
                                   std::chars_format::fixed, decimals);
    return {text.data(), end.ptr};
}

std::string latitudeText(const TrackPoint& point) {
    return fixed(point.position.latitude, positionDecimals);
}

/// From -180 up to 180, which GPX leaves out.
std::string longitudeText(const TrackPoint& point) {
    const double longitude =
        roundTo(std::remainder(point.position.longitude, 360), positionDecimals);
    return fixed(longitude >= 180 ? longitude - 360 : longitude, positionDecimals);
}

std::string metresText(double feet) {
    return fixed(feet / feetPerMetre, 2);
}

/// `text` between two tags.
std::string escaped(std::string_view text) {
    std::string safe;
    for (const char c : toUtf8(text, encodingOf(text)))
        if (c == '&')
            safe += "&amp;";
        else if (c == '<')
            safe += "&lt;";
        else if (c == '>')
            safe += "&gt;";
        else
            safe += static_cast<unsigned char>(c) < ' ' ? ' ' : c;
    return safe;
}

std::string nameElement(const Track& track) {
    return "<name>" + escaped(track.name) + "</name>";
}

std::string gpxPoint(const Track& track, const TrackPoint& point) {
    std::string text =
        "      <trkpt lat=\"" + latitudeText(point) + "\" lon=\"" + longitudeText(point) + "\">";
    if (point.altitude)
        text += "<ele>" + metresText(*point.altitude) + "</ele>";
    return text + "<time>" + utcText(track.start, point.seconds) + "</time></trkpt>\n";
}

std::string gpx(const Track& track) {
    std::string text = R"(<?xml version="1.0" encoding="UTF-8"?>
<gpx version="1.1" creator="Tarnel" xmlns="http://www.topografix.com/GPX/1/1" )"
                       R"(xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance" )"
                       R"(xsi:schemaLocation="http://www.topografix.com/GPX/1/1 )"
                       R"(http://www.topografix.com/GPX/1/1/gpx.xsd">
)";
    text += "  <metadata>" + nameElement(track) + "<time>" + utcText(track.start, 0) +
            "</time></metadata>\n";
    text += "  <trk>\n    " + nameElement(track) + "\n    <src>Tarnel</src>\n    <trkseg>\n";
    for (const TrackPoint& point : track.points)
        text += gpxPoint(track, point);
    return text + "    </trkseg>\n  </trk>\n</gpx>\n";
}

/// The line in the colour of the trainer's trace, so that it stands out on a photograph.
constexpr auto kmlHead = R"(<?xml version="1.0" encoding="UTF-8"?>
<kml xmlns="http://www.opengis.net/kml/2.2" xmlns:gx="http://www.google.com/kml/ext/2.2">
  <Document>
    )";
constexpr auto kmlStyle = R"(
      <Style><LineStyle><color>ff0000ff</color><width>3</width></LineStyle></Style>
      <gx:Track>
)";

std::string kmlPlace(const TrackPoint& point) {
    std::string text = longitudeText(point) + ' ' + latitudeText(point);
    if (point.altitude)
        text += ' ' + metresText(*point.altitude);
    return "        <gx:coord>" + text + "</gx:coord>\n";
}

/// All moments, then all places, then all headings, in the order of the schema.
std::string kml(const Track& track) {
    const auto known = [&](auto field) {
        return std::ranges::all_of(track.points,
                                   [&](const TrackPoint& p) { return (p.*field).has_value(); });
    };
    std::string text =
        kmlHead + nameElement(track) + "\n    <Placemark>\n      " + nameElement(track) + kmlStyle;
    if (known(&TrackPoint::altitude))
        text += "        <altitudeMode>absolute</altitudeMode>\n";
    for (const TrackPoint& point : track.points)
        text += "        <when>" + utcText(track.start, point.seconds) + "</when>\n";
    for (const TrackPoint& point : track.points)
        text += kmlPlace(point);
    if (known(&TrackPoint::heading))
        for (const TrackPoint& point : track.points)
            text += "        <gx:angles>" + fixed(*point.heading, 2) + " 0 0</gx:angles>\n";
    return text + "      </gx:Track>\n    </Placemark>\n  </Document>\n</kml>\n";
}

std::string csvNumber(const std::optional<double>& value) {
    return value ? ',' + numberText(roundTo(*value, 2)) : ",";
}

std::string csv(const Track& track) {
    std::string text =
        "time_utc,seconds,latitude_deg,longitude_deg,altitude_ft,heading_deg,airspeed_kt\n";
    for (const TrackPoint& point : track.points)
        text += utcText(track.start, point.seconds) + ',' + fixed(point.seconds, 3) + ',' +
                latitudeText(point) + ',' + longitudeText(point) + csvNumber(point.altitude) +
                csvNumber(point.heading) + csvNumber(point.airspeed) + '\n';
    return text;
}

} // namespace

std::string_view extensionOf(TrackFormat format) {
    switch (format) {
    case TrackFormat::gpx:
        return "gpx";
    case TrackFormat::kml:
        return "kml";
    case TrackFormat::csv:
        break;
    }
    return "csv";
}

std::optional<TrackFormat> formatOf(std::string_view fileName) {
    const auto dot = fileName.rfind('.');
    const std::string ending =
        lowerCase(std::string(dot == std::string_view::npos ? "" : fileName.substr(dot + 1)));
    for (const TrackFormat format : {TrackFormat::gpx, TrackFormat::kml, TrackFormat::csv})
        if (ending == extensionOf(format))
            return format;
    return {};
}

std::string writeTrack(const Track& track, TrackFormat format) {
    switch (format) {
    case TrackFormat::gpx:
        return gpx(track);
    case TrackFormat::kml:
        return kml(track);
    case TrackFormat::csv:
        break;
    }
    return csv(track);
}

} // namespace tarnel
