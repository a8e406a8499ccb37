// The lines of a shift's log, in columns, with a scroll bar: the time, whom it concerns, of which kind, and
// what happened, in as many rows as the words take.
//
// It follows the newest line until the player scrolls away from it, and again once the player is back there.

#pragma once

#include <functional>

#include "platform/widgets/scroll_bar.h"
#include "story/log_filter.h"
#include "story/shift_log.h"

namespace ventrel {

/// A piece of an entry's words that fits on one line.
struct LogRow {
    std::size_t entry = 0;
    bool isFirst = false; ///< of its entry
    std::string words;
};

struct LogView {
    const ShiftLog& log;
    const Font& font;
    /// An entry was pressed that concerns a flight.
    std::function<void(FlightIndex)> chosen = {};

    Window window = {};
    ScrollBar bar = {};
    LogFilter filter = LogFilter::all;
    std::optional<FlightIndex> flight = {}; ///< of LogFilter::flight
    std::vector<LogRow> rows = {};
    std::size_t laidOut = 0; ///< entries that have their rows
    int edition = -1;        ///< of the log, when these were made
    bool follows = true;
    std::optional<std::size_t> marked = {}; ///< the entry that was pressed
};

/// Makes its window. The record must stay where it is from then on.
void LogViewCreate(LogView& view, const Window& parent, const Rect& bounds);

/// Shows those entries from now on.
void LogViewFilter(LogView& view, LogFilter filter, std::optional<FlightIndex> flight);

/// Shows what has been added to the log since; nothing when nothing was.
void LogViewRefresh(LogView& view);

/// Home, End, and the keys that turn pages. False for another.
bool LogViewKey(LogView& view, Key key);

} // namespace ventrel
