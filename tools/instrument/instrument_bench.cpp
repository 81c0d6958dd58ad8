#include "tools/instrument/instrument_bench.h"

#include "core/run_time_error.h"
#include "look/panel_look.h"
#include "strings/cause_text.h"
#include "strings/string_table.h"
#include "tools/instrument/input_range.h"
#include "tools/instrument/property_editor.h"
#include "window/dials/instrument_view.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

namespace tarnel {

namespace {

constexpr int refreshMilliseconds = 40;
constexpr QSize firstSize{900, 700};

/// A column that scrolls up and down only.
QScrollArea* scrolled(QWidget* column) {
    auto* scroller = new QScrollArea;
    scroller->setWidget(column);
    scroller->setWidgetResizable(true);
    scroller->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroller->setMinimumWidth(column->minimumSizeHint().width() +
                              scroller->verticalScrollBar()->sizeHint().width() +
                              2 * scroller->frameWidth());
    return scroller;
}

} // namespace

InstrumentBench::InstrumentBench(const StringTable& texts, const std::string& folder,
                                 InstrumentKind kind, bool large)
    : pictures(QString::fromStdString(folder)) {
    setWindowTitle(tr("Instrument"));
    instrument.showMessage = [this](const std::string& text) {
        error->setText(QString::fromStdString(text));
    };
    instrument.c_MainAppPath = folder;
    instrument.c_Large = large ? 1 : 0;
    instrument.Display = static_cast<std::int16_t>(kind);

    view = new InstrumentView(instrument, pictures, texts);
    view->guard = [this](const std::function<void()>& action) { change(action); };
    reading = new QLabel;
    error = new QLabel;
    auto* outputs = new QFormLayout;
    auto* inputs = new QWidget;
    makeEditors(*outputs, *new QFormLayout(inputs));
    auto* left = new QVBoxLayout;
    left->addWidget(view);
    left->addWidget(reading);
    left->addLayout(outputs);
    left->addWidget(error);
    left->addStretch();
    auto* columns = new QHBoxLayout(this);
    columns->addLayout(left);
    columns->addWidget(scrolled(inputs), 1);
    resize(sizeHint().expandedTo(firstSize));

    connect(&timer, &QTimer::timeout, this, &InstrumentBench::refresh);
    timer.start(refreshMilliseconds);
    refresh();
}

void InstrumentBench::makeEditors(QFormLayout& outputs, QFormLayout& inputs) {
    for (PropertyBase* property : instrument.properties.all()) {
        auto* editor = new PropertyEditor(*property);
        editor->change = [this](const std::function<void()>& action) { change(action); };
        QFormLayout& form = isKnobFlag(property->name()) ? outputs : inputs;
        form.addRow(QString::fromStdString(std::string(property->name())), editor);
        editors.push_back(editor);
    }
}

/// The instrument redraws by itself on some inputs only; on the bench it does on each.
void InstrumentBench::change(const std::function<void()>& action) {
    error->clear();
    try {
        action();
        instrument.UpdateInstrument();
    } catch (const RunTimeError& failure) {
        error->setText(
            QString::fromStdString(std::string(causeText(englishTable(), failure.cause()))));
    }
}

void InstrumentBench::fitInstrument() {
    const int side = static_cast<int>(instrument.picture.size / look::twipsPerPixel);
    if (view->width() == side && view->height() == side)
        return;
    view->setFixedSize(side, side);
    pictures.sizesChanged();
}

void InstrumentBench::showReading() {
    const InstrumentReading now = instrument.reading();
    const std::string flag(flagText(now.flag));
    reading->setText(tr("deviation %1, flag %2")
                         .arg(now.deviation)
                         .arg(flag.empty() ? tr("none") : QString::fromStdString(flag)));
}

void InstrumentBench::refresh() {
    fitInstrument();
    for (PropertyEditor* editor : editors)
        editor->refresh();
    showReading();
    view->refresh();
}

} // namespace tarnel
