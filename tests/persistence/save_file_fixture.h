#pragma once

#include "core/run_time_error.h"
#include "persistence/file_bytes.h"
#include "persistence/save_file.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <functional>

namespace tarnel {

/// A disk that does something at the n-th call, and writes no more than 1000 bytes at a time.
class TroubledDisk : public DiskCalls {
  public:
    TroubledDisk(int callNumber, std::function<int()> whatHappens)
        : troubleAt(callNumber), trouble(std::move(whatHappens)) {}

    int create(const char* path) override { return meets() ? -1 : DiskCalls::create(path); }
    std::ptrdiff_t write(int file, const char* bytes, std::size_t count) override {
        constexpr std::size_t part = 1000;
        return meets() ? -1 : DiskCalls::write(file, bytes, std::min(count, part));
    }
    int fsync(int file) override { return meets() ? -1 : DiskCalls::fsync(file); }
    int close(int file) override {
        const int closed = DiskCalls::close(file);
        return meets() ? -1 : closed;
    }
    int rename(const char* from, const char* to) override {
        return meets() ? -1 : DiskCalls::rename(from, to);
    }

    int calls = 0;

  private:
    bool meets() {
        if (++calls != troubleAt)
            return false;
        errno = trouble();
        return true;
    }

    int troubleAt;
    std::function<int()> trouble;
};

class SaveFileTest : public testing::Test {
  protected:
    static constexpr std::size_t most = 1 << 20;
    std::string content() const { return readFileBytes(path, most); }
    std::size_t filesInFolder() const {
        return static_cast<std::size_t>(
            std::distance(std::filesystem::directory_iterator(temporary.at), {}));
    }
    Cause causeOf(const std::function<void()>& save) const {
        try {
            save();
        } catch (const RunTimeError& error) {
            return error.cause();
        }
        return Cause::invalidCall;
    }
    int errorOf(const std::function<void()>& save) const {
        const Cause cause = causeOf(save);
        return cause == Cause::invalidCall ? 0 : RunTimeError(cause).number();
    }

    const TemporaryFolder temporary;
    const std::string folder = temporary.path;
    const std::string path = folder + "/Flug über Köln.ts";
    const std::string before = "what was there\r\n";
    const std::string after = std::string(3500, 'x') + "\r\n"; // four writes
    static constexpr int callsOfASave = 8;
};

} // namespace tarnel
