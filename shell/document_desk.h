#pragma once

#include "shell/box_desk.h"
#include "shell/practice_desk.h"
#include "shell/trainer_controls.h"

#include <cstddef>
#include <string>

namespace tarnel {

/// `DocumentDesk`: opens the documents of the application folder. A box tells of one that is
/// missing; a flight goes on.
class DocumentDesk {
  public:
    DocumentDesk(UserControl2& simulation, const CommandButton& loadSessionItem,
                 PracticeDesk& practiceDesk, BoxDesk& boxDesk, OutsideWorld& world);

    /// Opens the book, at a page if that is above 0.
    void openBook(int page);
    /// Opens one of `approachCharts`, and at rest the session that goes with it.
    void openApproachChart(std::size_t index);
    void openHelp() { openShipped("hilfe_de.html", "help_en.html"); }
    void openUserGuide() { openShipped("handbuch_de.pdf", "guide_en.pdf"); }
    void openProductPage() { openShipped("tarnel_de.html", "tarnel_en.html"); }
    /// Tells in a box what the program is.
    void showAbout();

  private:
    [[nodiscard]] std::string inApplicationFolder(const char* german, const char* other) const;
    bool open(const std::string& path, int page);
    bool openShipped(const char* german, const char* other);

    const UserControl2& sim;
    const CommandButton& loadSession;
    PracticeDesk& practice;
    BoxDesk& boxes;
    OutsideWorld& outside;
};

} // namespace tarnel
