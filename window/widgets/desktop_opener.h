#pragma once

#include <functional>

class QString;

namespace tarnel {

/// Hands a file to the program that the desktop has for it. False if there is none; where
/// `xdg-open` has to find that out, `notOpened` is called when it has.
bool openByDesktop(const QString& path, const std::function<void()>& notOpened);

} // namespace tarnel
