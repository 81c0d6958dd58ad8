#include "persistence/session_file.h"

#include "persistence/line_writer.h"
#include "persistence/sample_fields.h"
#include "persistence/session_lines.h"

#include <algorithm>
#include <string_view>

namespace tarnel {

namespace {

constexpr std::string_view commentTag = ":c:";
constexpr std::string_view mapCentreTag = ":mc:,";
constexpr std::string_view sampleEnd = "---";

void readFields(LineSource& lines, Sample& sample) {
    visitFields(sample, [&lines](auto& field, auto rule) { field = lines.nextNumber(rule); });
}

void readAll(LineSource& lines, SessionFile& session) {
    lines.openEitherForm();
    readComments(lines, session);
    readStations(lines, session);
    if (const std::int16_t centre = readMapCentre(lines); centre > 0)
        session.mapCenterSelect = centre;
    readMapScale(lines, session);
    readSamples(lines, session, [&lines](Sample& sample) { readFields(lines, sample); });
}

/// Comments up to the last that has a text or a sample.
std::size_t commentsToWrite(const SessionFile& session) {
    std::size_t count = session.comments.size();
    while (count > 0 && session.comments[count - 1].empty())
        --count;
    for (const Sample& sample : session.samples)
        if (sample.traceComment != noComment)
            count = std::max(count, static_cast<std::size_t>(sample.traceComment) + 1);
    return std::min(count, std::size_t{Comments::count});
}

void writeComments(LineWriter& lines, const SessionFile& session) {
    const std::size_t count = commentsToWrite(session);
    for (std::size_t i = 0; i < count; ++i)
        lines.textLine(commentTag, i < session.comments.size()
                                       ? firstCharacters(session.comments[i], Comments::longestText)
                                       : "");
}

} // namespace

void readComments(LineSource& lines, SessionFile& session) {
    while (lines.peek().starts_with(commentTag)) {
        if (session.comments.size() == Comments::count)
            lines.failBeyond(FileField::noFurtherComment);
        const std::string_view line = lines.next(FileField::identifier);
        session.comments.push_back(lines.decoded(line.substr(commentTag.size()),
                                                 Comments::longestText, FileField::comment));
    }
}

SessionFile readSession(std::string bytes) {
    return readUntilProblem(std::move(bytes), readAll);
}

SessionFile readSessionHead(std::string bytes) {
    return readUntilProblem(std::move(bytes), [](LineSource& lines, SessionFile& session) {
        lines.openEitherForm();
        readComments(lines, session);
        readStations(lines, session);
    });
}

std::string writeSession(const SessionFile& session, std::optional<int> key) {
    constexpr std::size_t usualHead = 4096;
    constexpr std::size_t usualSample = 512;
    LineWriter lines(key, "***** !DO NOT EDIT! *** Tarnel.ts file            ****",
                     usualHead + session.samples.size() * usualSample);
    writeComments(lines, session);
    writeStations(lines, session);
    lines.numberLine(mapCentreTag, session.mapCenterSelect.value_or(1));
    writeMapScale(lines, session);
    for (const Sample& sample : session.samples) {
        visitFields(sample, [&lines](auto value, auto) { lines.numberLine(value); });
        lines.line(sampleEnd);
    }
    return std::move(lines).finish();
}

} // namespace tarnel
