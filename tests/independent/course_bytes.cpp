#include "independent/course_bytes.h"

#include <algorithm>
#include <fstream>
#include <map>
#include <regex>
#include <stdexcept>

namespace independent {

namespace {

/// The lines of a file, each of which ends in CR LF.
std::vector<std::string> linesOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file)
        throw std::runtime_error("no file " + path);
    std::vector<std::string> lines;
    for (std::string line; std::getline(file, line);) {
        if (!line.ends_with('\r'))
            throw std::runtime_error("no CR LF behind line " + std::to_string(lines.size() + 1));
        line.pop_back();
        lines.push_back(line);
    }
    return lines;
}

double numberOf(const std::string& line) {
    std::size_t end = 0;
    const double number = std::stod(line, &end);
    if (end != line.size())
        throw std::runtime_error("no number: " + line);
    return number;
}

} // namespace

std::size_t Session::named(const std::string& text) const {
    for (std::size_t slot = 0; slot < names.size(); ++slot)
        if (std::regex_search(text, std::regex("\\b" + names[slot] + "\\b")))
            return slot;
    throw std::runtime_error("no station in " + text);
}

const std::string& Question::operator[](const std::string& column) const {
    const auto line = std::find_if(lines.begin(), lines.end(),
                                   [&](const auto& entry) { return entry.first == column; });
    if (line == lines.end())
        throw std::runtime_error("no column " + column);
    return line->second;
}

Session readSessionBytes(const std::string& path) {
    const std::vector<std::string> lines = linesOf(path);
    Session session;
    std::size_t at = 0;
    while (lines.at(at).starts_with(":c:"))
        session.comments.push_back(lines[at++].substr(3));
    for (std::size_t slot = 0; slot < session.names.size(); ++slot, at += 2)
        session.names[slot] = lines.at(at).substr(7, lines[at].find('@') - 7);
    at += 5; // states
    if (!lines.at(at).starts_with(":mc:,") || !lines.at(at + 1).starts_with(":ms:,"))
        throw std::runtime_error("no map centre and scale");
    for (at += 2; at < lines.size(); ++at) {
        Moment moment;
        for (std::size_t number = 1; number < moment.line.size(); ++number, ++at)
            moment.line[number] = numberOf(lines.at(at));
        if (lines.at(at) != "---")
            throw std::runtime_error("no separator in line " + std::to_string(at + 1));
        if (moment.line[40] >= static_cast<double>(session.comments.size()))
            throw std::runtime_error("no such comment in line " + std::to_string(at));
        session.moments.push_back(moment);
    }
    return session;
}

std::vector<std::string> flightLines(const std::string& path) {
    std::vector<std::string> lines = linesOf(path);
    std::erase_if(lines, [](const std::string& line) { return line.starts_with(":c:"); });
    return lines;
}

std::vector<Question> readStudyBytes(const std::string& path, const std::string& exercise) {
    const std::vector<std::string> intercept = {"qa", "a5", "a6", "a7", "a1",
                                                "a2", "a3", "a4", "s"};
    const std::map<std::string, std::vector<std::string>> byPlace = {
        {"adfpos",
         {"qa", "qb", "qc", "qd", "qe", "qf", "qg", "qh", "qi", "qj", "qk", "ql", "a1", "a2", "a3",
          "a4", "a5", "s"}},
        {"qdm", intercept},
        {"qdr", intercept},
        {"wind", {"qa", "qb", "a3", "a4", "a5", "a6", "a2", "a1", "a7", "qc", "qd", "s"}}};
    const auto listed = byPlace.find(exercise);
    const std::vector<std::string> places =
        listed == byPlace.end() ? std::vector<std::string>{"a1", "a2", "a3", "s"} : listed->second;
    std::vector<Question> questions(1);
    std::size_t place = 0;
    for (const std::string& line : linesOf(path)) {
        const std::size_t comma = line.find(":,");
        const bool prompt = listed == byPlace.end() && line.starts_with(":q");
        if (place == places.size()) { // a line of separation
            questions.emplace_back();
            place = 0;
        } else if (!line.starts_with(':') || comma == std::string::npos) {
            throw std::runtime_error("no tag: " + line);
        } else {
            questions.back().lines.emplace_back(prompt ? line.substr(1, 2) : places[place++],
                                                line.substr(comma + 2));
        }
    }
    if (!questions.back().lines.empty())
        throw std::runtime_error("no separator at the end of " + path);
    questions.pop_back();
    return questions;
}

} // namespace independent
