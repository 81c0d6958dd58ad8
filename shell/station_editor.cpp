#include "shell/station_editor.h"

#include "shell/form_1.h"

namespace tarnel {

namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

int placeOf(const Station& station) {
    for (std::size_t i = 0; i < labelPlaces.size(); ++i)
        if (labelPlaces[i].offsetX == station.labelOffsetX &&
            labelPlaces[i].offsetY == station.labelOffsetY)
            return static_cast<int>(i);
    return 0;
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

StationEdit Form1::stationToEdit(Slot slot) const {
    const StationProperties& station = UserControl11.slot(slot);
    return {slot,
            station.name,
            station.frequency,
            station.enabled != off,
            station.dmeEnabled != off,
            placeOf(inSlot(UserControl11.stations, slot))};
}

bool Form1::applyStationEdit(const StationEdit& edit) {
    if (!fitsMask(edit.frequency, frequencyMask(edit.slot))) {
        showBox(text(Text::editorFormatTitle),
                text(hasDme(edit.slot) ? Text::editorFormatVor : Text::editorFormatNdb));
        return false;
    }
    Station& station = inSlot(UserControl11.stations, edit.slot);
    const LabelPlace& place = labelPlaces[static_cast<std::size_t>(edit.labelPlace)];
    station.labelOffsetX = place.offsetX;
    station.labelOffsetY = place.offsetY;
    StationProperties& properties = UserControl11.slot(edit.slot);
    properties.name = edit.name;
    properties.frequency = edit.frequency;
    UserControl11.switchStation(edit.slot, edit.stationOn, edit.dmeOn);
    UserControl11.moveStation(edit.slot, station.position);
    return true;
}

} // namespace tarnel
