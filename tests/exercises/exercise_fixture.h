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

    /// Plays the steps of a student, with ";" between them: "Option13" clicks, "Combo1=090" picks
    /// an entry, types or ticks, and "Label8>+090" expects that `shown` tells this of it.
    void play(std::string_view steps) {
        SCOPED_TRACE(steps);
        while (!steps.empty()) {
            const std::string step(steps.substr(0, steps.find(';')));
            steps.remove_prefix(std::min(steps.size(), step.size() + 1));
            steps.remove_prefix(std::min(steps.size(), steps.find_first_not_of(' ')));
            const std::size_t sign = step.find_first_of("=>");
            const std::string name = step.substr(0, sign);
            if (sign == std::string::npos)
                click(name);
            else if (step[sign] == '=')
                give(name, step.substr(sign + 1));
            else
                EXPECT_EQ(shown(name), step.substr(sign + 1)) << step;
        }
    }
    /// What a control, a property, a statistic ("stat qdm_bad"), the panel's "title" or the request
    /// to the tick ("result", which takes it) shows. Before a text stands "+" where it has the
    /// colours of a right answer, "-" of a wrong one, "~" where it has not those of all others.
    std::string shown(const std::string& name) {
        if (name == "title")
            return form.activePanel()->frame.text();
        if (name == "result")
            return std::to_string(takeResult());
        if (name.starts_with("stat "))
            return store.stat(name.substr(5));
        if (const auto* property = form.properties.find(name))
            return property->text();
        const auto* control = &get<FormControl>(name.substr(0, name.find('.')));
        if (name.ends_with(".enabled"))
            return std::to_string(control->enabled());
        if (const auto* frame = dynamic_cast<const FormFrame*>(control))
            return std::to_string(frame->height());
        if (!control->visible())
            return "hidden";
        if (const auto* choice = dynamic_cast<const TextOption*>(control))
            return choice->text();
        const auto* colours = dynamic_cast<const ColourLabel*>(control);
        const bool coloured = colours && colours->colours() != solutionColours;
        const std::string mark = !coloured                            ? ""
                                 : colours->colours() == rightColours ? "+"
                                 : colours->colours() == wrongColours ? "-"
                                                                      : "~";
        return mark + dynamic_cast<const TextPanel&>(*control).text();
    }

    int takeResult() {
        const int code = form.c_showResult;
        form.c_showResult = 0;
        return code;
    }

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

  private:
    void click(std::string_view name) {
        if (auto* button = dynamic_cast<CommandButton*>(form.find(name)))
            button->click();
        else if (auto* box = dynamic_cast<CheckBox*>(form.find(name)))
            box->click();
        else
            option(name).click();
    }
    void give(std::string_view name, const std::string& text) {
        if (auto* field = dynamic_cast<TextField*>(form.find(name)))
            return field->type(text);
        const auto& entries = list(name).entries();
        const auto found = std::ranges::find(entries, text);
        ASSERT_NE(found, entries.end()) << text;
        list(name).pick(static_cast<int>(found - entries.begin()));
    }
};

} // namespace tarnel
