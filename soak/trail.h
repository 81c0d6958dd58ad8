#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace tarnel {

/// What must not be was found.
struct Fault : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// `Trail`: what the hands have done, so that a fault can be told with what led to it.
class Trail {
  public:
    void note(const std::string& deed);
    [[nodiscard]] int deeds() const { return count; }
    /// A number made from all deeds: two runs that did the same have the same.
    [[nodiscard]] std::uint32_t digest() const { return hash; }
    /// The last deeds, the newest last, on the error output.
    void print() const;

  private:
    std::deque<std::string> last;
    std::uint32_t hash = 2166136261U; // FNV-1a
    int count = 0;
};

/// `Reach`: what there was to be used by the hands, and how often each was.
class Reach {
  public:
    void saw(const std::string& name) { uses.try_emplace(name, 0); }
    void used(const std::string& name) { ++uses[name]; }
    [[nodiscard]] int usesOf(const std::string& name) const;
    [[nodiscard]] std::size_t all() const { return uses.size(); }
    [[nodiscard]] std::vector<std::string> never() const;

  private:
    std::map<std::string, int> uses;
};

} // namespace tarnel
