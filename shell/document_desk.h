#pragma once

#include "shell/box_desk.h"
#include "shell/pdf_form.h"
#include "shell/practice_desk.h"
#include "shell/trainer_controls.h"

#include <cstddef>
#include <string>

namespace tarnel {

/// `DocumentDesk`: opens the documents of the application folder. A box tells of one that is
/// missing, or that nothing opens; a flight goes on.
class DocumentDesk {
  public:
    DocumentDesk(UserControl2& simulation, TrainerControls& controls, PracticeDesk& practiceDesk,
                 BoxDesk& boxDesk, OutsideWorld& world);

    /// Opens the book at a page, rounded as all 16-bit numbers are; at its start if that is 0.
    void OpenBook(double page);
    /// Opens one of `approachCharts`, and at rest the session that goes with it.
    void openApproachChart(std::size_t index);
    /// Shows a page of the help in its window; the contents where there is no page of that name.
    void openHelp(const std::string& page);
    void openUserGuide();
    void openProductPage();
    /// Tells in a box what the program is.
    void showAbout();

  private:
    [[nodiscard]] std::string inApplicationFolder(const std::string& name) const;
    [[nodiscard]] std::string helpFile(const std::string& page) const;
    bool isThere(const std::string& path);
    bool openDocument(const std::string& path, int page);
    void openInBrowser(const std::string& page);

    const UserControl2& sim;
    const CommandButton& loadSession;
    PracticeDesk& practice;
    BoxDesk& boxes;
    OutsideWorld& outside;

  public:
    frmBuchPDF bookForm;
    frmJeppPDF chartForm;
};

} // namespace tarnel
