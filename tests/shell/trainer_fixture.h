#pragma once

#include "persistence/file_bytes.h"
#include "shell/form_1.h"
#include "strings/string_table.h"
#include "support/noted_world.h"
#include "support/temporary_folder.h"
#include "support/told.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace tarnel {

/// A folder of its own, for a default chart.
struct ApplicationFolder : TemporaryFolder {
    void writeChart(const std::string& text) const {
        std::ofstream(path + "/default.map", std::ios::binary) << text;
    }
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
        form.coupling.setHeadingBug(static_cast<std::int16_t>(heading));
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

/// A test with such a trainer.
class TrainerTest : public testing::Test, protected Trainer {};

/// A trainer in a folder of its own, at rest.
class TrainerWithFiles : public testing::Test {
  protected:
    TrainerWithFiles() {
        std::filesystem::create_directories(folder.path + "/default/sessions");
        std::filesystem::copy(TARNEL_DATA_FOLDER "/default.map", folder.path + "/default.map");
        form = std::make_unique<Form1>(englishTable(), world, folder.path);
    }
    void couple(int ticks = 3) {
        for (int i = 0; i < ticks; ++i)
            form->Timer1();
    }
    void fly(int seconds) {
        form->startButton.click();
        for (int i = 0; i < 3 * seconds; ++i) {
            form->simulationTimer();
            couple();
        }
        form->startButton.click();
        couple();
    }
    void saveAs(const std::string& name) {
        world.chosen = folder.path + "/" + name;
        form->fileMenu.saveSessionAs.click();
        world.chosen.reset();
    }
    void load(const std::string& name) {
        form->files.openFile(folder.path + "/" + name);
        couple();
    }
    [[nodiscard]] std::string bytes(const std::string& name) const {
        return readFileBytes(folder.path + "/" + name, 1 << 24);
    }
    UserControl2& sim() { return form->UserControl11; }

    ApplicationFolder folder;
    NotedWorld world;
    std::unique_ptr<Form1> form;
};

} // namespace tarnel
