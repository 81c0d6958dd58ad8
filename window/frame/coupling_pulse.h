#pragma once

#include <QObject>
#include <QTimer>

#include <functional>

namespace tarnel {

/// `CouplingPulse`: runs the coupling a millisecond after something has happened, and rests while
/// nothing comes. Any event of the program wakes it: the hand's, a timer's, a message's.
class CouplingPulse : public QObject {
    Q_OBJECT

  public:
    /// Ticks of the coupling that a beat runs: one more than any change needs to get everywhere.
    static constexpr int ticks = 4;

    /// `beat` must leave nothing to the next one that no event and no timer brings about.
    explicit CouplingPulse(std::function<void()> beat);

    void start();
    [[nodiscard]] bool rests() const { return !timer.isActive(); }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QTimer timer;
};

} // namespace tarnel
