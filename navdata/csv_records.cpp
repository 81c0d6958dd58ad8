#include "navdata/csv_records.h"

#include <algorithm>

namespace tarnel {

bool CsvRecords::next() {
    while (rest.starts_with('\n') || rest.starts_with("\r\n")) {
        rest.remove_prefix(rest.find('\n') + 1);
        ++nextLine;
    }
    if (rest.empty())
        return false;
    firstLine = nextLine;
    count = 0;
    do
        takeField();
    while (rest.starts_with(',') && (rest.remove_prefix(1), true));
    if (!rest.empty()) {
        rest.remove_prefix(1); // the end of the line
        ++nextLine;
    }
    return true;
}

/// Leaves `rest` at the comma or the line end behind the field.
void CsvRecords::takeField() {
    if (count == taken.size())
        taken.emplace_back();
    std::string& field = taken[count++];
    field.clear();
    if (rest.starts_with('"'))
        takeQuoted(field);
    const std::string_view plain = rest.substr(0, rest.find_first_of(",\n"));
    rest.remove_prefix(plain.size());
    field += plain;
    if (field.ends_with('\r') && !rest.starts_with(','))
        field.pop_back();
}

void CsvRecords::takeQuoted(std::string& field) {
    do {
        rest.remove_prefix(1);
        const std::string_view quoted = rest.substr(0, rest.find('"'));
        nextLine += static_cast<int>(std::ranges::count(quoted, '\n'));
        field += quoted;
        rest.remove_prefix(quoted.size());
        if (rest.empty()) {
            open = true;
            return;
        }
        rest.remove_prefix(1);
        if (rest.starts_with('"'))
            field += '"';
    } while (rest.starts_with('"'));
}

} // namespace tarnel
