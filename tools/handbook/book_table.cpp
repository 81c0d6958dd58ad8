#include "tools/handbook/book_table.h"

#include "shell/documents.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <map>
#include <vector>

namespace tarnel {

namespace {

/// The names of the texts, by their numbers.
const std::map<Text, const char*>& textNames() {
    static const std::map<Text, const char*> names = {
#define TEXT(number, name, german, english) {Text::name, #name},
#include "strings/texts.def"
    };
    return names;
}

QString words(const StringTable& texts, Text text) {
    return QString::fromUtf8(texts[text].data(), static_cast<qsizetype>(texts[text].size()));
}

QJsonObject section(const StringTable& texts, Text title, Text chapter, int index) {
    return {{"name", textNames().at(title)},
            {"page", texts.bookPage(index)},
            {"title", words(texts, title)},
            {"chapter", words(texts, chapter)}};
}

} // namespace

QByteArray bookTable(const StringTable& texts) {
    std::vector<QJsonObject> sections;
    int index = 0;
    for (const BookChapter& chapter : bookChapters())
        for (int text = static_cast<int>(chapter.first); text <= static_cast<int>(chapter.last);
             ++text)
            sections.push_back(section(texts, static_cast<Text>(text), chapter.header, index++));
    for (const Text last : {Text::bookAbbreviations, Text::bookIndex})
        sections.push_back(section(texts, last, last, index++));
    std::stable_sort(sections.begin(), sections.end(), [](const auto& one, const auto& other) {
        return one["page"].toInt() < other["page"].toInt();
    });
    QJsonArray rows;
    for (const QJsonObject& row : sections)
        rows.append(row);
    return QJsonDocument(rows).toJson();
}

} // namespace tarnel
