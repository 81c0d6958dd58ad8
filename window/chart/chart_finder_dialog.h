#pragma once

#include "shell/chart_finder.h"

#include <QDialog>

#include <array>

class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QTableWidget;
class QVBoxLayout;

namespace tarnel {

/// `ChartFinderDialog`: a new chart from navigation data: choose the data, search a station, look
/// at the five that are proposed around it and exchange them, save.
class ChartFinderDialog : public QDialog {
    Q_OBJECT

  public:
    ChartFinderDialog(UserControl2& simulation, BoxDesk& boxDesk, const NavFolders& folders,
                      QWidget* parent);

    /// Saves the chart. The dialog stays until that is done.
    void accept() override;

  private:
    void makeSource(QGridLayout& grid);
    void makeSearch(QGridLayout& grid);
    void makeHits(QVBoxLayout& column);
    void makeSlots(QVBoxLayout& column);
    void makeButtons(QVBoxLayout& column);

    void chooseSource(int entry);
    void chooseFile();
    void search();
    void choosePlace(int row);
    void exchange(Slot slot, int entry);

    void showSources();
    void showHits();
    void showStations();
    void showOffers(Slot slot);

    template <class Action>
    void guarded(Action action) {
        boxes.guarded(action);
    }
    [[nodiscard]] QString text(Text id) const;

    BoxDesk& boxes;
    ChartFinder finder;
    QComboBox* source = nullptr;
    QLabel* summary = nullptr;
    QLineEdit* words = nullptr;
    QLabel* searchNote = nullptr;
    QTableWidget* hits = nullptr;
    QLabel* stationsTitle = nullptr;
    std::array<QComboBox*, slotCount> offers{};
    QLabel* notes = nullptr;
    QPushButton* save = nullptr;
};

} // namespace tarnel
