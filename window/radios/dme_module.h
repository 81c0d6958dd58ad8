#pragma once

#include "instruments/dme_control_face.h"
#include "strings/string_table.h"
#include "window/dials/spoken_reading.h"
#include "window/radios/dme_selector.h"
#include "window/widgets/digit_display.h"
#include "window/widgets/module_frame.h"
#include "window/widgets/stepped_digits.h"

namespace tarnel {

/// `DmeModule`: the DME on the panel: frequency, distance, speed, and the switch of its source. The
/// frequency can be stepped while it is the DME's own.
class DmeModule : public ModuleFrame {
    Q_OBJECT

  public:
    DmeModule(DMEControlFace& dme, PictureStore& pictures, const StringTable& table,
              QWidget* parent = nullptr);

    void refresh() override;

    /// What the distance is measured to, for the spoken reading. May be empty.
    std::function<std::optional<SpokenStation>()> station;

    [[nodiscard]] DmeSelector& selector() { return sourceSelector; }

  protected:
    void placeParts(const QRectF& body) override;

  private:
    void placeWells(const QRectF& row, double highest);
    void speak();

    DMEControlFace& face;
    const StringTable& texts;
    SteppedDigits frequency;
    DigitDisplay distance;
    DigitDisplay speed;
    DmeSelector sourceSelector;
    std::uint64_t spoken = ~std::uint64_t{0}; ///< the revision last put into words
    std::optional<SpokenStation> spokenOf;    ///< the station last named
};

} // namespace tarnel
