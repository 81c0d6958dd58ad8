#include "window/frame/panel_accessibility.h"

#include "window/widgets/knob_widget.h"

#include <QAccessibleWidget>

namespace tarnel {

namespace {

/// What a screen reader is told of a knob.
class KnobAccessible : public QAccessibleWidget {
  public:
    explicit KnobAccessible(KnobWidget* widget)
        : QAccessibleWidget(widget, QAccessible::Dial), knob(*widget) {}

    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Value || kind == QAccessible::Description)
            return knob.valueText();
        return QAccessibleWidget::text(kind);
    }

  private:
    KnobWidget& knob;
};

QAccessibleInterface* makeKnob(const QString& /*className*/, QObject* object) {
    auto* knob = qobject_cast<KnobWidget*>(object);
    return knob ? new KnobAccessible(knob) : nullptr;
}

} // namespace

void installPanelAccessibility() {
    QAccessible::installFactory(makeKnob);
}

} // namespace tarnel
