// Which entries of a log one wants to see, and the log as text.

#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "story/shift_story.h"

namespace ventrel {

enum class LogFilter { all, flight, points, calls, orders };

/// Whether the entry passes; with LogFilter::flight only what concerns that flight, without one nothing.
bool passesFilter(const LogEntry& entry, LogFilter filter, std::optional<FlightIndex> flight);

/// The word before an entry's own words: empty for a line of the ticker.
std::string_view kindWord(LogKind kind);

/// The entry's words, and whether the ticker dropped them.
std::string entryWords(const LogEntry& entry);

/// The callsigns of whom it concerns; empty for the shift itself.
std::string whomItConcerns(const ShiftStory& story, const LogEntry& entry);

/// The entries that pass as lines of text, each with a line feed.
std::string logText(const ShiftStory& story, LogFilter filter, std::optional<FlightIndex> flight);

} // namespace ventrel
