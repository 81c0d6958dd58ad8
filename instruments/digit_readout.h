#pragma once

#include "core/drawing_surface.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
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
    void showDashes() { fill('-'); }
    void blank() { fill(' '); }
    /// A covered readout looks dark, whatever is shown on it.
    void setCovered(bool cover) { surface.set(covered, cover); }
    [[nodiscard]] bool isCovered() const { return covered; }

    /// What is seen: the pictures, and the text that they show, a digit, "-" or " " for each.
    [[nodiscard]] const std::vector<std::int16_t>& pictures() const {
        return covered ? dark : shown;
    }
    [[nodiscard]] std::string text() const {
        return covered ? std::string(written.size(), ' ') : written;
    }
    [[nodiscard]] bool isDark() const { return text().find_first_not_of(' ') == std::string::npos; }
    [[nodiscard]] bool showsDashes() const {
        return text().find_first_not_of('-') == std::string::npos;
    }

  private:
    void put(std::size_t place, char character);
    void fill(char character);

    DrawingSurface& surface;
    std::span<const std::size_t> characters;
    std::string written; ///< what `shown` shows
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
