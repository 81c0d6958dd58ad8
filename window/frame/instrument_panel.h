#pragma once

#include "panel/instrument_positions.h"
#include "panel/panel_controls.h"
#include "shell/box_desk.h"
#include "shell/exercise_conduct.h"
#include "window/dials/spoken_reading.h"
#include "window/frame/window_layout.h"
#include "window/widgets/form_binding.h"
#include "window/widgets/model_guard.h"
#include "window/widgets/picture_store.h"

#include <QWidget>

#include <array>
#include <optional>

namespace tarnel {

class AutopilotModule;
class ChannelLamp;
class CoverPlate;
class DmeModule;
class InstrumentHeader;
class InstrumentView;
class ModuleFrame;
class NavModule;
class StopwatchModule;

/// What the instrument panel shows and acts on.
struct InstrumentPanelModel {
    PanelControls& controls;
    InstrumentPositions& positions;
    const UserControl2& sim;
    const ExerciseConduct& exercise;
    BoxDesk& boxes;
};

/// `InstrumentPanel`: the dark half of the window: two instruments, the radios, the stopwatch and
/// the autopilot.
class InstrumentPanel : public QWidget {
    Q_OBJECT

  public:
    InstrumentPanel(const InstrumentPanelModel& panelModel, FormBinding& binding,
                    PictureStore& pictures, const ModelGuard& guard, QWidget* parent = nullptr);

    void layOut(const WindowLayout& layout);
    /// Radios, stopwatch and autopilot, in whose place something else may stand.
    void showModules(bool shown);
    void refresh();

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void makeInstruments(FormBinding& binding, PictureStore& pictures, const ModelGuard& guard);
    void makeModules(FormBinding& binding, PictureStore& pictures, const ModelGuard& guard);
    void nameModules();
    [[nodiscard]] QBrush groundAt(QPoint place) const;
    [[nodiscard]] SpokenStations stationsOf(const InstrumentPosition& position) const;
    void coverInstruments();
    void showChannelLamps();
    void letter(const WindowLayout& layout);
    void layOutChannelLamp(std::size_t position, const QRect& bezel);

    InstrumentPanelModel model;
    std::array<InstrumentHeader*, 2> headers{};
    std::array<InstrumentView*, 2> instruments{};
    std::array<ChannelLamp*, 2> channelLamps{};
    std::array<CoverPlate*, 2> plates{};
    std::optional<QuestionCover> shownCover;
    NavModule* nav1 = nullptr;
    NavModule* nav2 = nullptr;
    NavModule* adf = nullptr;
    DmeModule* dme = nullptr;
    StopwatchModule* stopwatch = nullptr;
    AutopilotModule* autopilot = nullptr;
    std::array<ModuleFrame*, 6> modules{};
};

} // namespace tarnel
