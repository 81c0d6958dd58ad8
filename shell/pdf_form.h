#pragma once

#include "controls/form_controls.h"
#include "shell/box_desk.h"

#include <cstddef>
#include <string>
#include <vector>

namespace tarnel {

class DocumentDesk;

/// `PdfForm`: a small form beside the main window, from whose list documents are opened. The two
/// forms below are of this kind.
class PdfForm {
  public:
    /// A line of the list.
    struct Line {
        std::string caption;
        int page = 0;        ///< of the book; 0 for what begins at its start
        bool heads = false;  ///< stands over the lines that follow and opens nothing
        bool within = false; ///< belongs to the line before it that `heads`
    };

    PdfForm(const PdfForm&) = delete;
    PdfForm& operator=(const PdfForm&) = delete;
    virtual ~PdfForm() = default;

    [[nodiscard]] virtual std::vector<Line> lines() const = 0;
    /// Opens what a line stands for; a box tells what is missing.
    virtual void open(std::size_t line) = 0;

    const char* name;
    Text title;
    CheckBox shown;  ///< whether the form is there
    CheckBox Check1; ///< "immer obenauf": keeps the form above the main window

  protected:
    /// Takes `Check1` from the settings and keeps it there.
    PdfForm(FormState& state, DocumentDesk& documentDesk, SettingsStore& settings,
            const StringTable& table, const char* formName, Text formTitle, Text item);

    DocumentDesk& desk;
    const StringTable& texts;
};

/// `frmBuchPDF`: the contents of the book.
class frmBuchPDF : public PdfForm {
  public:
    frmBuchPDF(FormState& state, DocumentDesk& documentDesk, SettingsStore& settings,
               const StringTable& table)
        : PdfForm(state, documentDesk, settings, table, "frmBuchPDF", Text::bookFormTitle,
                  Text::bookForm) {}
    [[nodiscard]] std::vector<Line> lines() const override;
    void open(std::size_t line) override;
};

/// `frmJeppPDF`: the approach charts.
class frmJeppPDF : public PdfForm {
  public:
    frmJeppPDF(FormState& state, DocumentDesk& documentDesk, SettingsStore& settings,
               const StringTable& table)
        : PdfForm(state, documentDesk, settings, table, "frmJeppPDF", Text::menuApproachCharts,
                  Text::chartForm) {}
    [[nodiscard]] std::vector<Line> lines() const override;
    void open(std::size_t line) override;
};

} // namespace tarnel
