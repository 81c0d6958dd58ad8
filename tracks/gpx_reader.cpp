#include "core/number_text.h"
#include "core/plain_text.h"
#include "tracks/track_builder.h"
#include "tracks/track_reader.h"
#include "tracks/track_time.h"

#include <expat.h>
#include <memory>
#include <string_view>
#include <utility>

namespace tarnel {

namespace {

/// What is read of a file; all else is an `other`.
enum class Element { document, gpx, trk, name, trkseg, trkpt, ele, time, other };

struct Place {
    Element parent;
    std::string_view tag;
    Element element;
};

constexpr Place places[] = {
    {Element::document, "gpx", Element::gpx},   {Element::gpx, "trk", Element::trk},
    {Element::trk, "name", Element::name},      {Element::trk, "trkseg", Element::trkseg},
    {Element::trkseg, "trkpt", Element::trkpt}, {Element::trkpt, "ele", Element::ele},
    {Element::trkpt, "time", Element::time},
};

Element elementOf(Element parent, std::string_view tag) {
    const auto prefix = tag.rfind(':');
    if (prefix != std::string_view::npos)
        tag.remove_prefix(prefix + 1);
    for (const Place& place : places)
        if (place.parent == parent && place.tag == tag)
            return place.element;
    return Element::other;
}

std::optional<double> attribute(const XML_Char** attributes, std::string_view wanted) {
    for (; *attributes; attributes += 2)
        if (wanted == attributes[0])
            return parseNumber(attributes[1]);
    return {};
}

/// `GpxReader`: takes a track out of what Expat finds in the file. What is wrong stops the parser,
/// as nothing may be thrown through it.
class GpxReader {
  public:
    GpxReader() : parser(XML_ParserCreate(nullptr), &XML_ParserFree) {
        XML_SetUserData(parser.get(), this);
        XML_SetElementHandler(
            parser.get(),
            [](void* self, const XML_Char* tag, const XML_Char** attributes) {
                static_cast<GpxReader*>(self)->begin(tag, attributes);
            },
            [](void* self, const XML_Char*) { static_cast<GpxReader*>(self)->end(); });
        XML_SetCharacterDataHandler(
            parser.get(), [](void* self, const XML_Char* characters, int count) {
                static_cast<GpxReader*>(self)->take({characters, static_cast<std::size_t>(count)});
            });
        XML_SetStartDoctypeDeclHandler(
            parser.get(), [](void* self, const XML_Char*, const XML_Char*, const XML_Char*, int) {
                static_cast<GpxReader*>(self)->fail(FileField::gpx);
            });
    }

    Track read(const std::string& bytes) && {
        const auto status =
            XML_Parse(parser.get(), bytes.data(), static_cast<int>(bytes.size()), XML_TRUE);
        if (status != XML_STATUS_OK && !problem)
            problem = FileProblem{line(), FileField::gpx, false};
        if (problem)
            throw *problem;
        return std::move(builder).finish(line());
    }

  private:
    void begin(std::string_view tag, const XML_Char** attributes) {
        Element element = elementOf(open.back(), tag);
        if (element != Element::gpx && open.back() == Element::document)
            fail(FileField::gpx);
        if (element == Element::trk && !builder.empty())
            element = Element::other; // the first track with points counts
        if (element == Element::trkpt)
            beginPoint(attributes);
        text.clear();
        open.push_back(element);
    }

    void beginPoint(const XML_Char** attributes) {
        const auto latitude = attribute(attributes, "lat");
        const auto longitude = attribute(attributes, "lon");
        if (!latitude || !longitude)
            fail(latitude ? FileField::longitude : FileField::latitude);
        point = {};
        point.line = line();
        point.position = {latitude.value_or(0), longitude.value_or(0)};
        time.reset();
    }

    void take(std::string_view characters) {
        const Element within = open.back();
        if (within == Element::name || within == Element::ele || within == Element::time)
            text += characters;
    }

    void end() {
        const Element element = open.back();
        open.pop_back();
        if (element == Element::name)
            builder.name = trimmed(text);
        else if (element == Element::time)
            takeTime();
        else if (element == Element::trkpt)
            endPoint();
        else if (element == Element::ele)
            if (const auto metres = parseNumber(trimmed(text)))
                point.altitude = *metres * feetPerMetre;
    }

    void takeTime() {
        time = secondsOfUtc(trimmed(text));
        if (!time)
            fail(FileField::time);
    }

    void endPoint() {
        if (!time)
            return fail(FileField::time);
        if (const auto expected = builder.add(point, *time))
            fail(*expected);
    }

    void fail(FileField expected) {
        if (!problem)
            problem = FileProblem{line(), expected, false};
        XML_StopParser(parser.get(), XML_FALSE);
    }

    [[nodiscard]] int line() const {
        return static_cast<int>(XML_GetCurrentLineNumber(parser.get()));
    }

    std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> parser;
    std::vector<Element> open{Element::document};
    std::string text; ///< of the element that is open
    TrackPoint point;
    std::optional<double> time;
    TrackBuilder builder;
    std::optional<FileProblem> problem;
};

} // namespace

Track readGpx(const std::string& bytes) {
    return GpxReader().read(bytes);
}

} // namespace tarnel
