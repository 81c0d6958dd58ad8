#include "content/flown_question.h"

#include "flights/flight.h"
#include "flights/plan_reader.h"
#include "strings/string_table.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>

namespace tarnel {

namespace {

FlownQuestion fly(const std::string& session) {
    FlownQuestion flown;
    flown.plan = readPlanFile(TARNEL_DATA_FOLDER "/default/plans/" + session + ".toml");
    ScriptedFlight flight(flown.plan, englishTable(), TARNEL_DATA_FOLDER);
    flight.fly(flown.plan.seconds, [&] { flown.rows.push_back(presentRow(flight)); });
    flown.plan = flight.plan();
    for (std::size_t i = 0; i < slotCount; ++i)
        flown.identifiers[i] = flight.form().UserControl11.slot(static_cast<Slot>(i)).name;
    flown.boxes = flight.boxes().size();
    return flown;
}

} // namespace

FirstTurn FlownQuestion::firstTurn() const {
    FirstTurn turn;
    turn.heading = rows.front().heading;
    std::size_t tick = 0;
    while (tick < rows.size() && rows[tick].turnRate == 0)
        ++tick;
    turn.tick = std::min(tick, rows.size() - 1);
    if (tick == rows.size())
        return turn;
    turn.side = rows[tick].turnRate > 0 ? "right" : "left";
    while (tick < rows.size() && rows[tick].turnRate != 0)
        turn.heading = rows[tick++].heading;
    return turn;
}

const FlownQuestion& flownQuestion(const std::string& session) {
    static std::map<std::string, FlownQuestion> known;
    const auto found = known.find(session);
    return found != known.end() ? found->second
                                : known.emplace(session, fly(session)).first->second;
}

double radialAt(const FlightRow& row, Slot slot) {
    switch (slot) {
    case Slot::vor1:
        return row.vor1.radial;
    case Slot::vor2:
        return row.vor2.radial;
    case Slot::ndb1:
        return row.ndb1Radial;
    default:
        return row.ndb2Radial;
    }
}

double circle(double degrees) {
    const double within = std::fmod(degrees, 360);
    return within < 0 ? within + 360 : within;
}

double turnBetween(double from, double to) {
    return std::remainder(to - from, 360);
}

void expectDirection(const std::string& written, double degrees) {
    EXPECT_EQ(written.size(), 3U) << written;
    EXPECT_EQ(written.find_first_not_of("0123456789"), std::string::npos) << written;
    EXPECT_LE(std::abs(turnBetween(std::stod(written), degrees)), 1) << written << ' ' << degrees;
}

void forEachQuestion(const std::string& stem,
                     const std::function<void(const StudyLanguage&, const WrittenQuestion&,
                                              const FlownQuestion&)>& check) {
    for (const StudyLanguage& language : studyLanguages()) {
        for (const WrittenQuestion& record : readStudyFile(language, studyLayout(stem))) {
            SCOPED_TRACE(language.prefix + record.session);
            check(language, record, flownQuestion(record.session));
        }
    }
}

} // namespace tarnel
