#include "records/high_scores.h"

#include <algorithm>
#include <cstdint>

#include "base/bytes.h"
#include "base/format.h"
#include "base/whole_file.h"
#include "base/windows1252.h"

namespace ventrel {

namespace fs = std::filesystem;

namespace {

/// Offsets in bytes within a record; numbers are little-endian.
namespace layout {
constexpr std::size_t recordSize = 104;
constexpr std::size_t nameSize = 32; // from offset 0
constexpr std::size_t scoreOffset = 32;
constexpr std::size_t scoreSize = 2;
constexpr std::size_t airportOffset = scoreOffset + scoreSize;
constexpr std::size_t airportSize = recordSize - airportOffset;
} // namespace layout

using Record = std::array<std::byte, layout::recordSize>;
using Table = std::array<Record, highScoreRows>;

constexpr std::size_t tableSize = layout::recordSize * std::size_t{highScoreRows};
constexpr int scoreMask = 0xFFFF;

std::string textAt(const Record& record, std::size_t offset, std::size_t size) {
    const auto field = std::span(record).subspan(offset, size);
    std::string text;
    for (const std::byte character : field) {
        if (character == std::byte{0}) {
            break;
        }
        text += static_cast<char>(character);
    }
    return text;
}

/// A text that is too long loses its end; the field always ends in a 0.
void putText(Record& record, std::size_t offset, std::size_t size, std::string_view text) {
    const std::string_view kept = text.substr(0, size - 1);
    std::ranges::transform(kept, record.begin() + static_cast<std::ptrdiff_t>(offset),
                           [](char character) { return static_cast<std::byte>(character); });
}

int scoreOf(const Record& record) {
    return static_cast<int>(numberAt(record, layout::scoreOffset, layout::scoreSize));
}

HighScoreEntry entryOf(const Record& record) {
    return {textAt(record, 0, layout::nameSize), scoreOf(record),
            textAt(record, layout::airportOffset, layout::airportSize)};
}

Record recordOf(const HighScoreEntry& entry) {
    Record record{};
    putText(record, 0, layout::nameSize, entry.name);
    record[layout::scoreOffset] = static_cast<std::byte>(entry.score & 0xFF);
    record[layout::scoreOffset + 1] = static_cast<std::byte>(entry.score >> 8 & 0xFF);
    putText(record, layout::airportOffset, layout::airportSize, entry.airport);
    return record;
}

Result<Table> readTable(const fs::path& file) {
    const auto bytes = readWholeFile(file, tableSize);
    if (!bytes) {
        return tl::unexpected(bytes.error());
    }
    if (bytes->size() != tableSize) {
        return failed(
            FormatText("The table of high scores %s has %ld bytes instead of %ld. It is left as it is.",
                       {pathText(file), static_cast<long>(bytes->size()), long{tableSize}}));
    }
    Table table;
    for (std::size_t row = 0; row < table.size(); ++row) {
        std::copy_n(bytes->begin() + static_cast<std::ptrdiff_t>(row * layout::recordSize),
                    layout::recordSize, table[row].begin());
    }
    return table;
}

Result<> writeTable(const fs::path& file, const Table& table) {
    std::vector<std::byte> bytes;
    for (const Record& record : table) {
        bytes.insert(bytes.end(), record.begin(), record.end());
    }
    return replaceFile(file, bytes);
}

/// Puts the record into the first empty row, or in place of the last. False when that one is as good.
bool enter(Table& table, const Record& record) {
    const auto empty = std::ranges::find(table, 0, scoreOf);
    if (empty != table.end()) {
        *empty = record;
    } else if (scoreOf(record) > scoreOf(table.back())) {
        table.back() = record;
    } else {
        return false;
    }
    std::ranges::stable_sort(table, std::ranges::greater{}, scoreOf);
    return true;
}

} // namespace

Result<> makeHighScoreFile(const fs::path& file) {
    std::error_code fault;
    if (fs::exists(file, fault) || fault) {
        return {};
    }
    return writeTable(file, {});
}

Result<HighScores> readHighScores(const fs::path& file) {
    const auto table = readTable(file);
    if (!table) {
        return tl::unexpected(table.error());
    }
    HighScores scores;
    std::ranges::transform(*table, scores.begin(), entryOf);
    return scores;
}

Result<HighScorePlace> InsertHighScore(const fs::path& file, const HighScoreEntry& entry) {
    HighScoreEntry counted = entry;
    counted.score &= scoreMask;
    if (counted.score == 0) {
        return HighScorePlace{};
    }
    auto table = readTable(file);
    if (!table) {
        return tl::unexpected(table.error());
    }
    const Record record = recordOf(counted);
    if (!enter(*table, record)) {
        return HighScorePlace{};
    }
    // Of equal entries the earlier row is shown.
    const auto row = std::ranges::find(*table, entryOf(record), entryOf);
    return HighScorePlace{static_cast<int>(row - table->begin()), writeTable(file, *table)};
}

Result<> deleteHighScores(const fs::path& file) {
    if (const auto table = readTable(file); !table) {
        return tl::unexpected(table.error());
    }
    return writeTable(file, {});
}

} // namespace ventrel
