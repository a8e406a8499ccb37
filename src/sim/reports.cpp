#include "sim/reports.h"

#include <algorithm>
#include <array>

#include "base/string_table.h"
#include "sim/phrase.h"

namespace ventrel {

namespace {

struct TopicRow {
    Topic topic;
    TextId text;
    MessageClass messageClass;
};

constexpr std::array topicRows{std::to_array<TopicRow>({
    {Topic::departureRequest, TextId::requestDeparture, MessageClass::information},
    {Topic::entry, TextId::enteringAirspace, MessageClass::information},
    {Topic::landing, TextId::landing, MessageClass::success},
    {Topic::leaving, TextId::leavingAirspace, MessageClass::success},
    {Topic::tooHighToLand, TextId::missedApproachTooHigh, MessageClass::trouble},
    {Topic::wrongHeadingToLand, TextId::missedApproachHeading, MessageClass::trouble},
    {Topic::tooLowToLeave, TextId::cannotExit, MessageClass::trouble},
    {Topic::lost, TextId::flightLost, MessageClass::trouble},
    {Topic::nearMiss, TextId::nearMiss, MessageClass::emergency},
    {Topic::stillWaitingTower, TextId::towerWaiting, MessageClass::trouble},
    {Topic::stillWaiting, TextId::stillWaiting, MessageClass::trouble},
    {Topic::stillWaitingUrgent, TextId::immediateDeparture, MessageClass::trouble},
    {Topic::tooCloseForDirect, TextId::tooCloseForDirect, MessageClass::information},
})};

struct CallRow {
    CallTopic topic;
    std::array<char, 2> words; ///< that end it; 0: none
};

constexpr std::array callRows{std::to_array<CallRow>({
    {CallTopic::departureRequest, {snippet::request}},
    {CallTopic::landing, {snippet::landing, snippet::goodDay}},
    {CallTopic::leaving, {snippet::leaving, snippet::goodDay}},
    {CallTopic::missedApproach, {snippet::requestAirport, snippet::hell}},
    {CallTopic::cannotLeave, {snippet::requestVor, snippet::hell}},
    {CallTopic::stillWaiting, {snippet::still}},
    {CallTopic::stillWaitingRepeated, {snippet::repeat, snippet::still}},
    {CallTopic::nearMissAhead, {snippet::mayday, snippet::deadAhead}},
    {CallTopic::nearMissVector, {snippet::mayday, snippet::airVector}},
    {CallTopic::clearance, {snippet::roger}},
    {CallTopic::noChange, {snippet::roger}},
    {CallTopic::directOrder, {snippet::directVor}},
    {CallTopic::tooCloseForDirect, {snippet::repeat, snippet::requestVor}},
})};

template <typename Rows, typename Topics>
const auto* rowOf(const Rows& rows, Topics topic) {
    const auto found = std::ranges::find_if(rows, [&](const auto& row) { return row.topic == topic; });
    return found == rows.end() ? nullptr : &*found;
}

/// Where a read-back says that the flight goes: up, down, or what a hold says instead.
void appendAltitude(std::string& phrase, const RadioCall& call) {
    if (call.climb != 0) {
        VoiceAppend(phrase, call.climb > 0 ? snippet::climbing : snippet::descending);
        VoiceAppend(phrase, VoiceAltitudeCode(call.altitude));
    } else if (call.topic == CallTopic::holdOrder) {
        VoiceAppend(phrase, snippet::roger);
    }
}

} // namespace

MessageClass reportClass(Topic topic) {
    return rowOf(topicRows, topic)->messageClass;
}

std::string reportText(const Game& game, const Report& report) {
    const std::string_view callsign = game.flight(report.flight).callsign;
    const TextId text = rowOf(topicRows, report.topic)->text;
    if (report.other) {
        return FormatStringId(text, {callsign, std::string_view{game.flight(*report.other).callsign}});
    }
    return FormatStringId(text, {callsign, std::string_view{copyVor(game, report.point).ident}});
}

std::string radioPhrase(const Game& game, const RadioCall& call) {
    std::string phrase;
    if (call.topic != CallTopic::noChange) {
        phrase = std::string_view{game.flight(call.flight).callsignPhrase};
    }
    if (call.topic == CallTopic::entry) {
        VoiceAppend(phrase, snippet::levelAt);
        VoiceAppend(phrase, VoiceAltitudeCode(call.altitude));
    }
    if (call.heading) {
        VoiceAppend(phrase, VoiceHeadingCode(*call.heading));
    }
    appendAltitude(phrase, call);
    if (const auto* row = rowOf(callRows, call.topic)) {
        std::ranges::copy_if(row->words, std::back_inserter(phrase), [](char word) { return word != 0; });
    }
    return phrase;
}

} // namespace ventrel
