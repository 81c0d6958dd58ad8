#pragma once

#include "instruments/dme_control_face.h"
#include "strings/string_table.h"
#include "window/widgets/knob_widget.h"
#include "window/widgets/model_guard.h"
#include "window/widgets/mouse_hold.h"

#include <QWidget>

#include <array>

namespace tarnel {

/// `DmeSelector`: the rotary switch of a DME with its three words, each of which can be clicked
/// too.
class DmeSelector : public QWidget {
    Q_OBJECT

  public:
    DmeSelector(DMEControlFace& dme, PictureStore& pictures, const StringTable& texts,
                QWidget* parent = nullptr);

    /// Rests while the DME is switched off.
    void refresh();
    void setScale(double scale);
    /// The width that suits a height.
    [[nodiscard]] double widthFor(double height) const;
    /// The middle of a word's area.
    [[nodiscard]] QPointF wordCentre(DmeMode mode) const;
    [[nodiscard]] KnobWidget& knob() { return switchKnob; }
    [[nodiscard]] QRectF wordArea(DmeMode mode) const;
    [[nodiscard]] const QString& word(DmeMode mode) const {
        return words[static_cast<std::size_t>(mode)];
    }
    [[nodiscard]] DmeMode chosen() const { return face.mode(); }
    /// Does what a click on a word does.
    void choose(DmeMode mode);

    ModelGuard guard = unguarded();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    [[nodiscard]] double rowHeight() const;
    [[nodiscard]] double knobSide() const;
    [[nodiscard]] Point twipsIn(DmeMode word, QPointF at) const;
    void connectKnob();
    void turnTo(int position);
    void change(const std::function<void()>& action);

    DMEControlFace& face;
    std::array<QString, 3> words;
    KnobWidget switchKnob;
    MouseHold hold{*this, [this] { face.selectorLost(); }};
    DmeMode shown = DmeMode::freq;
    DmeMode pressedWord = DmeMode::freq;
    Point knobPress;
    int positionAtPress = 0;
    bool knobTurned = false;
    double scale = 1;
};

} // namespace tarnel
