#include "window/frame/flight_signs.h"

#include "shell/form_1.h"
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

FlightSigns::FlightSigns(Form1& owner, QMainWindow& place)
    : QObject(&place), form(owner), window(place) {
    makeOffer();
}

void FlightSigns::makeOffer() {
    offer = new QFrame(window.menuBar());
    offer->setObjectName(QStringLiteral("FlightOffer"));
    offerLine = new QLabel(offer);
    offerLine->setTextFormat(Qt::PlainText);
    QToolButton* take =
        button(*offer, "FlightOfferTake", textOf(form.texts, Text::flightOfferTake));
    QToolButton* close = button(*offer, "FlightOfferClose", QStringLiteral("\u00d7"));
    close->setToolTip(textOf(form.texts, Text::flightOfferClose));
    close->setAccessibleName(close->toolTip());
    auto* row = new QHBoxLayout(offer);
    row->setContentsMargins(0, 0, 0, 0);
    for (QWidget* part : std::initializer_list<QWidget*>{offerLine, take, close})
        row->addWidget(part);
    connect(take, &QToolButton::clicked, this, [this] {
        form.guarded([this] {
            if (const auto flight = form.flightDesk.keeper.offer())
                form.flightDesk.bringBack(*flight);
        });
    });
    connect(close, &QToolButton::clicked, this, [this] { form.flightDesk.keeper.closeOffer(); });
    offer->hide();
}

/// An exercise's session is named by what is asked: the title then tells nothing. A flight or an
/// exercise takes the offer away.
void FlightSigns::refresh() {
    const UserControl2& sim = form.UserControl11;
    const Named now{sim.c_SessionFileName, sim.flightUnsaved(), form.exercise.runs()};
    if (now != named) {
        named = now;
        window.setWindowTitle(now.inExercise ? textOf(form.texts, Text::windowTitle)
                                             : QString::fromStdString(form.flightDesk.title()));
    }
    FlightKeeper& keeper = form.flightDesk.keeper;
    if (keeper.offer() && (form.flight.flies() || form.exercise.runs()))
        keeper.withdrawOffer();
    if ((keeper.offer() ? keeper.offer()->path : std::string()) != shownOffer)
        showOffer();
}

/// A corner of the menu bar takes room only while it has a widget.
void FlightSigns::showOffer() {
    const auto& flight = form.flightDesk.keeper.offer();
    shownOffer = flight ? flight->path : std::string();
    if (flight) {
        const QString line = textOf(form.texts, Text::flightOffer)
                                 .arg(QString::fromStdString(form.flightDesk.lineOf(*flight)));
        offerLine->setToolTip(line);
        offerLine->setText(offerLine->fontMetrics().elidedText(line, Qt::ElideRight, widestOffer));
    }
    window.menuBar()->setCornerWidget(flight ? offer : nullptr);
    offer->setVisible(flight.has_value());
}

void FlightSigns::fillMenu(Form1& form, QMenu& menu) {
    connect(&menu, &QMenu::aboutToShow, &menu, [&form, &menu] {
        menu.clear();
        for (const ShelvedFlight& flight : form.flightDesk.keeper.flights())
            connect(menu.addAction(QString::fromStdString(form.flightDesk.lineOf(flight))
                                       .replace(QLatin1Char('&'), QStringLiteral("&&"))),
                    &QAction::triggered, &menu,
                    [&form, flight] { form.guarded([&] { form.flightDesk.bringBack(flight); }); });
        if (menu.isEmpty())
            menu.addAction(textOf(form.texts, Text::noFlightAside))->setEnabled(false);
    });
}

} // namespace tarnel
