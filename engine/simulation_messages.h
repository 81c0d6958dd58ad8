#pragma once

#include "core/recording.h"
#include "core/run_time_error.h"
#include "persistence/file_problem.h"

#include <optional>
#include <string>

namespace tarnel {

/// What is done with which kind of file.
enum class FileRequest { loadChart, saveChart, loadSession, saveSession, loadOldSession };

/// What the simulation has to tell and to ask the user; the shell does it in boxes and dialogs.
class SimulationMessages {
  public:
    virtual ~SimulationMessages() = default;
    virtual void bufferWarning(BufferWarning warning) = 0;

    /// The path that the user picks, nothing if he changes his mind. `present` is the path now.
    virtual std::optional<std::string> chooseFile(FileRequest request,
                                                  const std::string& present) = 0;
    /// Whether a file came with the program and must not be overwritten unasked.
    [[nodiscard]] virtual bool isShipped(const std::string& path) const = 0;
    /// Brings flight and replay to rest before something is loaded over them: a file that was read
    /// and found good. `picked` if the user picked it himself.
    virtual void stopForLoading(FileRequest request, bool picked) = 0;
    /// A file could not be read or written at all.
    virtual void fileFailed(FileRequest request, const std::string& path,
                            const RunTimeError& error) = 0;
    /// A file has a wrong line. It was `taken` up to there, or nothing was changed.
    virtual void fileWrong(FileRequest request, const std::string& path, const FileProblem& problem,
                           bool taken) = 0;
    /// The user has opened or saved this file.
    virtual void fileUsed(const std::string& /*path*/) {}
};

} // namespace tarnel
