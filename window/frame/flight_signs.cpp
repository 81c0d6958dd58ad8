#include "window/frame/flight_signs.h"

#include "shell/exercise_conduct.h"
#include "shell/flight_desk.h"
#include "shell/flight_switch.h"
#include "window/widgets/announce.h"
#include "window/widgets/text_of.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolButton>

namespace tarnel {

namespace {

/// Pixels; the menus need the rest.
constexpr int widestOffer = 430;

QToolButton* button(QWidget& parent, const char* name, const QString& text) {
    auto* made = new QToolButton(&parent);
    made->setObjectName(QString::fromLatin1(name));
    made->setText(text);
    made->setAutoRaise(true);
    made->setFocusPolicy(Qt::TabFocus);
    return made;
}

} // namespace

FlightSigns::FlightSigns(FlightDesk& flightDesk, const FlightSwitch& flightSwitch,
                         const ExerciseConduct& conduct, const UserControl2& simulation,
                         BoxDesk& boxDesk, QMainWindow& place)
    : QObject(&place),
      desk(flightDesk),
      flight(flightSwitch),
      exercise(conduct),
      sim(simulation),
      boxes(boxDesk),
      window(place) {
    makeOffer();
}

void FlightSigns::makeOffer() {
    offer = new QFrame(window.menuBar());
    offer->setObjectName(QStringLiteral("FlightOffer"));
    offerLine = new QLabel(offer);
    offerLine->setTextFormat(Qt::PlainText);
    QToolButton* take =
        button(*offer, "FlightOfferTake", textOf(boxes.texts, Text::flightOfferTake));
    QToolButton* close = button(*offer, "FlightOfferClose", QStringLiteral("\u00d7"));
    close->setToolTip(textOf(boxes.texts, Text::flightOfferClose));
    close->setAccessibleName(close->toolTip());
    auto* row = new QHBoxLayout(offer);
    row->setContentsMargins(0, 0, 0, 0);
    for (QWidget* part : std::initializer_list<QWidget*>{offerLine, take, close})
        row->addWidget(part);
    connect(take, &QToolButton::clicked, this, [this] {
        boxes.guarded([this] {
            if (const auto offered = desk.keeper.offer())
                desk.bringBack(*offered);
        });
    });
    connect(close, &QToolButton::clicked, this, [this] { desk.keeper.closeOffer(); });
    offer->hide();
}

/// An exercise's session is named by what is asked: the title then tells nothing. A flight or an
/// exercise takes the offer away.
void FlightSigns::refresh() {
    const Named now{sim.c_SessionFileName, sim.flightUnsaved(), exercise.runs()};
    if (now != named) {
        named = now;
        window.setWindowTitle(now.inExercise ? textOf(boxes.texts, Text::windowTitle)
                                             : QString::fromStdString(desk.title()));
    }
    FlightKeeper& keeper = desk.keeper;
    if (keeper.offer() && (flight.flies() || exercise.runs()))
        keeper.withdrawOffer();
    if ((keeper.offer() ? keeper.offer()->path : std::string()) != shownOffer)
        showOffer();
}

/// A corner of the menu bar takes room only while it has a widget.
void FlightSigns::showOffer() {
    const auto& offered = desk.keeper.offer();
    shownOffer = offered ? offered->path : std::string();
    if (offered) {
        const QString line = textOf(boxes.texts, Text::flightOffer)
                                 .arg(QString::fromStdString(desk.lineOf(*offered)));
        offerLine->setToolTip(line);
        offerLine->setAccessibleName(line);
        announce(window, line);
        offerLine->setText(offerLine->fontMetrics().elidedText(line, Qt::ElideRight, widestOffer));
    }
    window.menuBar()->setCornerWidget(offered ? offer : nullptr);
    offer->setVisible(offered.has_value());
}

void FlightSigns::fillMenu(FlightDesk& desk, BoxDesk& boxes, QMenu& menu) {
    connect(&menu, &QMenu::aboutToShow, &menu, [&desk, &boxes, &menu] {
        menu.clear();
        for (const ShelvedFlight& shelved : desk.keeper.flights())
            connect(menu.addAction(QString::fromStdString(desk.lineOf(shelved))
                                       .replace(QLatin1Char('&'), QStringLiteral("&&"))),
                    &QAction::triggered, &menu,
                    [&desk, &boxes, shelved] { boxes.guarded([&] { desk.bringBack(shelved); }); });
        if (menu.isEmpty())
            menu.addAction(textOf(boxes.texts, Text::noFlightAside))->setEnabled(false);
    });
}

} // namespace tarnel
