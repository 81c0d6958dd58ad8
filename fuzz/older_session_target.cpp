#include "persistence/older_session_file.h"
#include "session_checks.h"

using namespace tarnel;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    requireThatItCanBeSaved(readOlderSession(asText(data, size)));
    return 0;
}
