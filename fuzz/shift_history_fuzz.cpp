// The list of finished shifts against any file: nothing crashes, a list stays one with one shift more, and
// what is no list is left alone.

#include <algorithm>
#include <cstdint>
#include <span>

#include "base/whole_file.h"
#include "demand.h"
#include "scratch_folder.h"
#include "story/shift_history.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace ventrel;
    constexpr std::size_t mostRead = 1 << 22;
    const ScratchFolder folder;
    const auto file = folder.put("fuzz.txt", {reinterpret_cast<const char*>(data), size});
    const auto bytes = std::as_bytes(std::span(data, size));
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
    return 0;
}
