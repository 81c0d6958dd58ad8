#pragma once

#include <string>
#include <string_view>
#include <windows.h>

namespace tarnel {

/// What the system takes texts as, and back. What is no UTF-8 becomes the sign for that.
[[nodiscard]] std::wstring wide(std::string_view text);
[[nodiscard]] std::string narrow(std::wstring_view text);

/// Sets errno to what the last call of the system failed with. Returns -1.
int failed();

/// A handle of the system's, closed at the end.
class OwnHandle {
  public:
    explicit OwnHandle(HANDLE taken) : handle(taken) {}
    OwnHandle(const OwnHandle&) = delete;
    OwnHandle& operator=(const OwnHandle&) = delete;
    ~OwnHandle() {
        if (isOpen())
            ::CloseHandle(handle);
    }
    [[nodiscard]] bool isOpen() const { return handle && handle != INVALID_HANDLE_VALUE; }
    [[nodiscard]] HANDLE get() const { return handle; }

  private:
    HANDLE handle;
};

} // namespace tarnel
