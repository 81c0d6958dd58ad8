#pragma once

#include <QAccessibleWidget>
#include <QPointer>

#include <functional>
#include <vector>

namespace tarnel {

/// `Part`: something on a widget that a hand presses, chooses or turns and that is no widget of its
/// own: a tab, an entry of a list, a knob on a dial.
class Part : public QAccessibleInterface, public QAccessibleActionInterface {
  public:
    explicit Part(QWidget& owner) : whole(&owner) {}

    [[nodiscard]] bool isValid() const override { return !whole.isNull(); }
    [[nodiscard]] QObject* object() const override { return nullptr; }
    [[nodiscard]] QWindow* window() const override;
    [[nodiscard]] QAccessibleInterface* parent() const override;
    [[nodiscard]] QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* child(int) const override { return nullptr; }
    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    [[nodiscard]] QRect rect() const override;
    [[nodiscard]] QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text, const QString&) override {}
    [[nodiscard]] QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;
    [[nodiscard]] QStringList actionNames() const override;
    void doAction(const QString& action) override;
    [[nodiscard]] QStringList keyBindingsForAction(const QString&) const override { return {}; }

  protected:
    [[nodiscard]] virtual QString name() const = 0;
    [[nodiscard]] virtual QString description() const { return {}; }
    /// Its place on the widget.
    [[nodiscard]] virtual QRect area() const = 0;
    /// What a press does. It may outlive the part, not the widget. Empty if nothing.
    [[nodiscard]] virtual std::function<void()> press() const { return {}; }

    QPointer<QWidget> whole;
};

/// `Whole`: a widget with parts, which come before its child widgets.
class Whole : public QAccessibleWidget {
  public:
    using QAccessibleWidget::QAccessibleWidget;
    Whole(const Whole&) = delete;
    Whole& operator=(const Whole&) = delete;
    Whole(Whole&&) = delete;
    Whole& operator=(Whole&&) = delete;

    [[nodiscard]] int childCount() const override;
    [[nodiscard]] QAccessibleInterface* child(int index) const override;
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override;
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override;

  protected:
    ~Whole() override;

    [[nodiscard]] virtual int partCount() const = 0;
    /// Made once for each index, and kept as long as the widget.
    [[nodiscard]] virtual Part* makePart(int index) const = 0;

  private:
    mutable std::vector<QAccessible::Id> parts;
};

} // namespace tarnel
