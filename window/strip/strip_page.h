#pragma once

#include "window/strip/strip_model.h"
#include "window/widgets/form_binding.h"
#include "window/widgets/wrap_layout.h"

#include <QWidget>

class QLabel;
class QVBoxLayout;

namespace tarnel {

/// `StripPage`: a page of the control strip: lines of controls below each other.
class StripPage : public QWidget {
    Q_OBJECT

  public:
    StripPage(const StripModel& stripModel, FormBinding& links, QWidget* parent);

    /// Brings up to date what no binding does.
    virtual void refresh() {}

  protected:
    /// Adds a line that wraps if it is too long.
    WrapLayout* addLine();
    /// Adds what stands in columns.
    WrapLayout* addColumns(int gapAcross = 12);
    /// The room that is left goes to the end of the page.
    void finish();

    void addBox(QLayout& layout, CheckBox& control);
    QLabel* captioned(Text text);

    StripModel model;
    FormBinding& binding;
    QVBoxLayout* lines = nullptr;
};

} // namespace tarnel
