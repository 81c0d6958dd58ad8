#pragma once

#include "exercises/qa_form.h"
#include "strings/string_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tarnel {

using Columns = std::initializer_list<std::pair<StudyColumn, std::string>>;

inline StudyRecord recordOf(Columns columns) {
    StudyRecord record;
    for (const auto& [column, text] : columns)
        record[column] = text;
    return record;
}

/// Settings that count how often their file would be written.
class CountingStore : public MemorySettingsStore {
  public:
    void flush() override { ++flushes; }
    [[nodiscard]] std::string stat(const std::string& key) const {
        return value("qxr1", "stats", key, "-");
    }
    int flushes = 0;
};

/// A quiz whose files and settings are in memory and whose draws are fixed.
class ExerciseTest : public ::testing::Test {
  protected:
    /// Writes the study file and starts the exercise.
    void start(int type, const std::vector<StudyRecord>& records) {
        std::string bytes;
        for (const StudyRecord& record : records)
            bytes += writeStudyRecord(record, type);
        files[studyPath(studyFileNames(*exerciseOf(type), true).front())] = bytes;
        set(type);
    }
    void start(int type, Columns columns) { start(type, {recordOf(columns)}); }
    void set(int type) { form.c_QAtype = static_cast<std::int16_t>(type); }

    static std::string studyPath(const std::string& name) { return "app\\default\\study\\" + name; }

    template <class Control>
    Control& get(std::string_view name) {
        auto* control = dynamic_cast<Control*>(form.find(name));
        if (!control)
            throw std::runtime_error("no such widget: " + std::string(name));
        return *control;
    }
    ColourLabel& label(std::string_view name) { return get<ColourLabel>(name); }
    TextOption& option(std::string_view name) { return get<TextOption>(name); }
    TextList& list(std::string_view name) { return get<TextList>(name); }
    std::string caption(std::string_view name) { return option(name).text(); }
    void click(std::string_view name) {
        if (auto* button = dynamic_cast<CommandButton*>(form.find(name)))
            button->click();
        else
            option(name).click();
    }
    void pick(std::string_view name, std::string_view entry) {
        const auto& entries = list(name).entries();
        const auto found = std::find(entries.begin(), entries.end(), entry);
        ASSERT_NE(found, entries.end()) << entry;
        list(name).pick(static_cast<int>(found - entries.begin()));
    }
    void type(std::string_view name, const std::string& text) { get<TextField>(name).type(text); }

    /// What stands in an answer's place, and whether its colours are those of the verdict.
    std::string answer(std::string_view name, const LabelColours& colours) {
        const ColourLabel& shown = label(name);
        if (!shown.visible())
            return "hidden";
        return shown.colours() == colours ? shown.text() : "other colours: " + shown.text();
    }
    std::string right(std::string_view name) { return answer(name, rightColours); }
    bool wrong(std::string_view name) { return answer(name, wrongColours) == "FALSCH"; }
    /// The same after a click on an option, or a pick of an entry from a list.
    template <class... Given>
    std::string rightAfter(std::string_view name, Given... given) {
        give(given...);
        return right(name);
    }
    template <class... Given>
    bool wrongAfter(std::string_view name, Given... given) {
        give(given...);
        return wrong(name);
    }
    void give(std::string_view option) { click(option); }
    void give(std::string_view list, std::string_view entry) { pick(list, entry); }

    /// The request to the tick, taken as the tick takes it.
    int takeResult() {
        const int code = form.c_showResult;
        form.c_showResult = 0;
        return code;
    }
    std::string title() { return form.activePanel()->frame.text(); }

    FormState state;
    CountingStore store;
    std::map<std::string, std::string> files;
    std::uint32_t seed = 20;
    QAform form{state, surroundings(germanTable())};

    ExerciseSurroundings surroundings(const StringTable& texts) {
        const auto readFile = [this](const std::string& path) -> std::optional<std::string> {
            const auto found = files.find(path);
            return found == files.end() ? std::nullopt : std::optional(found->second);
        };
        return {texts, store, readFile, [this] { return seed; }};
    }
    void SetUp() override { form.c_MainAppPath = "app"; }
};

} // namespace tarnel
