#pragma once

#include "core/run_time_error.h"
#include "shell/outside_world.h"
#include "strings/string_table.h"

#include <functional>
#include <optional>
#include <string>

namespace tarnel {

/// `BoxDesk`: the boxes that the trainer shows, and the outermost catch of all that runs in it.
class BoxDesk {
  public:
    BoxDesk(const StringTable& table, OutsideWorld& world) : texts(table), outside(world) {}

    /// Comes back when the user has closed the box.
    void show(Text title, const std::string& message, BoxKind kind = BoxKind::warning);
    /// Asks a question that is answered by yes or no.
    [[nodiscard]] bool confirm(Text title, Text question);
    [[nodiscard]] std::optional<std::string> chooseFile(const FileQuestion& question);
    [[nodiscard]] NavFolders navFolders() const { return outside.navFolders(); }
    /// No timer procedure runs while a box is up.
    [[nodiscard]] bool up() const { return boxUp; }

    /// Runs a timer procedure, or what the user's hand started. A run-time error pauses the flight
    /// and is told once.
    template <class Action>
    void guarded(Action action) {
        try {
            action();
        } catch (const RunTimeError& error) {
            report(error);
        }
    }
    /// A tick went well: an error that comes after it is told, also if it is the last one again.
    void forgetError() { errorTold.clear(); }

    /// Says once that pictures can't be loaded.
    void pictureMissing(const std::string& file);
    void tellSettingsTrouble();

    const StringTable& texts;
    std::function<void()> beforeBox; ///< brings up to date what stands behind a box
    std::function<void()> pause;     ///< brings flight and replay to rest

  private:
    void report(const RunTimeError& error);
    template <class Shown>
    auto whileUp(Shown shown);

    OutsideWorld& outside;
    bool boxUp = false;
    bool pictureMissingSaid = false;
    std::string errorTold; ///< the run-time error that was last told and still lasts
};

} // namespace tarnel
