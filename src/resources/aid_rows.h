// The aids: what a player may have shown beyond the game itself. Each is off until it is chosen.
//
// An aid is a line of the options' record and a row here. Its key in the options file and its line in the
// dialog follow; whoever draws it asks the options.

#pragma once

#include <array>
#include <string_view>

#include "options/options.h"

namespace ventrel {

/// The part of the dialog in which an aid stands.
enum class AidGroup { scope, tags, orders, eyesAndEars };

struct AidRow {
    AidGroup group;
    std::string_view key; ///< in the options file
    int Options::* value;
    std::string_view name; ///< with the letter that chooses it in the dialog
    std::string_view explanation;
};

// Those of a group stand together.
inline constexpr std::array aidRows{std::to_array<AidRow>({
    {AidGroup::scope, "AidHeadingLines", &Options::aidHeadingLines, "&Heading lines",
     "Where flights on headings will be in three minutes"},
    {AidGroup::scope, "AidRunways", &Options::aidRunways, "&Runways",
     "The number of each runway, and the line to come in on"},
    {AidGroup::scope, "AidHistory", &Options::aidHistory, "H&istory",
     "Dots in the last cells through which a flight came"},
    {AidGroup::scope, "AidConflicts", &Options::aidConflicts, "Co&nflicts ahead",
     "A thin ring when a near miss is three moves away or less"},
    {AidGroup::scope, "AidPauseAtRim", &Options::aidPauseAtRim, "&Pause at the rim",
     "PAUSE stands at the top of the scope instead of in its middle"},
    {AidGroup::tags, "AidFullTags", &Options::aidFullTags, "&Full tags",
     "Speed (F, N, S) and destination beside the altitude"},
    {AidGroup::tags, "AidTidyTags", &Options::aidTidyTags, "&Tidy tags",
     "Tags give way to each other and stay inside the rim"},
    {AidGroup::tags, "AidLargeTags", &Options::aidLargeTags, "&Large letters",
     "Tags in letters that are easier to read"},
    {AidGroup::orders, "AidOrderLine", &Options::aidOrderLine, "Line of the &order",
     "On the scope: the way on which EXEC would send the flight"},
    {AidGroup::orders, "AidUnsentMarks", &Options::aidUnsentMarks, "&Unsent settings",
     "On the panel: a mark at all that EXEC would change"},
    {AidGroup::eyesAndEars, "AidColours", &Options::aidColours, "Cl&ear colours",
     "For eyes without a sense of red, green or blue; shapes, too"},
    {AidGroup::eyesAndEars, "AidConflictTone", &Options::aidConflictTone, "&Soft tone",
     "Sounds when a near miss has come within three moves"},
    {AidGroup::eyesAndEars, "AidCaptions", &Options::aidCaptions, "&Captions",
     "What the pilots say can be read under the messages"},
})};

struct AidGroupTitle {
    AidGroup group;
    std::string_view title;
};
inline constexpr std::array aidGroups{std::to_array<AidGroupTitle>({
    {AidGroup::scope, "On the scope"},
    {AidGroup::tags, "The tags of the flights"},
    {AidGroup::orders, "The order on the panel"},
    {AidGroup::eyesAndEars, "For eyes and ears"},
})};

} // namespace ventrel
