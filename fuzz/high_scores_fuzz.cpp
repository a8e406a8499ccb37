// The score table's reader and writer against any file: nothing crashes, a table stays one and in order, and
// what is no table is left alone.

#include <algorithm>
#include <cstdint>
#include <span>

#include "base/whole_file.h"
#include "demand.h"
#include "records/high_scores.h"
#include "scratch_folder.h"

namespace {

using namespace ventrel;

constexpr std::size_t tableSize = 1040;
constexpr std::size_t mostRead = 1 << 20;

bool isLegible(const HighScoreEntry& entry) {
    return entry.name.size() <= 32 && entry.airport.size() <= 70 && entry.score >= 0 &&
           entry.score <= 0xFFFF && entry.name.find('\0') == std::string::npos &&
           entry.airport.find('\0') == std::string::npos;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const ScratchFolder folder;
    const auto file = folder.put("fuzz.dat", {reinterpret_cast<const char*>(data), size});
    const auto bytes = std::as_bytes(std::span(data, size));
    const auto before = readHighScores(file);
    demand(before.has_value() == (size == tableSize));
    const auto place = InsertHighScore(file, {"Mary", 1000, "New York"});
    const Bytes after = readWholeFile(file, mostRead).value();
    if (!before) {
        demand(!place && std::ranges::equal(after, bytes));
        return 0;
    }
    const HighScores scores = readHighScores(file).value();
    demand(std::ranges::all_of(scores, isLegible));
    if (!place->row) {
        demand(std::ranges::equal(after, bytes));
        return 0;
    }
    demand(std::ranges::is_sorted(scores, std::ranges::greater{}, &HighScoreEntry::score));
    demand(scores[static_cast<std::size_t>(*place->row)] == HighScoreEntry{"Mary", 1000, "New York"});
    return 0;
}
