#pragma once

#include <string>

namespace tarnel {

class Form1;

/// Writes the trainer's window as it stands to a picture file, without showing it; the format
/// follows the file's name. An output of "-" is standard output, as a PNG. Throws OutputError. To
/// be called once.
void writePicture(Form1& form, const std::string& file);

} // namespace tarnel
