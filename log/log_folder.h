#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <string>

namespace tarnel {

/// `LogFolder`: where a log lies: the file of its tables, and the sessions of its flights below
/// names that it gives. What goes wrong is thrown as a `LogFailure`.
class LogFolder {
  public:
    explicit LogFolder(std::string path) : folder(std::move(path)) {}

    [[nodiscard]] std::string database() const { return folder + "/log.sqlite"; }
    /// Makes the folders.
    void prepare() const;

    /// Stores a session of that moment, in milliseconds since 1970 UTC. Its name.
    [[nodiscard]] std::string store(const std::string& session, std::int64_t when) const;
    [[nodiscard]] std::optional<std::string> read(const std::string& name) const;
    void remove(const std::string& name) const;
    /// The names of all files that lie among the sessions.
    [[nodiscard]] std::set<std::string> sessions() const;
    void removeAllSessions() const;

    /// Gives the folder, damaged as its log is, another name beside it. That name.
    [[nodiscard]] std::string setAside() const;
    /// Deletes what was set aside.
    void removeSetAside() const;
    /// A lock for who sets the folder aside.
    [[nodiscard]] std::string lockPath() const { return folder + ".lock"; }

  private:
    std::string folder;
};

} // namespace tarnel
