#include "window/debrief/task_chooser.h"

#include "look/look.h"
#include "window/widgets/mnemonics.h"
#include "window/widgets/text_of.h"
#include "window/widgets/wrap_layout.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QVBoxLayout>

namespace tarnel {

namespace {

constexpr int fieldGap = 6;
constexpr double longestLeg = 4;   ///< minutes
constexpr double farthestArc = 60; ///< NM

} // namespace

TaskChooser::TaskChooser(const DebriefModel& debriefModel, FormBinding& binding, QWidget* parent)
    : QWidget(parent), model(debriefModel) {
    auto* parts = new QVBoxLayout(this);
    parts->setContentsMargins(0, 0, 0, 0);
    auto* question = new QLabel(textOf(model.boxes.texts, Text::debriefTaskQuestion), this);
    parts->addWidget(question);
    fields = new WrapLayout(WrapLayout::Manner::flowing, look::gap, fieldGap);
    parts->addLayout(fields);
    makeFields();
    parts->addStretch(1);
    auto* judge = new QPushButton(this);
    judge->setProperty("primary", true);
    binding.bind(model.controls.judge, *judge);
    parts->addWidget(judge, 0, Qt::AlignLeft);
}

void TaskChooser::Field::setVisible(bool visible) const {
    field->parentWidget()->setVisible(visible);
}

QComboBox* TaskChooser::list(std::initializer_list<Text> entries) {
    auto* box = new QComboBox(this);
    box->setProperty("quiz", true);
    for (const Text entry : entries)
        box->addItem(textOf(model.boxes.texts, entry));
    connect(box, &QComboBox::activated, this, &TaskChooser::ask);
    return box;
}

TaskChooser::Field TaskChooser::addField(Text caption, QWidget* field, const char* name) {
    auto* pair = new QWidget(this);
    auto* row = new QHBoxLayout(pair);
    row->setContentsMargins(0, 0, 0, 0);
    auto* label = new QLabel(textOf(model.boxes.texts, caption), pair);
    label->setProperty("secondary", true);
    row->addWidget(label);
    row->addWidget(field);
    field->setObjectName(QString::fromLatin1(name));
    field->setAccessibleName(textOf(model.boxes.texts, caption));
    label->setBuddy(field);
    fields->addWidget(pair);
    return {label, field};
}

void TaskChooser::makeFields() {
    kind = list({});
    for (const TaskKind each : {TaskKind::trackTo, TaskKind::trackFrom, TaskKind::holding,
                                TaskKind::arc, TaskKind::reference})
        kind->addItem(textOf(model.boxes.texts, nameOf(each)));
    station = list({});
    for (std::size_t slot = 0; slot < slotCount; ++slot)
        station->addItem(QString());
    course = new QSpinBox(this);
    course->setRange(1, 360);
    course->setWrapping(true);
    course->setSuffix(textOf(model.boxes.texts, Text::unitDegreeSign));
    join = list({Text::taskOnly, Text::taskJoin});
    side = list({Text::taskLeft, Text::taskRight});
    minutes = new QDoubleSpinBox(this);
    minutes->setRange(0.5, longestLeg);
    minutes->setSingleStep(0.5);
    minutes->setDecimals(1);
    minutes->setSuffix(QLatin1Char(' ') + textOf(model.boxes.texts, Text::unitMinutes));
    distance = new QDoubleSpinBox(this);
    distance->setRange(1, farthestArc);
    distance->setDecimals(1);
    distance->setSuffix(QLatin1Char(' ') + textOf(model.boxes.texts, Text::unitNauticalMiles));
    sense = list({Text::taskAnticlockwise, Text::taskClockwise});
    way = list({Text::taskFromStation, Text::taskToStation});
    connect(course, &QSpinBox::valueChanged, this, &TaskChooser::ask);
    connect(minutes, &QDoubleSpinBox::valueChanged, this, &TaskChooser::ask);
    connect(distance, &QDoubleSpinBox::valueChanged, this, &TaskChooser::ask);
    addField(Text::taskKind, kind, "TaskKind");
    stationField = addField(Text::taskStation, station, "TaskStation");
    distanceField = addField(Text::taskDistance, distance, "TaskDistance");
    senseField = addField(Text::taskSense, sense, "TaskSense");
    courseField = addField(Text::taskCourse, course, "TaskCourse");
    joinField = addField(Text::taskJudged, join, "TaskJoin");
    sideField = addField(Text::taskSide, side, "TaskSide");
    minutesField = addField(Text::taskLegMinutes, minutes, "TaskMinutes");
    wayField = addField(Text::taskFinalWay, way, "TaskWay");
}

void TaskChooser::ask() {
    TaskChoice choice = model.desk.choice();
    choice.kind = static_cast<TaskKind>(kind->currentIndex());
    choice.station = static_cast<Slot>(station->currentIndex());
    choice.course = course->value();
    choice.joins = join->currentIndex() == 1;
    choice.side = static_cast<HoldingSide>(side->currentIndex());
    choice.minutes = minutes->value();
    choice.distance = distance->value();
    choice.clockwise = sense->currentIndex() == 1;
    choice.finalToStation = way->currentIndex() == 1;
    model.boxes.guarded([&] { model.desk.choose(choice); });
}

void TaskChooser::refresh() {
    if (shown == model.desk.revision())
        return;
    shown = model.desk.revision();
    const TaskChoice& choice = model.desk.choice();
    const QSignalBlocker quiet[] = {QSignalBlocker(course), QSignalBlocker(minutes),
                                    QSignalBlocker(distance)};
    kind->setCurrentIndex(static_cast<int>(choice.kind));
    for (std::size_t slot = 0; slot < slotCount; ++slot)
        station->setItemText(static_cast<int>(slot),
                             QString::fromStdString(model.sim.slot(static_cast<Slot>(slot)).name));
    station->setCurrentIndex(static_cast<int>(choice.station));
    course->setValue(choice.course);
    join->setCurrentIndex(choice.joins ? 1 : 0);
    side->setCurrentIndex(static_cast<int>(choice.side));
    minutes->setValue(choice.minutes);
    distance->setValue(choice.distance);
    sense->setCurrentIndex(choice.clockwise ? 1 : 0);
    way->setCurrentIndex(choice.finalToStation ? 1 : 0);
    const bool track = choice.kind == TaskKind::trackTo || choice.kind == TaskKind::trackFrom;
    const bool holding = choice.kind == TaskKind::holding;
    const bool arc = choice.kind == TaskKind::arc;
    const Text courseName = arc ? Text::taskFinal : holding ? Text::taskInbound : Text::taskCourse;
    courseField.caption->setText(
        withMnemonicOf(*courseField.caption, textOf(model.boxes.texts, courseName)));
    course->setAccessibleName(courseField.caption->text());
    stationField.setVisible(choice.kind != TaskKind::reference);
    courseField.setVisible(choice.kind != TaskKind::reference);
    joinField.setVisible(track);
    sideField.setVisible(holding);
    minutesField.setVisible(holding);
    distanceField.setVisible(arc);
    senseField.setVisible(arc);
    wayField.setVisible(arc);
}

} // namespace tarnel
