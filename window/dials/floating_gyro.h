#pragma once

#include "panel/panel_controls.h"
#include "shell/box_desk.h"
#include "shell/exercise_conduct.h"
#include "window/dials/instrument_view.h"
#include "window/widgets/picture_store.h"

#include <QWidget>

namespace tarnel {

class CoverPlate;

/// `additional_DG`: a small window of its own with a directional gyro.
class additional_DG : public QWidget {
    Q_OBJECT

  public:
    additional_DG(PanelControls& controls, const ExerciseConduct& conduct, BoxDesk& boxDesk,
                  PictureStore& pictures, QWidget* parent = nullptr);

    /// Shows or hides the window as the form wants it, and brings the gyro up to date.
    void refresh();

  protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    PanelControls& panel;
    const ExerciseConduct& exercise;
    BoxDesk& boxes;
    InstrumentView* gyro = nullptr;
    CoverPlate* plate = nullptr; ///< over it where a question covers instruments
};

} // namespace tarnel
