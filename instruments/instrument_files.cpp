#include "instruments/instrument_files.h"

namespace tarnel {

namespace {

std::string fileName(const std::string& stem, bool large) {
    return stem + (large ? "g.jpg" : ".jpg");
}

} // namespace

std::string backgroundName(InstrumentKind kind, const BackgroundChoice& choice) {
    const bool first = choice.navSelect == 1;
    switch (kind) {
    case InstrumentKind::adf:
        return fileName(choice.adfCardSelect == fixedCard ? "QXRadff" : "QXRadfs", choice.large);
    case InstrumentKind::rmi:
        return fileName(first ? "qxrrmi1" : "qxrrmi2", choice.large);
    case InstrumentKind::vor:
        return fileName(first ? "qxrvor1t" : "qxrvor2f", choice.large);
    case InstrumentKind::hsi:
        return fileName(first ? "qxrhsi1" : "qxrhsi2", choice.large);
    case InstrumentKind::dg:
        break;
    }
    return fileName("qxrhdg", choice.large);
}

std::int16_t flagKindOf(FlagState flag) {
    if (flag == FlagState::to)
        return 1;
    return flag == FlagState::from ? 2 : 3;
}

std::string vorBackgroundName(std::int16_t flagKind, const BackgroundChoice& choice) {
    const bool known = flagKind >= 1 && flagKind <= 3;
    if (!known || (choice.navSelect != 1 && choice.navSelect != 2))
        return {};
    std::string stem = choice.navSelect == 1 ? "QXRvor1" : "QXRvor2";
    stem += std::string_view("tfl")[static_cast<std::size_t>(flagKind - 1)];
    return fileName(stem, choice.large);
}

std::string pathIn(std::string_view folder, std::string_view file) {
    std::string path(folder);
    if (path.empty() || (path.back() != '/' && path.back() != '\\'))
        path += '/';
    return path += file;
}

} // namespace tarnel
