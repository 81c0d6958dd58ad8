#include "window/access/dme_access.h"

#include "window/radios/dme_selector.h"

namespace tarnel {

namespace {

constexpr int wordCount = 3;

class Word : public Part {
  public:
    Word(DmeSelector& owner, DmeMode which) : Part(owner), selector(owner), mode(which) {}

    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::RadioButton; }
    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State own = Part::state();
        own.checkable = true;
        own.checked = selector.chosen() == mode;
        return own;
    }

  protected:
    [[nodiscard]] QString name() const override { return selector.word(mode); }
    [[nodiscard]] QRect area() const override { return selector.wordArea(mode).toAlignedRect(); }
    [[nodiscard]] std::function<void()> press() const override {
        return [&chosen = selector, wanted = mode] { chosen.choose(wanted); };
    }

  private:
    DmeSelector& selector;
    DmeMode mode;
};

} // namespace

DmeAccess::DmeAccess(DmeSelector& shown) : Whole(&shown, QAccessible::Grouping), selector(shown) {}

int DmeAccess::partCount() const {
    return wordCount;
}

Part* DmeAccess::makePart(int index) const {
    return new Word(selector, static_cast<DmeMode>(index));
}

} // namespace tarnel
