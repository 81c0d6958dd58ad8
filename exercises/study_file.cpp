#include "exercises/study_file.h"

#include "exercises/exercise_catalogue.h"
#include "persistence/text_encoding.h"

#include <algorithm>
#include <optional>

namespace tarnel {

namespace {

using enum StudyColumn;

/// A line of a record: what stands behind a tag of this length goes into the column.
struct TaggedColumn {
    StudyColumn column;
    std::string_view tag;
};

/// First come prompts, told by their tags, in any order and each as often as wanted; then lines
/// that count by their place, whatever their tags.
struct StudyLayout {
    std::vector<TaggedColumn> prompts;
    std::vector<TaggedColumn> lines;
};

/// By `StudyFormat`.
const std::vector<StudyLayout>& layouts() {
    static const std::vector<StudyLayout> table = {
        {// threePrompts
         {{qa, ":qa:,"}, {qb, ":qb:,"}, {qc, ":qc:,"}},
         {{ans1, ":a1:,"}, {ans2, ":a2:,"}, {ans3, ":a3:,"}, {sessionName, ":s:,"}}},
        {// twoPrompts
         {{qa, ":qa:,"}, {qb, ":qb:,"}},
         {{qc, ":qc:,"}, {ans1, ":a1:,"}, {ans2, ":a2:,"}, {ans3, ":a3:,"}, {sessionName, ":s:,"}}},
        {// bearings
         {},
         {{qa, ":qda:,"},
          {qb, ":qdb:,"},
          {qc, ":qdc:,"},
          {qd, ":qdd:,"},
          {qe, ":qme:,"},
          {qf, ":qmf:,"},
          {qg, ":qmg:,"},
          {qh, ":qmh:,"},
          {qi, ":rbi:,"},
          {qj, ":rbj:,"},
          {qk, ":rbk:,"},
          {ql, ":rbl:,"},
          {ans1, ":a1:,"},
          {ans2, ":a2:,"},
          {ans3, ":a3:,"},
          {ans4, ":a4:,"},
          {ans5, ":a5:,"},
          {sessionName, ":s:,"}}},
        {// intercept
         {},
         {{qa, ":qa:,"},
          {ans5, ":a5:,"},
          {ans6, ":a6:,"},
          {ans7, ":a7:,"},
          {ans1, ":a1:,"},
          {ans2, ":a2:,"},
          {ans3, ":a3:,"},
          {ans4, ":a4:,"},
          {sessionName, ":s:,"}}},
        {// wind
         {},
         {{qa, ":qa:,"},
          {qb, ":qb:,"},
          {ans3, ":a3:,"},
          {ans4, ":a4:,"},
          {ans5, ":a5:,"},
          {ans6, ":a6:,"},
          {ans2, ":a2:,"},
          {ans1, ":a1:,"},
          {ans7, ":a7:,"},
          {qc, ":qc:,"},
          {qd, ":qd:,"},
          {sessionName, ":s:,"}}},
    };
    return table;
}

const StudyLayout* layoutOf(int type) {
    const ExerciseKind* exercise = exerciseOf(type);
    return exercise ? &layouts()[static_cast<std::size_t>(exercise->format)] : nullptr;
}

/// Hands out the lines of a text without their ends.
class LineReader {
  public:
    explicit LineReader(std::string_view text) : rest(text) {}

    [[nodiscard]] bool onlyBlankLeft() const {
        return rest.find_first_not_of(" \t\r\n") == std::string_view::npos;
    }
    /// The lines handed out so far.
    [[nodiscard]] int count() const { return handedOut; }
    /// Whether the line handed out last was too long to be one.
    [[nodiscard]] bool metTooLong() const { return tooLong; }

    std::optional<std::string_view> next() {
        if (rest.empty() || tooLong)
            return std::nullopt;
        ++handedOut;
        std::string_view line = rest.substr(0, rest.find('\n'));
        rest.remove_prefix(std::min(line.size() + 1, rest.size()));
        if (line.ends_with('\r'))
            line.remove_suffix(1);
        tooLong = characterCount(line) > longestStudyLine;
        return tooLong ? std::nullopt : std::optional(line);
    }

  private:
    std::string_view rest;
    int handedOut = 0;
    bool tooLong = false;
};

std::string valueBehind(std::string_view tag, std::string_view line) {
    std::size_t at = 0;
    for (std::size_t i = 0; i < tag.size() && at < line.size(); ++i)
        at = nextCharacter(line, at);
    return std::string(line.substr(at));
}

const TaggedColumn* promptOf(const StudyLayout& layout, std::string_view line) {
    for (const TaggedColumn& prompt : layout.prompts)
        if (line.starts_with(prompt.tag))
            return &prompt;
    return nullptr;
}

/// The next record, its separator taken too. Nothing if the text ends within it.
std::optional<StudyRecord> readRecord(LineReader& lines, const StudyLayout& layout) {
    StudyRecord record;
    auto line = lines.next();
    while (line) {
        const TaggedColumn* prompt = promptOf(layout, *line);
        if (!prompt)
            break;
        record[prompt->column] = valueBehind(prompt->tag, *line);
        line = lines.next();
    }
    for (const auto& [column, tag] : layout.lines) {
        if (!line)
            return std::nullopt;
        record[column] = valueBehind(tag, *line);
        line = lines.next();
    }
    return line ? std::optional(std::move(record)) : std::nullopt;
}

void appendLine(std::string& text, const TaggedColumn& place, const StudyRecord& record) {
    std::string value = record[place.column];
    std::ranges::replace_if(
        value, [](char c) { return c == '\r' || c == '\n'; }, ' ');
    text.append(place.tag).append(value).append("\r\n");
}

} // namespace

StudyFile readStudyFile(std::string_view bytes, int type) {
    StudyFile file;
    const StudyLayout* layout = layoutOf(type);
    if (!layout)
        return file;
    const std::string_view content = withoutByteOrderMark(bytes);
    const std::string text = toUtf8(content, encodingOf(content));
    LineReader lines(text);
    while (!lines.onlyBlankLeft() && file.end == StudyEnd::complete) {
        if (file.records.size() == maxStudyRecords)
            file.end = StudyEnd::tooManyRecords;
        else if (auto record = readRecord(lines, *layout))
            file.records.push_back(std::move(*record));
        else
            file.end = lines.metTooLong() ? StudyEnd::lineTooLong : StudyEnd::insideRecord;
    }
    if (file.end != StudyEnd::complete) {
        file.record = static_cast<int>(file.records.size()) + 1;
        file.line = lines.count();
    }
    return file;
}

std::string writeStudyRecord(const StudyRecord& record, int type) {
    std::string text;
    const StudyLayout* layout = layoutOf(type);
    if (!layout)
        return text;
    for (const TaggedColumn& prompt : layout->prompts)
        appendLine(text, prompt, record);
    for (const TaggedColumn& line : layout->lines)
        appendLine(text, line, record);
    return text + "\r\n";
}

} // namespace tarnel
