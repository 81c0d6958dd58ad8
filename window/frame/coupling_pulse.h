#pragma once

#include <QObject>
#include <QTimer>

#include <functional>

namespace tarnel {

/// `CouplingPulse`: runs the coupling a thousand times a second while something may change, and
/// rests while nothing comes. Any event of the program wakes it: the hand's, a timer's, a
/// message's.
class CouplingPulse : public QObject {
    Q_OBJECT

  public:
    /// Ticks without an event until it rests. A change needs two or three to get everywhere.
    static constexpr int ticksToRest = 6;

    /// `tick` must leave nothing to the next one that no event and no timer brings about.
    explicit CouplingPulse(std::function<void()> tick);

    void start();
    [[nodiscard]] bool rests() const { return !timer.isActive(); }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void beat();

    std::function<void()> tick;
    QTimer timer;
    int quietTicks = 0;
};

} // namespace tarnel
