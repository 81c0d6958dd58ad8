#pragma once

#include "core/comments.h"
#include "engine/flight_tape.h"
#include "engine/simulation_properties.h"

#include <cstdint>
#include <string>

namespace tarnel {

/// The author's comments and their marks on the samples, which carry an entry of the table. Shows
/// the present one in `c_CurrentComment`.
class CommentMarking {
  public:
    struct Given {
        const ClockProperties& clocks;
        const ChartProperties& chart; ///< the length of the flight
        ReplayProperties& replay;     ///< the comment shown
        FlightTape& tape;             ///< samples are marked
    };
    explicit CommentMarking(const Given& what) : given(what) {}

    /// Writes `text` into the entry being written and marks from the present sample on. Throws the
    /// subscript error behind entry 100.
    void start(const std::string& text);
    /// Ends the mark, if there is one. At rest it is laid on the samples from where it began to the
    /// present one.
    void stop();
    /// A resumed flight keeps what is being marked, up to the sample where it goes on.
    void layUpTo(std::int16_t sample);
    /// Takes the present sample's comment off all samples that touch it and carry it too.
    void deletePresent();
    void deleteAll();
    /// Takes the marks off all samples; the entries are free again, and keep their texts.
    void unmarkAll();
    /// True if a sample carries a comment or one is being marked.
    [[nodiscard]] bool anyMarks() const;
    /// Moves the entry being written by `step`, never below 0. Throws the subscript error, and
    /// stays, beyond entry 100.
    void step(int step);

    /// Shows the comment of a sample, or none.
    void show(std::int16_t index);
    void hide() { given.replay.c_CurrentComment.setIfChanged({}); }
    /// Forgets texts and marks.
    void forget();

    Comments comments;

  private:
    [[nodiscard]] bool marking() const { return comments.selectedCommentIndex != noComment; }

    Given given;
};

} // namespace tarnel
