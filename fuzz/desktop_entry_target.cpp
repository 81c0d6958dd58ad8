#include "fuzz_target.h"
#include "readers/desktop_entry.h"
#include "readers/key_file.h"
#include "written_file.h"

#include <algorithm>

using namespace tarnel;

/// Reads a desktop entry, and the list of default programs that has the same form.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const WrittenFile file("entry.desktop");
    static const DesktopFolders folders(
        [](const char* name) { return std::string(std::string(name) == "PATH" ? "/bin" : ""); });
    const std::string path = file.with(asText(data, size));
    (void)readKeyGroup(path, "Default Applications");
    const auto entry = readDesktopEntry(path, folders);
    if (!entry)
        return 0;
    require(entry->program.starts_with('/'));
    const auto holds = [&](const char* sign) {
        return std::ranges::any_of(entry->words, [&](const std::string& word) {
            return word.find(sign) != std::string::npos;
        });
    };
    require(holds("%f") || holds("%u"));
    return 0;
}
