#pragma once

#include "core/number_text.h"

#include <cmath>
#include <concepts>
#include <cstdint>
#include <functional>
#include <limits>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tarnel {

class PropertyBase;

/// The named properties of one control, in the order of their declaration. Scripts, tests and the
/// saved state find a property here by its name.
class PropertyBag {
  public:
    PropertyBag() = default;
    PropertyBag(const PropertyBag&) = delete;
    PropertyBag& operator=(const PropertyBag&) = delete;

    [[nodiscard]] const std::vector<PropertyBase*>& all() const { return properties; }
    /// The property called `name`, or null.
    [[nodiscard]] PropertyBase* find(std::string_view name) const;

    /// Called with the property's name after each store, before the effect runs.
    std::function<void(std::string_view)> onChange;

  private:
    friend class PropertyBase;
    std::vector<PropertyBase*> properties;
};

/// A property without its type: its name, and its value as text. One without a name is not listed
/// in its bag.
class PropertyBase {
  public:
    PropertyBase(PropertyBag& owner, std::string_view name) : bag(owner), propertyName(name) {
        if (!name.empty())
            bag.properties.push_back(this);
    }
    PropertyBase(const PropertyBase&) = delete;
    PropertyBase& operator=(const PropertyBase&) = delete;
    virtual ~PropertyBase() = default;

    [[nodiscard]] std::string_view name() const { return propertyName; }
    /// The value as text, numbers in their shortest form.
    [[nodiscard]] virtual std::string text() const = 0;
    /// Sets the value from text, with all that a set does. False, and nothing done, if `text` is no
    /// value of the property's type.
    virtual bool setText(std::string_view text) = 0;

  protected:
    void signalChange() const {
        if (bag.onChange)
            bag.onChange(propertyName);
    }

  private:
    PropertyBag& bag;
    std::string_view propertyName;
};

inline PropertyBase* PropertyBag::find(std::string_view name) const {
    for (PropertyBase* property : properties)
        if (property->name() == name)
            return property;
    return nullptr;
}

/// A value that couples controls. It reads like a field; a set stores, signals the change and runs
/// the effect. `name` must outlive the property (a literal).
template <class T>
class Property final : public PropertyBase {
  public:
    using Effect = std::function<void()>;

    Property(PropertyBag& owner, std::string_view name, T initial = {}, Effect onSet = {})
        : PropertyBase(owner, name), value(std::move(initial)), effect(std::move(onSet)) {}

    /// Connects what a set does from now on.
    void onSet(Effect next) { effect = std::move(next); }

    [[nodiscard]] const T& get() const { return value; }
    operator const T&() const { return value; }

    Property& operator=(T next) {
        value = std::move(next);
        signalChange();
        if (effect)
            effect();
        return *this;
    }
    Property& operator=(const Property& other) { return *this = other.value; }

    /// A number of another type is a mistake: round it with `toInt16` or `toInt32` first.
    template <class Other>
    requires(std::integral<T>&& std::floating_point<Other>) Property& operator=(Other) = delete;

    /// Sets the value only if it differs, for writes whose effect is a redraw.
    void setIfChanged(const T& next) {
        if (!(value == next))
            *this = next;
    }

    /// Stores without signal or effect: for what the owner itself publishes.
    void publish(T next) { value = std::move(next); }

    [[nodiscard]] std::string text() const override {
        if constexpr (std::is_same_v<T, std::string>)
            return value;
        else if constexpr (std::floating_point<T>)
            return numberText(static_cast<double>(value));
        else
            return numberText(static_cast<std::int64_t>(value));
    }

    bool setText(std::string_view text) override {
        if constexpr (std::is_same_v<T, std::string>) {
            *this = std::string(text);
            return true;
        } else {
            const auto number = parseNumber(text);
            if (!number)
                return false;
            if constexpr (std::integral<T>) {
                using Limits = std::numeric_limits<T>;
                if (*number < Limits::min() || *number > Limits::max() ||
                    *number != std::trunc(*number))
                    return false;
            }
            *this = static_cast<T>(*number);
            return true;
        }
    }

  private:
    T value;
    Effect effect;
};

} // namespace tarnel
