#pragma once

#include "shell/box_desk.h"
#include "shell/station_desk.h"

#include <QDialog>

#include <array>

class QCheckBox;
class QFormLayout;
class QLineEdit;
class QRadioButton;

namespace tarnel {

/// `StationDialog`: the station editor. OK gives its values to the form; it stays open while the
/// form finds the frequency wrong.
class StationDialog : public QDialog {
    Q_OBJECT

  public:
    StationDialog(StationDesk& stationDesk, BoxDesk& boxDesk, Slot slot, QWidget* parent);

    void accept() override;

  private:
    void makeTexts(QFormLayout& rows);
    void makeSwitches(QFormLayout& rows);
    void makePlaces(QFormLayout& rows);
    void makeButtons(QFormLayout& rows);
    [[nodiscard]] StationEdit entered() const;
    [[nodiscard]] QString text(Text id) const;

    StationDesk& desk;
    BoxDesk& boxes;
    StationEdit edit;
    QLineEdit* name = nullptr;
    QLineEdit* frequency = nullptr;
    QCheckBox* stationOn = nullptr;
    QCheckBox* dmeOn = nullptr; ///< none for an NDB
    std::array<QRadioButton*, labelPlaces.size()> places{};
};

} // namespace tarnel
