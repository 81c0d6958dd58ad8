#pragma once

#include "instruments/stopwatch_face.h"
#include "strings/string_table.h"
#include "window/widgets/dark_button.h"
#include "window/widgets/digit_display.h"
#include "window/widgets/module_frame.h"

namespace tarnel {

/// `StopwatchModule`: the stopwatch on the panel. Its owner connects the two buttons and gives the
/// first one its word.
class StopwatchModule : public ModuleFrame {
    Q_OBJECT

  public:
    StopwatchModule(tvsmtimer& stopwatch, PictureStore& pictures, const StringTable& table,
                    QWidget* parent = nullptr);

    void refresh() override;

    [[nodiscard]] QAbstractButton& startButton() { return start; }
    [[nodiscard]] QAbstractButton& resetButton() { return reset; }

  protected:
    void placeParts(const QRectF& body) override;

  private:
    [[nodiscard]] QSizeF buttonSize() const;
    void placeButtonsBelow(const QRectF& body);

    tvsmtimer& face;
    const StringTable& texts;
    DigitDisplay digits;
    DarkButton start;
    DarkButton reset;
    std::uint64_t spoken = ~std::uint64_t{0}; ///< the revision last put into words
};

} // namespace tarnel
