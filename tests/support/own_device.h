#pragma once

#include <string>
#include <sys/stat.h>
#include <sys/sysmacros.h>

namespace tarnel {

enum class Device { null = 3, zero = 5, full = 7 };

/// A device of the test's own at `path`, so that a fault can't replace the machine's. Who may make
/// none, and so can't replace one either, is given that.
inline std::string deviceAt(const std::string& path, Device kind) {
    if (mknod(path.c_str(), S_IFCHR | 0666, makedev(1, static_cast<unsigned>(kind))) == 0)
        return path;
    return kind == Device::null ? "/dev/null" : kind == Device::zero ? "/dev/zero" : "/dev/full";
}

} // namespace tarnel
