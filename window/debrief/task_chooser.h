#pragma once

#include "window/debrief/debrief_model.h"
#include "window/widgets/form_binding.h"

#include <QWidget>

class QComboBox;
class QDoubleSpinBox;
class QLabel;
class QSpinBox;

namespace tarnel {

/// `TaskChooser`: where the student says what a flight was meant to be.
class TaskChooser : public QWidget {
    Q_OBJECT

  public:
    TaskChooser(const DebriefModel& debriefModel, FormBinding& binding, QWidget* parent = nullptr);

    /// Shows the choice of the desk.
    void refresh();

  private:
    /// A caption and the field that it stands before.
    struct Field {
        QLabel* caption = nullptr;
        QWidget* field = nullptr;
        void setVisible(bool visible) const;
    };
    void makeFields();
    Field addField(Text caption, QWidget* field, const char* name);
    QComboBox* list(std::initializer_list<Text> entries);
    void ask();

    DebriefModel model;
    class WrapLayout* fields = nullptr;
    QComboBox* kind = nullptr;
    QComboBox* station = nullptr;
    QSpinBox* course = nullptr;
    QComboBox* join = nullptr;
    QComboBox* side = nullptr;
    QDoubleSpinBox* minutes = nullptr;
    QDoubleSpinBox* distance = nullptr;
    QComboBox* sense = nullptr;
    QComboBox* way = nullptr;
    Field stationField, courseField, joinField, sideField, minutesField, distanceField, senseField,
        wayField;
    std::uint64_t shown = ~std::uint64_t{0};
};

} // namespace tarnel
