#pragma once

#include <cstdint>

namespace tarnel {

/// `ChangeCount`: numbers the states of something. Each change gives it a number that it never had;
/// an earlier state that is brought back has its number again.
class ChangeCount {
  public:
    [[nodiscard]] std::uint64_t value() const { return now; }
    void note() { now = ++highest; }
    void goBackTo(const ChangeCount& earlier) { now = earlier.now; }

  private:
    std::uint64_t now = 0;
    std::uint64_t highest = 0;
};

} // namespace tarnel
