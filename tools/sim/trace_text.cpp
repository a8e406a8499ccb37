#include "tools/sim/trace_text.h"

namespace ventrel {

void writePoint(Output& output, const Vor& vor) {
    output << R"({"ident":)";
    output.quoted(vor.ident) << R"(,"x":)" << vor.cell.x << R"(,"y":)" << vor.cell.y << R"(,"heading":)"
                             << vor.runwayHeading << R"(,"airport":)" << static_cast<int>(vor.isAirport)
                             << R"(,"exit":)" << static_cast<int>(vor.isExit) << R"(,"major":)"
                             << static_cast<int>(vor.isMajor) << '}';
}

int resultNumber(const RunResult& result) {
    constexpr int timeWasUp = 1;
    return result ? static_cast<int>(*result) : timeWasUp;
}

} // namespace ventrel
