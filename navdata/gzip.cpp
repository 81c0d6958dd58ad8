#include "navdata/gzip.h"

#include "core/run_time_error.h"

#include <algorithm>
#include <array>
#include <limits>
#include <string_view>
#include <zlib.h>

namespace tarnel {

namespace {

constexpr std::string_view gzipMark = "\x1f\x8b";

/// Unpacks one gzip file after the other.
class Inflater {
  public:
    explicit Inflater(const std::string& packed) : rest(packed) {
        constexpr int gzipOnly = 16 + MAX_WBITS;
        if (inflateInit2(&stream, gzipOnly) != Z_OK)
            throw RunTimeError(Cause::accessFailed);
    }
    Inflater(const Inflater&) = delete;
    Inflater& operator=(const Inflater&) = delete;
    ~Inflater() { inflateEnd(&stream); }

    Unpacked run(std::size_t limit) {
        Unpacked result;
        int state = Z_OK;
        while (state == Z_OK || (state == Z_STREAM_END && rest.starts_with(gzipMark))) {
            if (state == Z_STREAM_END)
                inflateReset(&stream);
            state = step(result.bytes);
            if (result.bytes.size() > limit)
                throw RunTimeError(Cause::fileTooLarge);
        }
        result.whole = state == Z_STREAM_END;
        return result;
    }

  private:
    /// Unpacks into one buffer more. Without progress the state is an error.
    int step(std::string& unpacked) {
        std::array<char, 1 << 16> buffer; // NOLINT: filled below
        const std::size_t given = std::min<std::size_t>(rest.size(), 1 << 30);
        stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(rest.data()));
        stream.avail_in = static_cast<uInt>(given);
        stream.next_out = reinterpret_cast<Bytef*>(buffer.data());
        stream.avail_out = static_cast<uInt>(buffer.size());
        const int state = inflate(&stream, Z_NO_FLUSH);
        rest.remove_prefix(given - stream.avail_in);
        unpacked.append(buffer.data(), buffer.size() - stream.avail_out);
        return state;
    }

    std::string_view rest;
    z_stream stream{};
};

} // namespace

Unpacked unpacked(std::string bytes, std::size_t limit) {
    if (bytes.starts_with(gzipMark))
        return Inflater(bytes).run(limit);
    if (bytes.size() > limit)
        throw RunTimeError(Cause::fileTooLarge);
    return {std::move(bytes)};
}

} // namespace tarnel
