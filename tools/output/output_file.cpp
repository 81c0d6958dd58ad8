#include "tools/output/output_file.h"

#include "core/run_time_error.h"
#include "persistence/save_file.h"
#include "strings/cause_text.h"
#include "strings/string_table.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <unistd.h>

namespace tarnel {

namespace {

namespace fs = std::filesystem;

} // namespace

bool isStream(const std::string& path) {
    if (path == standardOutput)
        return true;
    std::error_code failure;
    const fs::file_type type = fs::status(path, failure).type();
    return type == fs::file_type::fifo || type == fs::file_type::character;
}

bool isSameFile(const std::string& one, const std::string& other) {
    std::error_code failure;
    return fs::equivalent(one, other, failure) ||
           fs::weakly_canonical(fs::absolute(one, failure), failure) ==
               fs::weakly_canonical(fs::absolute(other, failure), failure);
}

OutputFile::OutputFile(const std::string& path)
    : name(path == standardOutput ? "standard output" : path) {
    if (!isStream(path))
        return;
    stream = path == standardOutput ? STDOUT_FILENO
                                    : ::open(path.c_str(), O_WRONLY | O_NOCTTY | O_CLOEXEC);
    if (stream < 0)
        throw OutputError(name, std::strerror(errno));
}

OutputFile::~OutputFile() {
    if (stream > STDOUT_FILENO)
        ::close(stream);
}

void OutputFile::writeNow(std::string_view part) {
    while (!part.empty()) {
        const ssize_t count = ::write(stream, part.data(), part.size());
        if (count < 0 && errno != EINTR)
            throw OutputError(name, std::strerror(errno));
        if (count > 0)
            part.remove_prefix(static_cast<std::size_t>(count));
    }
}

/// Parts come in thousands and are small.
void OutputFile::write(std::string_view part) {
    constexpr std::size_t enough = 1 << 16;
    kept += part;
    if (stream >= 0 && kept.size() >= enough) {
        writeNow(kept);
        kept.clear();
    }
}

void OutputFile::close() {
    if (stream >= 0) {
        writeNow(kept);
        return;
    }
    try {
        saveFileBytes(name, kept);
    } catch (const RunTimeError& error) {
        throw OutputError(name, causeText(englishTable(), error.cause()));
    }
}

} // namespace tarnel
