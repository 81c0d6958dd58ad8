#include "shell/station_editor.h"

namespace tarnel {

namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

} // namespace

Text editorTitle(Slot slot) {
    static constexpr Text titles[] = {Text::editorVorRed, Text::editorVorBlue, Text::editorNdbRed,
                                      Text::editorNdbBlue, Text::editorLocRed};
    return titles[static_cast<std::size_t>(slot)];
}

std::string_view frequencyMask(Slot slot) {
    return hasDme(slot) ? "###.##" : "###";
}

bool fitsMask(std::string_view frequency, std::string_view mask) {
    if (frequency.size() != mask.size())
        return false;
    for (std::size_t i = 0; i < mask.size(); ++i)
        if (mask[i] == '#' ? !isDigit(frequency[i]) : frequency[i] != mask[i])
            return false;
    return true;
}

} // namespace tarnel
