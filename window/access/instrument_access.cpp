#include "window/access/instrument_access.h"

#include "window/access/turned_value.h"
#include "window/dials/instrument_view.h"

namespace tarnel {

namespace {

/// A knob on a dial, or the key that chooses its receiver. Which one it is follows the kind of the
/// dial: it is the one at that place among those that are there.
class DialKnob : public Part {
  public:
    DialKnob(InstrumentView& dial, int place)
        : Part(dial),
          view(dial),
          index(static_cast<std::size_t>(place)),
          value(
              dial, [this] { return view.knobTravel(knob()); },
              [this](int steps) { view.turnKnob(knob(), steps); }) {}

    [[nodiscard]] QAccessible::Role role() const override {
        return isKey() ? QAccessible::Button : QAccessible::Dial;
    }
    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ValueInterface && !isKey())
            return static_cast<QAccessibleValueInterface*>(&value);
        return Part::interface_cast(type);
    }
    [[nodiscard]] QStringList actionNames() const override {
        return isKey() ? Part::actionNames() : TurnedValue::actionNames() + Part::actionNames();
    }
    void doAction(const QString& action) override {
        if (isKey() || !value.turn(action))
            Part::doAction(action);
    }

  protected:
    [[nodiscard]] QString name() const override { return view.knobName(knob()); }
    [[nodiscard]] QRect area() const override { return view.knobPlace(knob()); }
    [[nodiscard]] std::function<void()> press() const override {
        if (knob() == InstrumentArea::obsKnob)
            return {};
        return [&clicked = view, which = knob()] { clicked.clickKnob(which); };
    }

  private:
    [[nodiscard]] InstrumentArea knob() const {
        const auto all = view.knobs();
        return index < all.size() ? all[index] : InstrumentArea::none;
    }
    [[nodiscard]] bool isKey() const { return knob() == InstrumentArea::selector; }

    InstrumentView& view;
    std::size_t index;
    TurnedValue value;
};

} // namespace

InstrumentAccess::InstrumentAccess(InstrumentView& instrument)
    : Whole(&instrument, QAccessible::Graphic), view(instrument) {}

/// Read when it is asked for: in flight it is never the same for long.
QString InstrumentAccess::text(QAccessible::Text kind) const {
    return kind == QAccessible::Description ? view.spoken() : Whole::text(kind);
}

int InstrumentAccess::partCount() const {
    return static_cast<int>(view.knobs().size());
}

Part* InstrumentAccess::makePart(int index) const {
    return new DialKnob(view, index);
}

} // namespace tarnel
