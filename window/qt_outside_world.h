#pragma once

#include "shell/outside_world.h"

#include <QPointer>
#include <QWidget>

namespace tarnel {

/// `QtOutsideWorld`: message boxes over the main window.
class QtOutsideWorld : public OutsideWorld {
  public:
    void messageBox(BoxKind kind, const std::string& title, const std::string& text) override;
    /// The window that boxes belong to; without one they stand alone.
    void setParent(QWidget* window) { parent = window; }

  private:
    QPointer<QWidget> parent;
};

} // namespace tarnel
