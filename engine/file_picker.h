#pragma once

#include "engine/chance.h"
#include "engine/file_requests.h"
#include "engine/simulation_messages.h"
#include "engine/simulation_properties.h"

#include <cstdint>
#include <optional>
#include <string>

namespace tarnel {

/// Says which file a request means, and how it is written: asked for, by name, or put aside.
class FilePicker {
  public:
    struct Given {
        SimulationMessages& messages; ///< asks the user
        const FileProperties& files;
        Chance& chance; ///< draws the keys of enciphered files
    };
    explicit FilePicker(const Given& what) : given(what) {}

    /// The path that a request means: asked for, the temporary one, or `present`. A save asks too
    /// if the user never named `present` himself. Nothing if he changes his mind.
    [[nodiscard]] std::optional<std::string> pathFor(FileRequest request, std::int16_t how,
                                                     const std::string& present,
                                                     const std::string& namedByUser) const;
    /// Where a flight is put aside for an exercise.
    [[nodiscard]] std::string temporaryPath() const;
    /// What a save may overwrite unasked when the user has named `path`; empty if nothing.
    [[nodiscard]] std::string overwritable(const std::string& path) const;
    /// A key from 1 to 99 if files are to be enciphered.
    [[nodiscard]] std::optional<int> keyToSave() const;

  private:
    Given given;
};

} // namespace tarnel
