#pragma once

#include "core/drawing_surface.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace tarnel {

/// A row of digit pictures on a face. "0" to "9" are the pictures 1 to 10; decimal points are
/// printed on the face.
class DigitReadout {
  public:
    static constexpr std::int16_t dashPicture = 11;
    static constexpr std::int16_t blankPicture = 12;

    /// `places` says for each picture which character of a text it shows, from 0. All begin blank.
    DigitReadout(DrawingSurface& owner, std::span<const std::size_t> places);

    /// Shows a text. A character that is missing or no digit stays dark.
    void show(std::string_view text);
    /// Shows a number of 0 or more without its decimals, with leading zeros to three digits. Of a
    /// longer one the first digits are seen. Throws the overflow error outside the 32-bit range.
    void showNumber(double value);
    void showDashes() { fill(dashPicture); }
    void blank() { fill(blankPicture); }
    /// A covered readout looks dark, whatever is shown on it.
    void setCovered(bool cover) { surface.set(covered, cover); }
    [[nodiscard]] bool isCovered() const { return covered; }

    /// What is seen.
    [[nodiscard]] const std::vector<std::int16_t>& pictures() const {
        return covered ? dark : shown;
    }

  private:
    void fill(std::int16_t picture);

    DrawingSurface& surface;
    std::span<const std::size_t> characters;
    std::vector<std::int16_t> shown;
    std::vector<std::int16_t> dark;
    bool covered = false;
};

namespace readoutPlaces {
constexpr std::size_t frequency[] = {0, 1, 2, 4, 5}; ///< nnn.nn
constexpr std::size_t threeDigits[] = {0, 1, 2};
constexpr std::size_t minutesSeconds[] = {0, 1, 3, 4}; ///< mm.ss
} // namespace readoutPlaces

} // namespace tarnel
