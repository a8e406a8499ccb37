#include "story/log_filter.h"

#include "story/shift_words.h"

namespace ventrel {

namespace {

constexpr std::string_view droppedMark = "  [not on the ticker]";

} // namespace

bool passesFilter(const LogEntry& entry, LogFilter filter, std::optional<FlightIndex> flight) {
    switch (filter) {
    case LogFilter::all: return true;
    case LogFilter::flight: return flight && (entry.flight == flight || entry.other == flight);
    case LogFilter::points: return entry.kind == LogKind::points;
    case LogFilter::calls: return entry.kind == LogKind::call;
    case LogFilter::orders: return entry.kind == LogKind::order;
    }
    return false;
}

std::string_view kindWord(LogKind kind) {
    switch (kind) {
    case LogKind::line: return "";
    case LogKind::call: return "radio";
    case LogKind::order: return "order";
    case LogKind::points: return "score";
    }
    return {};
}

std::string entryWords(const LogEntry& entry) {
    return entry.wasDropped ? entry.words + std::string(droppedMark) : entry.words;
}

std::string whomItConcerns(const ShiftStory& story, const LogEntry& entry) {
    const bool isKnown = entry.flight && entry.flight->place() < story.flights.size();
    return isKnown ? story.flight(*entry.flight).callsign : std::string();
}

std::string logText(const ShiftStory& story, LogFilter filter, std::optional<FlightIndex> flight) {
    std::string text;
    for (const LogEntry& entry : story.entries) {
        if (passesFilter(entry, filter, flight)) {
            std::string words = entryWords(entry);
            if (entry.kind == LogKind::points && entry.flight) {
                words = withCallsign(std::move(words), whomItConcerns(story, entry));
            }
            text += logLine(entry.clock, kindWord(entry.kind), words) + '\n';
        }
    }
    return text;
}

} // namespace ventrel
