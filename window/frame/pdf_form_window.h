#pragma once

#include "shell/box_desk.h"
#include "shell/pdf_form.h"
#include "window/widgets/form_binding.h"

#include <QWidget>

class QTreeWidget;

namespace tarnel {

/// `PdfFormWindow`: shows a `PdfForm` as a small window beside the main window.
class PdfFormWindow : public QWidget {
    Q_OBJECT

  public:
    PdfFormWindow(PdfForm& pdfForm, BoxDesk& boxDesk, FormBinding& binding, QWidget& mainWindow);

    /// Shows or hides the window as the form wants it, above the main window or free of it.
    void refresh();

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void fill();
    void openCurrent();
    void showAs(bool above);

    PdfForm& form;
    BoxDesk& boxes;
    QWidget& main;
    QTreeWidget* list = nullptr;
    bool isAbove = false;
};

} // namespace tarnel
