// The report of a shift as a page: what it was, its points, its score over time, its flights, where two came
// too close, and how it compares with the player's own shifts before it.
//
// Pure drawing, on whatever canvas: the dialog shows a page in which the flights scroll, and a picture that
// is saved has one as high as all flights need.

#pragma once

#include "platform/text/font.h"
#include "platform/text/text.h"
#include "story/shift_history.h"
#include "story/shift_report.h"

namespace ventrel {

/// What a report tells of.
struct ReportFacts {
    const ShiftStory& story;
    std::string date;               ///< of the shift
    std::vector<PastShift> earlier; ///< that it can be compared with, the oldest first
    std::string trouble;            ///< why they cannot be read, or this one not kept
};

struct ReportFonts {
    const Font& title;
    const Font& score;
    const Font& heading;
    const Font& text;
    const Font& small; ///< of the map's names
};
ReportFonts reportFontsOf(FontSet& fonts);

/// The page of the dialog.
inline constexpr Size reportPageSize{776, 526};

/// The rows of the table of flights in a page of that height, and the part of the page that they fill. The
/// scroll bar stands right of it.
int reportFlightRows(const ReportFonts& fonts, int pageHeight);
Rect reportFlightArea(const ReportFonts& fonts, int pageHeight);

/// How high a page is in which all flights have their row; at least that of the dialog.
int reportHeightForAll(const ReportFonts& fonts, const ReportFacts& facts);

/// Paints the page into `page`, the table of flights from that row on.
void paintReport(Canvas& canvas, const ReportFonts& fonts, const ReportFacts& facts, int pageHeight,
                 int firstFlight);

} // namespace ventrel
