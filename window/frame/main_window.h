#pragma once

#include "shell/form_1.h"
#include "window/frame/coupling_pulse.h"
#include "window/frame/window_layout.h"
#include "window/widgets/form_binding.h"
#include "window/widgets/picture_store.h"

#include <QMainWindow>
#include <QPointer>
#include <QTimer>

#include <functional>
#include <memory>

namespace tarnel {

class ChartControls;
class ChartView;
class CommentCard;
class DebriefCard;
class DebriefPlot;
class ControlStrip;
class FileOpener;
class FlightSigns;
class InstrumentPanel;
class PdfFormWindow;
class ProgressPage;
class QuizPanel;
struct DebriefModel;
struct InstrumentPanelModel;
struct QuizModel;
struct StripModel;
class StationEditing;
class StatusPanels;
class additional_DG;

/// `MainWindow`: shows the trainer and hands it the mouse, the keys and the time.
class MainWindow : public QMainWindow {
    Q_OBJECT

  public:
    explicit MainWindow(Form1& form);
    ~MainWindow() override;

    /// Lets time run: the coupling while something may change, the simulation at its rate.
    void startTimers();

    /// Opens a chart or a session that comes from outside the menus, by its absolute path.
    void openFile(const std::string& path);

    /// Brings everything that is shown up to date with the form.
    void refresh();

    /// Called while the window still stands, when the user closes it.
    std::function<void()> onClose;

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    void makeMenus();
    void makeNewChart();
    [[nodiscard]] StripModel stripModel();
    [[nodiscard]] InstrumentPanelModel panelModel();
    [[nodiscard]] QuizModel quizModel();
    [[nodiscard]] DebriefModel debriefModel();
    void makeDesk();
    void makeProgress();
    void makeHelpPages();
    void openHelp();
    void stepOut();
    void giveLetters();
    void coverDesk(bool covered);
    void layOut();
    void layOutDebrief(const WindowLayout& layout);
    void followDebrief();
    void focusStart();
    [[nodiscard]] ColumnWishes columnWishes() const;
    void beat();
    void followClocks();
    static void follow(QTimer& timer, bool runs, int interval);
    [[nodiscard]] PanelSizes panelSizes() const;

    Form1& form;
    ModelGuard guard;
    FormBinding binding;
    PictureStore pictures;
    QWidget* desk = nullptr;
    ChartView* chart = nullptr;
    std::unique_ptr<StationEditing> stationEditing;
    FileOpener* opener = nullptr;
    FlightSigns* flightSigns = nullptr;
    ChartControls* chartControls = nullptr;
    ControlStrip* strip = nullptr;
    CommentCard* comment = nullptr;
    QuizPanel* quiz = nullptr;
    InstrumentPanel* panel = nullptr;
    ProgressPage* progress = nullptr;
    DebriefCard* debriefCard = nullptr;
    DebriefPlot* debriefPlot = nullptr;
    StatusPanels* status = nullptr;
    additional_DG* gyro = nullptr;
    QAction* fullScreen = nullptr;
    CouplingPulse pulse;
    PdfFormWindow* bookForm = nullptr;
    PdfFormWindow* chartForm = nullptr;
    QTimer simulationTimer;
    QTimer autopilotTimer;
    QTimer replayTimer;
    QTimer blinkTimer;
    PanelSizes shownSizes;
    std::size_t shownComments = 0;
    int shownQuiz = 0;
    bool shownOpen = false;          ///< whether a question stood open
    bool shownDebrief = false;       ///< whether a debrief stood open
    QPointer<QWidget> beforeDebrief; ///< had the keyboard
    double shownScale = 1;
};

} // namespace tarnel
