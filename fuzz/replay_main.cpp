#include "fuzz_target.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace {

void replay(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    std::printf("%s\n", path.string().c_str());
    std::fflush(stdout);
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
}

} // namespace

/// Gives a target all files of the folders named, without a fuzzer. A folder that is missing has
/// none; none at all is an error.
int main(int count, char** folders) {
    int replayed = 0;
    for (int i = 1; i < count; ++i) {
        std::error_code missing;
        for (const auto& entry : std::filesystem::directory_iterator(folders[i], missing)) {
            replay(entry.path());
            ++replayed;
        }
    }
    return replayed > 0 ? 0 : 1;
}
