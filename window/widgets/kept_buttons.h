#pragma once

#include "window/widgets/choice_button.h"
#include "window/widgets/kept_painting.h"

#include <QEvent>
#include <QFont>
#include <QStyle>
#include <QToolButton>

namespace tarnel {

/// What a button looks like depends on this, its size, and the application's style.
struct ButtonLook {
    QStyle::State state;
    QString text;
    QFont font;
    qint64 icon = 0;    ///< `cacheKey`
    qint64 palette = 0; ///< `cacheKey`
    bool operator==(const ButtonLook&) const = default;
};

/// A button over something that is painted many times a second: what it looks like is kept.
template <class Button>
class KeptButton : public Button {
  public:
    using Button::Button;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override {
        if (event->type() == QEvent::StyleChange)
            kept.forget();
        Button::changeEvent(event);
    }

  private:
    KeptPainting<ButtonLook> kept;
};

template <>
void KeptButton<ChoiceButton>::paintEvent(QPaintEvent* event);
template <>
void KeptButton<QToolButton>::paintEvent(QPaintEvent* event);

} // namespace tarnel
