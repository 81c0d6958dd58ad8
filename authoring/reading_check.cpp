#include "authoring/reading_check.h"

#include "authoring/wording.h"

#include <algorithm>
#include <cmath>

namespace tarnel {

namespace {

using enum StudyColumn;

constexpr double practiseArea = 80; ///< NM by a DME
constexpr double readable = 1.5;    ///< degrees to which a needle is read
constexpr double centred = 0.5;     ///< degrees
constexpr double silence = 10;      ///< seconds without a word, while the question is read

/// What is proved at the sample of a question.
class PanelCheck {
  public:
    PanelCheck(const BuiltQuestion& asked, SourceFindings& found)
        : question(asked), flown(asked.flown), row(asked.flown.asked()), findings(found) {}

    void area() const;
    void quietStart() const;
    void shown() const;
    void needle() const;
    void tellTales() const;

  private:
    void wrong(const std::string& text) const { findings.push_back(question.finding(text)); }
    [[nodiscard]] double radial() const { return flown.from(flown.situation.station, row).radial; }
    /// The bearing to the station that an instrument shows; nothing if it shows none.
    [[nodiscard]] std::optional<double> bearingOn(const InstrumentRow& shown) const;
    [[nodiscard]] const InstrumentRow& askedAbout() const;

    const BuiltQuestion& question;
    const FlownSituation& flown;
    const FlightRow& row;
    SourceFindings& findings;
};

void PanelCheck::area() const {
    for (const FlightRow& at : flown.rows)
        for (const StationRow* station : {&at.vor1, &at.vor2, &at.localizer})
            if (station->dme > practiseArea)
                return wrong("a station lies " + tenths(station->dme).english + " NM away after " +
                             number(at.seconds).english + " s, beyond the practise area of 80 NM");
}

void PanelCheck::quietStart() const {
    if (row.turnRate != 0)
        wrong("the aircraft turns where the question stands");
    if (!flown.said.empty() && flown.rows[flown.said.front().tick].seconds < silence)
        wrong("the comment \"" + flown.said.front().text.english +
              "\" stands beside the question, before 10 s, and tells of it");
}

const InstrumentRow& PanelCheck::askedAbout() const {
    switch (question.kind.type) {
    case ExerciseType::hsiHolding:
    case ExerciseType::dgHolding:
    case ExerciseType::adfPosition:
    case ExerciseType::wind:
    case ExerciseType::dmeArc:
        return row.inst2;
    case ExerciseType::qdm:
    case ExerciseType::qdr:
        return isNdb(flown.situation.station) ? row.inst2 : row.inst3;
    default:
        return row.inst3;
    }
}

std::optional<double> PanelCheck::bearingOn(const InstrumentRow& shown) const {
    const std::string_view word = instrumentWord(shown.type);
    if (word == "ADF" || word == "RMI")
        return circle(row.heading + shown.needle);
    if (word != "HSI" && word != "VOR")
        return std::nullopt;
    const Sample& sample = question.samples.front();
    const double course = &shown == &row.inst2 ? sample.traceObsI2 : sample.traceObsI3;
    if (shown.flag == FlagState::to)
        return circle(course + shown.deviation);
    if (shown.flag == FlagState::from)
        return circle(course - shown.deviation + 180);
    return std::nullopt;
}

void PanelCheck::shown() const {
    const std::optional<double> bearing = bearingOn(askedAbout());
    const std::string station = flown.chart.identifier(flown.situation.station);
    if (!bearing)
        wrong("no instrument shows a bearing to " + station);
    else if (std::abs(turnBetween(*bearing, radial() + 180)) > readable)
        wrong("the instrument shows a bearing of " + threeDigits(*bearing) + " to " + station +
              ", and it is " + threeDigits(radial() + 180));
}

/// Of an instrument with a course.
void PanelCheck::needle() const {
    constexpr double edge = 1;
    constexpr double nearAbeam = 10;
    const InstrumentRow& shown = askedAbout();
    const double course = flown.situation.course;
    if (std::abs(std::abs(turnBetween(course, radial())) - 90) < nearAbeam)
        return wrong("course " + threeDigits(course) +
                     " is abeam of the station, so TO and FROM "
                     "can't be told; choose another");
    if (std::abs(shown.deviation) > vorFullScale - edge)
        return wrong("the needle stands at full scale, so the radial can't be read; choose a "
                     "course nearer to it");
    const double off = std::min(std::abs(turnBetween(course, radial())),
                                std::abs(turnBetween(course, radial() + 180)));
    if (off < centred)
        wrong("the needle is centred, so the course tells the answer; choose another");
}

/// A heading that is the answer too can be picked by mistaking one for the other.
void PanelCheck::tellTales() const {
    for (const double answer : {radial(), circle(radial() + 180)})
        if (std::abs(turnBetween(row.heading, answer)) < readable)
            wrong("heading " + threeDigits(row.heading) +
                  " tells the answer, as it is the same; choose another");
}

} // namespace

void checkReadings(const BuiltQuestion& question, SourceFindings& findings) {
    const PanelCheck check(question, findings);
    check.area();
    check.quietStart();
    const ExerciseType type = question.kind.type;
    if (type == ExerciseType::orientation) // answered from the chart alone
        return;
    check.shown();
    if (type != ExerciseType::hsiPosition && type != ExerciseType::standardVorPosition)
        return;
    check.needle();
    check.tellTales();
}

} // namespace tarnel
