#pragma once

#include "shell/form_1.h"
#include "strings/string_table.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace tarnel {

/// An outside world that writes its boxes down.
struct NotedWorld : OutsideWorld {
    std::vector<std::string> boxes;
    std::vector<std::string> asked;
    bool answer = true; ///< to each question
    void messageBox(BoxKind, const std::string& title, const std::string& text) override {
        boxes.push_back(title + ": " + text);
    }
    bool ask(const std::string&, const std::string& text) override {
        asked.push_back(text);
        return answer;
    }
};

/// A folder of its own with a default chart in it, gone at the end.
class ApplicationFolder {
  public:
    ApplicationFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "tarnel-XXXXXX").string();
        path = mkdtemp(name.data());
    }
    ~ApplicationFolder() { std::filesystem::remove_all(path); }
    ApplicationFolder(const ApplicationFolder&) = delete;
    ApplicationFolder& operator=(const ApplicationFolder&) = delete;

    void writeChart(const std::string& text) const {
        std::ofstream(path + "/default.map", std::ios::binary) << text;
    }

    std::string path;
};

/// The trainer on the shipped chart, with both clocks run by hand.
struct Trainer {
    explicit Trainer(const std::string& folder = TARNEL_DATA_FOLDER)
        : form(englishTable(), world, folder) {}

    /// Runs the coupling alone.
    void couple(int ticks = 3) {
        for (int i = 0; i < ticks; ++i)
            form.Timer1();
    }
    /// Flies on for simulated seconds.
    void fly(double seconds) {
        constexpr int ticksPerSecond = 3;
        for (int i = 0; i < seconds * ticksPerSecond; ++i) {
            form.simulationTimer();
            couple();
        }
    }
    void start() { form.startButton.click(); }
    void placeAt(double latitude, double longitude, double heading) {
        form.UserControl11.placeAircraft(GeoPosition{latitude, longitude});
        form.UserControl11.turnAircraft(heading);
        form.setHeadingBug(static_cast<std::int16_t>(heading));
        couple();
    }
    /// Sets the course of a position as its OBS knob does.
    void setCourse(InstrumentPosition& position, double course) {
        position.instrument.c_MouseOBS_HSI = 360 - course;
        position.instrument.c_MouseOBS = 360 - course;
        couple();
    }
    UserControl2& sim() { return form.UserControl11; }
    InstrumentReading reading2() { return form.inst2.instrument.reading(); }
    InstrumentReading reading3() { return form.inst3.instrument.reading(); }

    NotedWorld world;
    Form1 form;
};

} // namespace tarnel
