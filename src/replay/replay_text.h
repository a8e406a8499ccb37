// The lines of a replay, to be written: a header of "key value" lines, then one line an event.

#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "replay/replay.h"

namespace ventrel {

/// The first line, with the format's number, and the one that ends the header.
inline constexpr std::string_view replayMark = "ventrel-replay 1";
inline constexpr std::string_view replayHeaderEnd = "shift";

/// Words of the lines.
inline constexpr std::array<std::string_view, 3> replayKindWords{"scored", "practice", "day"};
inline constexpr std::array<std::string_view, 3> replayOutcomeWords{"handled", "collision", "given-up"};
inline constexpr std::string_view stepWord = "step";
inline constexpr std::string_view lampWord = "lamp";
inline constexpr std::string_view orderWord = "order";
inline constexpr std::string_view noiseWord = "noise";
inline constexpr std::string_view practiceWord = "practice";
inline constexpr std::string_view endWord = "end";

/// One line of the header: how it is written, and how it is read. Every key stands once, in this order.
struct ReplayHeaderRow {
    std::string_view key;
    std::string (*text)(const ReplayHeader& header);
    bool (*read)(ReplayHeader& header, std::string_view text);
    std::string_view expected; ///< what its value must be, for a message
};
std::span<const ReplayHeaderRow> replayHeaderRows();

/// The whole header, from the mark to its end, in UTF-8.
std::string replayHeaderText(const ReplayHeader& header);

/// Lines with their line feed.
std::string replayLine(const ReplayEvent& event);
std::string replayLine(ClockSeconds clock, const NoiseChange& change);
std::string replayLine(const ReplayEnd& end);
std::string practiceLine(ClockSeconds clock);

/// A whole number from `lowest` to `highest` and nothing else.
bool readWholeNumber(std::string_view text, long long lowest, long long highest, long long& number);

/// The blank-separated words.
std::vector<std::string_view> wordsOf(std::string_view line);

} // namespace ventrel
