#include "authoring/comment_check.h"

#include "authoring/comment_claims.h"
#include "authoring/wording.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <functional>
#include <utility>

namespace tarnel {

namespace {

/// How far a claim may be off: by the step of a reading, and what is flown in a sample.
constexpr double tolerance(ClaimKind kind) {
    switch (kind) {
    case ClaimKind::distance:
        return 0.15; // NM
    case ClaimKind::time:
        return 2; // seconds
    case ClaimKind::radial:
    case ClaimKind::bearing:
    case ClaimKind::heading:
        break;
    }
    return 2; // degrees
}

double apart(const Claim& claim, double value) {
    const bool direction = claim.kind != ClaimKind::distance && claim.kind != ClaimKind::time;
    return std::abs(direction ? turnBetween(claim.value, value) : value - claim.value);
}

/// Whether a text has an identifier, perhaps of one letter, as a word.
bool names(const std::string& text, const std::string& identifier) {
    const auto isPart = [&](std::size_t at) {
        return at < text.size() && std::isalnum(static_cast<unsigned char>(text[at])) != 0;
    };
    for (std::size_t at = 0; (at = text.find(identifier, at)) != std::string::npos; ++at)
        if (!isPart(at - 1) && !isPart(at + identifier.size()))
            return true;
    return false;
}

/// One comment over the samples that show it.
class ShownComment {
  public:
    ShownComment(const CommentedFlight& of, std::size_t which);

    [[nodiscard]] bool isSeen() const { return seen; }
    /// What comes nearest to a claim of all that it can mean.
    [[nodiscard]] double reading(const Claim& claim) const;

  private:
    [[nodiscard]] std::vector<Slot> stationsMeant() const;
    [[nodiscard]] double readingOf(ClaimKind kind, Slot slot) const;
    [[nodiscard]] std::vector<double> readings(ClaimKind kind) const;

    const CommentedFlight& flight;
    const SaidComment& comment;
    bool seen = false;
    std::size_t first = 0; ///< tick of the first sample
    std::size_t end = 0;   ///< tick behind the last
};

ShownComment::ShownComment(const CommentedFlight& of, std::size_t which)
    : flight(of), comment(of.said[which]), end(of.rows.size()) {
    const auto showsIt = [&](const Sample& sample) {
        return sample.traceComment == static_cast<std::int16_t>(which);
    };
    const auto sample = std::find_if(flight.samples.begin(), flight.samples.end(), showsIt);
    if (sample == flight.samples.end())
        return;
    const auto index = sample - flight.samples.begin() + 1;
    while (first < end && flight.rows[first].sample < index)
        ++first;
    if (which + 1 < flight.said.size())
        end = flight.said[which + 1].tick;
    seen = first < flight.rows.size();
}

std::vector<Slot> ShownComment::stationsMeant() const {
    std::vector<Slot> all;
    std::vector<Slot> named;
    for (std::size_t i = 0; i < slotCount; ++i) {
        const auto slot = static_cast<Slot>(i);
        all.push_back(slot);
        if (names(comment.text.english, flight.chart.identifier(slot)))
            named.push_back(slot);
    }
    if (!named.empty())
        return named;
    return flight.station ? std::vector<Slot>{*flight.station} : all;
}

double ShownComment::readingOf(ClaimKind kind, Slot slot) const {
    const FlightRow& row = flight.rows[first];
    const FromStation from =
        fromStation(flight.chart.position(slot), {row.latitude, row.longitude});
    if (kind != ClaimKind::distance)
        return kind == ClaimKind::radial ? from.radial : circle(from.radial + 180);
    switch (slot) {
    case Slot::vor1:
        return row.vor1.dme;
    case Slot::vor2:
        return row.vor2.dme;
    case Slot::localizer:
        return row.localizer.dme;
    default:
        return from.distance; // a beacon has no DME
    }
}

/// All that may be meant: of either clock, of any heading while the comment stands, of any station.
std::vector<double> ShownComment::readings(ClaimKind kind) const {
    std::vector<double> all;
    if (kind == ClaimKind::time) {
        const auto index = static_cast<std::size_t>(flight.rows[first].sample) - 1;
        const Sample& sample = flight.samples.at(index);
        all.push_back(sample.traceStopMinutes * 60 + sample.traceStopSeconds);
        all.push_back(sample.traceFlightMinutes * 60 + sample.traceFlightSeconds);
    } else if (kind == ClaimKind::heading) {
        for (std::size_t tick = first; tick < std::max(end, first + 1); ++tick)
            all.push_back(flight.rows[tick].heading);
    } else {
        for (const Slot slot : stationsMeant())
            all.push_back(readingOf(kind, slot));
    }
    return all;
}

double ShownComment::reading(const Claim& claim) const {
    const std::vector<double> all = readings(claim.kind);
    return *std::min_element(all.begin(), all.end(),
                             [&](double a, double b) { return apart(claim, a) < apart(claim, b); });
}

using Tell = std::function<void(const std::string&)>;

void checkText(const LocalText& text, const Tell& wrong) {
    for (const Language language : bothLanguages)
        if (text.in(language).find_first_not_of(' ') == std::string::npos)
            return wrong(language == Language::german ? "has no German text"
                                                      : "has no English text");
    if (numbersIn(text.german) != numbersIn(text.english))
        wrong("has other numbers in German: \"" + text.german + "\"");
    const std::vector<std::string> english = wrongSums(text.english);
    for (const std::string& sum : english.empty() ? wrongSums(text.german) : english)
        wrong("does not add up: " + sum);
}

void checkClaims(const ShownComment& shown, const LocalText& text, const Tell& wrong) {
    std::vector<std::pair<ClaimKind, double>> told;
    for (const Language language : {Language::english, Language::german})
        for (const Claim& claim : claimsIn(text.in(language))) {
            const double reading = shown.reading(claim);
            const std::pair same(claim.kind, claim.value);
            if (apart(claim, reading) <= tolerance(claim.kind) + 1e-6 ||
                std::find(told.begin(), told.end(), same) != told.end())
                continue;
            told.push_back(same);
            wrong("says \"" + claim.words + "\", and the flight shows " + tenths(reading).english);
        }
}

} // namespace

void checkComments(const CommentedFlight& flight, const std::vector<int>& lines,
                   SourceFindings& findings) {
    for (std::size_t i = 0; i < flight.said.size(); ++i) {
        const LocalText& text = flight.said[i].text;
        const Tell wrong = [&](const std::string& what) {
            findings.push_back({lines.at(std::min(i, lines.size() - 1)),
                                "the comment \"" +
                                    (text.english.empty() ? text.german : text.english) + "\" " +
                                    what});
        };
        checkText(text, wrong);
        const ShownComment shown(flight, i);
        if (shown.isSeen())
            checkClaims(shown, text, wrong);
        else
            wrong("is never seen, as no sample shows it");
    }
}

} // namespace tarnel
