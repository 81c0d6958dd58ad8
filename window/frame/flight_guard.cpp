#include "window/frame/flight_guard.h"

#include "shell/form_1.h"

#include <QCoreApplication>

namespace tarnel {

FlightGuard::FlightGuard(Form1& owner, const QString& folder)
    : form(owner), endings([this] {
          form.flightDesk.keeper.putAside();
          QCoreApplication::exit(0);
      }) {
    form.flightDesk.keeper.useShelf(folder.toStdString());
    QObject::connect(&copies, &QTimer::timeout, &copies,
                     [this] { form.flightDesk.keeper.keepCopy(); });
    copies.start(copyMilliseconds);
}

FlightGuard::~FlightGuard() {
    form.flightDesk.keeper.putAside();
}

} // namespace tarnel
