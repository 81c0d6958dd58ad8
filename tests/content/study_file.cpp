#include "content/study_file.h"

#include "persistence/file_bytes.h"
#include "strings/string_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>

namespace tarnel {

namespace {

constexpr auto separator = "---";
constexpr std::size_t largestFile = 1 << 20;

/// A text line by line, each ended by CR LF.
class Lines {
  public:
    explicit Lines(std::string from) : text(std::move(from)) {}
    [[nodiscard]] bool atEnd() const { return place == text.size(); }

    std::string next() {
        const auto end = text.find("\r\n", place);
        EXPECT_NE(end, std::string::npos) << "a line without CR LF";
        const std::string line = text.substr(place, end - place);
        EXPECT_EQ(line.find_first_of("\r\n"), std::string::npos) << line;
        place = std::min(end, text.size() - 2) + 2;
        return line;
    }

  private:
    std::string text;
    std::size_t place = 0;
};

/// The value behind a tag such as ":a1:,", which names the column or shortens its name.
std::optional<std::string> valueBehind(const std::string& line, std::size_t tagLength) {
    if (line.size() <= tagLength || line.front() != ':' || line.substr(tagLength - 2, 2) != ":," ||
        line.find(":,") != tagLength - 2)
        return std::nullopt;
    return line.substr(tagLength);
}

std::optional<WrittenQuestion> nextRecord(Lines& lines, const StudyLayout& layout) {
    constexpr std::size_t tag = 5;
    constexpr std::size_t sessionTag = 4;
    WrittenQuestion record;
    for (const std::string& column : layout.columns) {
        const std::size_t tagLength = tag + (layout.stem == "adfpos" && column[0] != 'a' ? 1 : 0);
        const std::string line = lines.next();
        const auto value = valueBehind(line, tagLength);
        EXPECT_TRUE(value) << column << " in " << line;
        if (!value)
            return std::nullopt;
        EXPECT_EQ(line.substr(1, tagLength - 3), column) << line;
        record.columns[column] = *value;
    }
    const auto session = valueBehind(lines.next(), sessionTag);
    EXPECT_TRUE(session && session->ends_with(".ts"));
    EXPECT_EQ(lines.next(), separator);
    if (!session)
        return std::nullopt;
    record.session = session->substr(0, session->size() - 3);
    return record;
}

} // namespace

const std::vector<StudyLanguage>& studyLanguages() {
    static const std::vector<StudyLanguage> languages = {
        {"", germanTable(), "links", "rechts", "grösser", "kleiner", "gleich"},
        {"e-", englishTable(), "left", "right", "increase", "decrease", "remain constant"},
    };
    return languages;
}

const std::vector<StudyLayout>& studyLayouts() {
    static const std::vector<std::string> position = {"qa", "qb", "qc", "a1", "a2", "a3"};
    static const std::vector<std::string> task = {"qc", "a1", "a2", "a3"};
    static const std::vector<std::string> adf = {"qr1", "qr2", "qr3", "qr4", "qm1", "qm2",
                                                 "qm3", "qm4", "rb1", "rb2", "rb3", "rb4",
                                                 "a1",  "a2",  "a3",  "a4",  "a5"};
    static const std::vector<std::string> intercept = {"qa", "a5", "a6", "a7",
                                                       "a1", "a2", "a3", "a4"};
    static const std::vector<std::string> wind = {"qa", "qb", "a3", "a4", "a5", "a6",
                                                  "a2", "a1", "a7", "qc", "qd"};
    static const std::vector<StudyLayout> layouts = {
        {"hsi", position, "hsi"},   {"stdvor", position, "stdvor"},
        {"HSIHLD", task, "hsihld"}, {"dgHLD", task, "dghld"},
        {"adfpos", adf, "adfpos"},  {"qdm", intercept, "qdm"},
        {"qdr", intercept, "qdr"},  {"wind", wind, "wind"},
        {"dmearc", task, "dmearc"}, {"orientation", position, "orientation"},
    };
    return layouts;
}

const StudyLayout& studyLayout(const std::string& stem) {
    const auto& layouts = studyLayouts();
    return *std::find_if(layouts.begin(), layouts.end(),
                         [&](const StudyLayout& layout) { return layout.stem == stem; });
}

std::vector<WrittenQuestion> readStudyFile(const StudyLanguage& language,
                                           const StudyLayout& layout) {
    const std::string path =
        TARNEL_DATA_FOLDER "/default/study/" + language.prefix + layout.file + ".sty";
    Lines lines(readFileBytes(path, largestFile));
    std::vector<WrittenQuestion> records;
    while (!lines.atEnd() && !testing::Test::HasFailure()) {
        if (auto record = nextRecord(lines, layout))
            records.push_back(std::move(*record));
    }
    return records;
}

} // namespace tarnel
