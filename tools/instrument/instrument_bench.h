#pragma once

#include "instruments/user_control_1.h"
#include "strings/string_table.h"
#include "window/widgets/picture_store.h"

#include <QTimer>
#include <QWidget>

#include <vector>

class QFormLayout;
class QLabel;

namespace tarnel {

class InstrumentView;
class PropertyEditor;

/// `InstrumentBench`: one instrument alone, with an editor for each of its properties.
class InstrumentBench : public QWidget {
    Q_OBJECT

  public:
    /// `folder` holds the pictures.
    InstrumentBench(const StringTable& texts, const std::string& folder, InstrumentKind kind,
                    bool large);

    /// Brings editors and instrument up to date with each other.
    void refresh();

  private:
    /// An editor for each property: knob flags go to `outputs`, the others to `inputs`.
    void makeEditors(QFormLayout& outputs, QFormLayout& inputs);
    void change(const std::function<void()>& action);
    void fitInstrument();
    void showReading();

    UserControl_1 instrument;
    PictureStore pictures;
    InstrumentView* view = nullptr;
    QLabel* reading = nullptr;
    QLabel* error = nullptr;
    std::vector<PropertyEditor*> editors;
    QTimer timer;
};

} // namespace tarnel
