#include "fuzz_target.h"
#include "persistence/flight_shelf.h"
#include "written_file.h"

#include <cmath>

using namespace tarnel;

namespace {

std::string oneSample() {
    SessionFile session;
    session.samples.resize(1);
    return writeSession(session, {});
}

} // namespace

/// Reads the track that lies beside a flight which was put aside. The flight is a session.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const WrittenFile flight("flight.ts");
    static const WrittenFile track("flight.track");
    static const std::string path = flight.with(oneSample());
    std::filesystem::copy_file(track.with(asText(data, size)),
                               std::filesystem::path(path).replace_extension(".track"),
                               std::filesystem::copy_options::overwrite_existing);
    ShelvedFlight shelved;
    shelved.path = path;
    const KeptFlight kept = FlightShelf::read(shelved);
    require(kept.session.samples.size() == 1);
    for (int i = 1; i <= kept.reference.size(); ++i)
        require(std::isfinite(kept.reference.at(i).latitude) &&
                std::isfinite(kept.reference.at(i).longitude));
    return 0;
}
