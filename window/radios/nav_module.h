#pragma once

#include "instruments/radio_face.h"
#include "strings/string_table.h"
#include "window/widgets/digit_display.h"
#include "window/widgets/knob_widget.h"
#include "window/widgets/module_frame.h"

namespace tarnel {

/// Which texts a receiver's module bears, and where its printed point stands.
struct ReceiverTexts {
    Text caption;
    Text unit;
    Text tip;
    std::size_t pointAfter;
};

constexpr ReceiverTexts nav1Texts{Text::faceNav1, Text::unitMegahertz, Text::vorFrequencyTip, 3};
constexpr ReceiverTexts nav2Texts{Text::faceNav2, Text::unitMegahertz, Text::vorFrequencyTip, 3};
constexpr ReceiverTexts adfTexts{Text::faceAdf, Text::unitKilohertz, Text::ndbFrequencyTip, 0};

/// `NavModule`: a receiver on the panel: its frequency, and the knob that chooses it.
class NavModule : public ModuleFrame {
    Q_OBJECT

  public:
    NavModule(RadioFace& receiver, const ReceiverTexts& words, PictureStore& pictures,
              const StringTable& table, QWidget* parent = nullptr);

    void refresh() override;

    [[nodiscard]] KnobWidget& knob() { return frequencyKnob; }

  protected:
    void placeParts(const QRectF& body) override;

  private:
    void connectKnob();
    void change(const std::function<void()>& action);

    RadioFace& face;
    ReceiverTexts words;
    const StringTable& texts;
    DigitDisplay digits;
    KnobWidget frequencyKnob;
    std::uint64_t spoken = ~std::uint64_t{0}; ///< the revision last put into words
};

} // namespace tarnel
