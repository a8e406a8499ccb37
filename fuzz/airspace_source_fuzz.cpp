// The airspace tool against any source: what it accepts must make a file that the game accepts, and be the
// same file again after it was shown as a source.

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "base/windows1252.h"
#include "demand.h"
#include "tools/apt/airspace_checks.h"
#include "tools/apt/airspace_text.h"
#include "tools/apt/airspace_writer.h"

namespace {

using namespace ventrel;

/// `bytes` is what the source was built to, without a picture.
void showAndBuildAgain(const std::vector<std::byte>& bytes, const RadarLayout& layout) {
    const auto accepted = readAirportFile(bytes, "fuzz.apt");
    demand(accepted.has_value());
    const auto text = apt::airspaceText(*accepted, bytes, {});
    demand(text.has_value());
    const auto again = apt::parseAirspace(toUtf8(*text));
    demand(again.faults.empty());
    demand(apt::airportFileBytes(apt::airportOf(again.airspace, layout), {}) == bytes);
}

void tryLayout(const apt::SourceReading& reading, const RadarLayout& layout) {
    const AirportFile airport = apt::airportOf(reading.airspace, layout);
    for (const apt::Problem& problem : apt::airspaceProblems(airport, {})) {
        demand(apt::lineOf(reading.airspace, problem, layout.windowWidth) > 0);
    }
    if (reading.faults.empty()) {
        showAndBuildAgain(apt::airportFileBytes(airport, {}), layout);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto reading = apt::parseAirspace({reinterpret_cast<const char*>(data), size});
    for (const RadarLayout& layout : {smallRadarLayout, largeRadarLayout}) {
        if (reading.airspace.serves(layout.windowWidth) && !reading.airspace.points.empty()) {
            tryLayout(reading, layout);
        }
    }
    return 0;
}
