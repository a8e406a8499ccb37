// The interactive game against any input of the program that plays it: the shift goes on to its end, and
// every line that is written is one whole JSON object.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string_view>

#include "base/windows1252.h"
#include "demand.h"
#include "short_shift.h"
#include "tools/sim/interactive.h"
#include "tools/sim/shift_run.h"

namespace {

using namespace ventrel;

/// Whether the brackets of a line are closed in the order of their opening, none of them within a string, and
/// nothing comes after the first.
bool isWholeObject(std::string_view line) {
    std::string open;
    bool isText = false;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const char letter = line[i];
        if (isText) {
            i += letter == '\\' ? 1 : 0;
            isText = letter != '"';
        } else if (letter == '"') {
            isText = true;
        } else if (letter == '{' || letter == '[') {
            open += letter == '{' ? '}' : ']';
        } else if (letter == '}' || letter == ']') {
            if (open.empty() || open.back() != letter) {
                return false;
            }
            open.pop_back();
        }
        if (!isText && open.empty()) {
            return i + 1 == line.size();
        }
    }
    return false;
}

bool isControl(char letter) {
    return static_cast<unsigned char>(letter) < ' ' || letter == '\x7F';
}

void demandLines(const std::string& output) {
    std::istringstream lines{output};
    std::string line;
    std::string last;
    while (std::getline(lines, line)) {
        demand(line.starts_with(R"({"type":")") && isWholeObject(line));
        demand(std::ranges::none_of(line, isControl));
        demand(toUtf8(fromUtf8(line)) == line);
        last = line;
    }
    demand(last.starts_with(R"({"type":"end")"));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::istringstream input{std::string(reinterpret_cast<const char*>(data), size)};
    Game game = shortShift();
    Output output;
    InteractiveWriter writer{output, game};
    const auto steering = [&](Game& now, Recorder&) { takeOrders(input, now, writer); };
    runShift(game, writer, {.orders = {}, .until = shortShiftEnd, .steering = steering});
    demand(game.score >= 0);
    demandLines(output.text());
    return 0;
}
