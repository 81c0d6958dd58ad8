#pragma once

#include "engine/user_control_2.h"
#include "strings/text.h"

#include <optional>

namespace tarnel {

/// `ReferenceGuard`: says when a practice flight has to rest: where its reference ends, and when it
/// is lost, 3 NM off. Each is said once a flight, so that it can be flown on.
class ReferenceGuard {
  public:
    explicit ReferenceGuard(const UserControl2& simulation) : sim(simulation) {}

    /// To be asked in each tick of a practice flight in the air; what has come about since.
    [[nodiscard]] std::optional<Text> look();

  private:
    const UserControl2& sim;
    bool lost = false;  ///< was told
    bool ended = false; ///< was told
};

} // namespace tarnel
