#pragma once

// Courses read from their bytes, without a line of the trainer's own code.

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace independent {

struct Place {
    double latitude = 0;
    double longitude = 0;
};

/// A recorded moment; the numbers stand for the lines of a sample, from 1.
struct Moment {
    std::array<double, 41> line{};

    [[nodiscard]] Place aircraft() const { return {line[1], line[2]}; }
    [[nodiscard]] double heading() const { return line[3]; }
    [[nodiscard]] double tas() const { return line[6]; }
    [[nodiscard]] double turnRate() const { return line[7]; }
    /// Of the five stations: VOR 1 and 2, NDB 1 and 2, localizer.
    [[nodiscard]] Place station(std::size_t slot) const {
        return {line[12 + 2 * slot], line[11 + 2 * slot]};
    }
    [[nodiscard]] double windFrom() const { return line[22]; }
    [[nodiscard]] double windSpeed() const { return line[23]; }
    [[nodiscard]] double demanded() const { return line[36]; } ///< heading of the autopilot
    [[nodiscard]] double course() const { return line[25]; }   ///< of the right instrument
    /// The VOR that the right instrument receives, and the beacon that the ADF does.
    [[nodiscard]] std::size_t vor() const {
        return static_cast<std::size_t>(line[line[29] == 2 ? 33 : 32]);
    }
    [[nodiscard]] std::size_t beacon() const { return static_cast<std::size_t>(line[34]) + 2; }
};

struct Session {
    std::vector<std::string> comments;
    std::array<std::string, 5> names; ///< of the stations
    std::vector<Moment> moments;      ///< 4/3 of a second apart

    /// The station that a text names.
    [[nodiscard]] std::size_t named(const std::string& text) const;
};

/// A question's lines without their tags, by column: "qa" to "ql", "a1" to "a7", and "s" for the
/// session.
struct Question {
    std::vector<std::pair<std::string, std::string>> lines;

    [[nodiscard]] const std::string& operator[](const std::string& column) const;
};

/// Each throws a text if the bytes are not as they have to be.
[[nodiscard]] Session readSessionBytes(const std::string& path);
/// A column counts by its place, but for the prompts that exercises other than "adfpos", "qdm",
/// "qdr" and "wind" begin with.
[[nodiscard]] std::vector<Question> readStudyBytes(const std::string& path,
                                                   const std::string& exercise);
/// A session's lines but for its comments.
[[nodiscard]] std::vector<std::string> flightLines(const std::string& path);

} // namespace independent
