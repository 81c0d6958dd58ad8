#include "tools/output/output_file.h"

#include "core/run_time_error.h"
#include "persistence/save_file.h"
#include "platform/path_text.h"
#include "strings/cause_text.h"
#include "strings/string_table.h"

#include <cerrno>
#include <cstring>
#include <filesystem>

namespace tarnel {

namespace {

namespace fs = std::filesystem;

} // namespace

bool isStream(const std::string& path) {
    if (path == standardOutput)
        return true;
    std::error_code failure;
    const fs::file_type type = fs::status(pathOf(path), failure).type();
    return type == fs::file_type::fifo || type == fs::file_type::character;
}

bool isSameFile(const std::string& one, const std::string& other) {
    std::error_code failure;
    const fs::path first = pathOf(one), second = pathOf(other);
    return fs::equivalent(first, second, failure) ||
           fs::weakly_canonical(fs::absolute(first, failure), failure) ==
               fs::weakly_canonical(fs::absolute(second, failure), failure);
}

OutputFile::OutputFile(const std::string& path)
    : name(path == standardOutput ? "standard output" : path) {
    if (!isStream(path))
        return;
    if (path == standardOutput) {
        stream = standardOutputFile();
        return;
    }
    opened = openToWrite(pathOf(path));
    stream = opened.get();
    if (stream < 0)
        throw OutputError(name, std::strerror(errno));
}

void OutputFile::writeNow(std::string_view part) {
    while (!part.empty()) {
        const std::ptrdiff_t count = writeFile(stream, part.data(), part.size());
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
