// The list of finished shifts against any file: nothing crashes, a list stays one with one shift more, and
// what is no list is left alone.

#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <span>

#include "base/whole_file.h"
#include "replay/shift_history.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace ventrel;
    namespace fs = std::filesystem;
    constexpr std::size_t mostRead = 1 << 22;
    const fs::path file = fs::temp_directory_path() / ("ventrel-shifts-" + std::to_string(::getpid()));
    const auto bytes = std::as_bytes(std::span(data, size));
    const auto demand = [](bool isSo) {
        if (!isSo) {
            std::abort();
        }
    };
    demand(replaceFile(file, bytes).has_value());
    const auto before = readShiftHistory(file);
    PastShift shift;
    shift.flights = 1;
    demand(addToShiftHistory(file, shift).has_value() == before.has_value());
    if (before) {
        const auto after = readShiftHistory(file).value();
        demand(after.back() == shift && after.size() <= before->size() + 1);
    } else {
        demand(std::ranges::equal(readWholeFile(file, mostRead).value(), bytes));
    }
    fs::remove(file);
    return 0;
}
