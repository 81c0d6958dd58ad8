#include "content/flown_question.h"

#include "exercises/exercise_catalogue.h"
#include "flights/flight.h"
#include "flights/plan_reader.h"
#include "persistence/file_bytes.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
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

/// Writes `to` over the `length` characters from each place on where `mark` stands.
void replaceEach(std::string& text, const char* mark, std::size_t length, const char* to) {
    for (std::size_t at = 0; (at = text.find(mark, at)) != std::string::npos;)
        text.replace(at, length, to);
}

} // namespace

const std::vector<StudyLanguage>& studyLanguages() {
    static const std::vector<StudyLanguage> languages = {
        {"", germanTable(), "links", "rechts", "grösser", "kleiner", "gleich"},
        {"e-", englishTable(), "left", "right", "increase", "decrease", "remain constant"},
    };
    return languages;
}

std::vector<StudyRecord> writtenQuestions(const StudyLanguage& language, int type) {
    const std::string name = studyFileNames(*exerciseOf(type), language.prefix.empty()).front();
    EXPECT_TRUE(name.starts_with(language.prefix)) << name;
    const std::string bytes = readFileBytes(TARNEL_DATA_FOLDER "/default/study/" + name, 1 << 20);
    StudyFile file = readStudyFile(bytes, type);
    std::string again;
    for (const StudyRecord& record : file.records)
        again += writeStudyRecord(record, type);
    // The prompts of the ADF's offers have names of their own; where there is no prompt stands no
    // line of it.
    const auto plain = [](std::string text) {
        for (const char* offer : {":qr", ":qd", ":qm", ":rb"})
            replaceEach(text, offer, std::strlen(":qr1:"), ":q:");
        replaceEach(text, "---\r\n", 3, "");
        for (const char* none : {":qa:,\r\n", ":qb:,\r\n"})
            replaceEach(text, none, std::strlen(none), "");
        return text;
    };
    EXPECT_EQ(plain(bytes), plain(again)) << name;
    return std::move(file.records);
}

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
    return slot == Slot::vor1   ? row.vor1.radial
           : slot == Slot::vor2 ? row.vor2.radial
           : slot == Slot::ndb1 ? row.ndb1Radial
                                : row.ndb2Radial;
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

void forEachQuestion(int type, const std::function<void(const StudyLanguage&, const StudyRecord&,
                                                        const FlownQuestion&)>& check) {
    for (const StudyLanguage& language : studyLanguages())
        for (const StudyRecord& record : writtenQuestions(language, type)) {
            const std::string session = record[StudyColumn::sessionName];
            SCOPED_TRACE(language.prefix + session);
            check(language, record, flownQuestion(session.substr(0, session.find(".ts"))));
        }
}

} // namespace tarnel
