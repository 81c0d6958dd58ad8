#include "exercises/settings_text.h"
#include "fuzz_target.h"

using namespace tarnel;

/// What was read of a settings file, however it was edited by hand, is kept as it was.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const SettingsTable table = readSettings(asText(data, size));
    require(readSettings(writeSettings(table)) == table);
    return 0;
}
