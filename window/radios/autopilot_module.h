#pragma once

#include "instruments/ap_control_face.h"
#include "strings/string_table.h"
#include "window/widgets/digit_display.h"
#include "window/widgets/knob_widget.h"
#include "window/widgets/module_frame.h"

#include <memory>
#include <vector>

namespace tarnel {

/// `AutopilotModule`: the autopilot on the panel: heading, air speed and altitude, each with its
/// knob.
class AutopilotModule : public ModuleFrame {
    Q_OBJECT

  public:
    AutopilotModule(APControlFace& autopilot, PictureStore& pictures, const StringTable& table,
                    QWidget* parent = nullptr);

    void refresh() override;

    [[nodiscard]] KnobWidget& knob(AutopilotKnob which);

  protected:
    void placeParts(const QRectF& body) override;
    void paintMore(QPainter& painter) override;

  private:
    /// One of the three readings.
    struct Column {
        AutopilotKnob which;
        Text label;
        Text unit;
        std::unique_ptr<DigitDisplay> digits;
        std::unique_ptr<KnobWidget> knob;
    };

    void addColumn(AutopilotKnob which, const DigitReadout& readout, Text label, Text unit);
    void describe(KnobWidget& knob, Text name, Text tip, Text hands);
    void connectKnob(AutopilotKnob which, KnobWidget& knob);
    void step(AutopilotKnob which, int steps);
    void change(const std::function<void()>& action);
    [[nodiscard]] KnobTravel travel(AutopilotKnob which) const;
    void turnPointers();
    void speak();
    [[nodiscard]] double columnLeft(std::size_t column) const;

    APControlFace& face;
    PictureStore& pictures;
    const StringTable& texts;
    std::vector<Column> columns;
    std::uint64_t spoken = ~std::uint64_t{0}; ///< the revision last put into words
};

} // namespace tarnel
