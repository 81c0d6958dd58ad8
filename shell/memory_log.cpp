#include "shell/memory_log.h"

#include <algorithm>
#include <functional>

namespace tarnel {

void MemoryLog::add(const AnsweredRow& row) {
    auto course = std::ranges::find(known, row.courseKey, &LoggedCourse::key);
    if (course == known.end()) {
        known.push_back({static_cast<int>(known.size()) + 1, row.courseKey, row.courseName});
        course = known.end() - 1;
    }
    rows.push_back(row);
    rows.back().course = course->number;
}

void MemoryLog::eachAnswer(const AnswerVisitor& take) {
    for (const AnsweredRow& row : rows)
        take(row);
}

void MemoryLog::eachRow(const std::function<void(const AnsweredRow&)>& take) {
    for (const AnsweredRow& row : rows)
        take(row);
}

std::vector<QuestionStanding> MemoryLog::standings(const std::string& courseKey,
                                                   ExerciseType exercise) {
    struct Last {
        std::int64_t asked = -1;
        int right = 0;
        int rows = 0;
    };
    std::map<std::int64_t, Last> last;
    for (const AnsweredRow& row : rows) {
        if (row.courseKey != courseKey || row.exercise != exercise)
            continue;
        Last& question = last[row.question];
        if (row.asked > question.asked)
            question = {row.asked, 0, row.rows};
        if (row.asked == question.asked)
            question.right += row.right ? 1 : 0;
    }
    std::vector<QuestionStanding> standings;
    standings.reserve(last.size());
    for (const auto& [question, went] : last)
        standings.push_back({question, went.asked, went.right == went.rows});
    return standings;
}

std::int64_t MemoryLog::add(const LoggedFlight& flight, const std::string& session,
                            const FlightLimits& limits) {
    int attempts = 0;
    for (const auto& [id, other] : flown)
        if (other.flight.taskKey == flight.taskKey) {
            if (flight.fingerprint != 0 && other.flight.fingerprint == flight.fingerprint)
                return id;
            attempts = std::max(attempts, other.flight.attempt);
        }
    const auto before = flown.find(flight.id);
    const bool replaces = before != flown.end() && before->second.flight.taskKey == flight.taskKey;
    const LoggedFlight old = replaces ? before->second.flight : LoggedFlight();
    const std::int64_t id = replaces ? flight.id : ++lastFlight;
    LoggedFlight& kept = (flown[id] = {flight, session}).flight;
    kept.id = id;
    kept.bytes = static_cast<std::int64_t>(session.size());
    kept.attempt = replaces ? old.attempt : attempts + 1;
    kept.pinned = replaces ? old.pinned : flight.pinned;
    prune(limits);
    return id;
}

std::vector<LoggedFlight> MemoryLog::flights() {
    std::vector<LoggedFlight> all;
    all.reserve(flown.size());
    for (const auto& [id, kept] : flown)
        all.push_back(kept.flight);
    std::ranges::reverse(all);
    std::ranges::stable_sort(all, std::ranges::greater(), &LoggedFlight::when);
    return all;
}

std::optional<std::string> MemoryLog::session(std::int64_t flight) {
    const auto found = flown.find(flight);
    return found == flown.end() ? std::nullopt : std::optional(found->second.session);
}

void MemoryLog::pin(std::int64_t flight, bool pinned) {
    if (const auto found = flown.find(flight); found != flown.end())
        found->second.flight.pinned = pinned;
}

void MemoryLog::remove(std::int64_t flight) {
    flown.erase(flight);
}

void MemoryLog::prune(const FlightLimits& limits) {
    for (const std::int64_t flight : flightsToLetGo(flights(), limits))
        flown.erase(flight);
}

void MemoryLog::clear() {
    rows.clear();
    known.clear();
    flown.clear();
}

} // namespace tarnel
