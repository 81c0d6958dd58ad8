#pragma once

#include "persistence/scratch_folder.h"
#include "shell/form_1.h"
#include "soak/answering_world.h"
#include "soak/hand.h"
#include "window/frame/coupling_pulse.h"
#include "window/frame/main_window.h"

#include <array>
#include <cstdint>
#include <string>

class QAction;

namespace tarnel {

/// What outlasts a program that ends and is started anew.
struct SoakState {
    explicit SoakState(std::uint32_t seed) : dice(seed) {}

    Dice dice;
    Trail trail;
    Reach controls;
    Reach entries;
    std::map<std::string, int> boxes;
    std::int64_t milliseconds = 1767225600000; ///< the clock that is driven by hand
    std::int64_t ticks = 0;                    ///< of the flights, three a simulated second
    int opened = 0;                            ///< exercises
    int answered = 0;                          ///< rows of questions
    int right = 0;                             ///< of those
};

/// `Program`: the trainer as a user has it from its start to its end, with all that belongs to it,
/// but without a clock: whoever owns it lets the time pass.
class Program {
  public:
    struct Given {
        const StringTable& texts;
        SoakState& state;
        std::string applicationFolder;
        std::string files; ///< the folder of what can be picked
    };
    explicit Program(const Given& given);

    /// Brings everything that is shown up to date, as the message loop does between two hands.
    void settle();
    /// Lets simulated time pass, as long as anything moves.
    void pass(int seconds);
    /// Lets go of everything: no window but the main one, no flight, no exercise, no page over it.
    void rest();
    /// Ends by the menu, as a user does.
    void end();

  private:
    SoakState& state;
    AnsweringWorld world;

  public:
    Form1 form;
    Hand hand;

  private:
    const ScratchFolder scratch;

  public:
    MainWindow window;

  private:
    [[nodiscard]] std::array<std::uint64_t, 4> changes() const;
    void keepCount();
    void closeOthers();
    QAction& exit();
    int driven = 0;
};

} // namespace tarnel
