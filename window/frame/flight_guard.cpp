#include "window/frame/flight_guard.h"

#include "shell/flight_keeper.h"

#include <QCoreApplication>

namespace tarnel {

FlightGuard::FlightGuard(FlightKeeper& flightKeeper, const QString& folder)
    : keeper(flightKeeper), endings([this] {
          keeper.putAside();
          QCoreApplication::exit(0);
      }) {
    keeper.useShelf(folder.toStdString());
    QObject::connect(&copies, &QTimer::timeout, &copies, [this] { keeper.keepCopy(); });
    copies.start(copyMilliseconds);
}

FlightGuard::~FlightGuard() {
    keeper.putAside();
}

} // namespace tarnel
