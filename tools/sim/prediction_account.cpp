#include "tools/sim/prediction_account.h"

#include <algorithm>
#include <array>

namespace ventrel {

namespace {

constexpr ClockSeconds never{-1};

} // namespace

void PredictionAccount::shiftSetUp() {
    lastMoves_.assign(game().flights.size(), never);
    lastOrders_.assign(game().flights.size(), never);
}

void PredictionAccount::judge(FlightIndex finder, FlightIndex other) {
    const auto latest = [&](const std::vector<ClockSeconds>& times) {
        return std::max(times[finder.place()], times[other.place()]);
    };
    const ClockSeconds lastMove = lastMoves_[finder.place()];
    const auto found = shown_.find(std::minmax(finder, other));
    if (found == shown_.end()) {
        ++counts_.missed;
        return;
    }
    found->second.hasCome = true;
    if (found->second.since <= lastMove) {
        ++counts_.ahead;
    } else if (latest(lastOrders_) >= lastMove) {
        ++counts_.ordered;
    } else if (std::max(game().flight(finder).activatedAt, game().flight(other).activatedAt) >= lastMove) {
        ++counts_.entered;
    } else {
        ++counts_.missed;
    }
}

void PredictionAccount::reported(const Report& report) {
    if (report.other) {
        judge(report.flight, *report.other);
    }
}

void PredictionAccount::orderGiven(FlightIndex flight, const PanelOrder&) {
    lastOrders_[flight.place()] = game().clock;
    for (auto& [pair, warning] : shown_) {
        warning.isOrdered = warning.isOrdered || pair.first == flight || pair.second == flight;
    }
}

void PredictionAccount::orderExecuted(FlightIndex, OrderResult) {
    predict();
}

void PredictionAccount::stepTaken() {
    for (const FlightIndex i : game().flightPlaces()) {
        const Flight& flight = game().flight(i);
        if (flight.inPlay && flight.isActive() && isDue(flight, game().clock)) {
            lastMoves_[i.place()] = game().clock;
        }
    }
    predict();
}

void PredictionAccount::predict() {
    std::map<Pair, Warning> shown;
    for (const PredictedConflict& conflict : predictConflicts(game())) {
        const Pair pair = std::minmax(conflict.finder, conflict.other);
        const auto before = shown_.find(pair);
        shown.emplace(pair, before == shown_.end() ? Warning{game().clock} : before->second);
    }
    for (const auto& [pair, warning] : shown_) {
        if (!shown.contains(pair)) {
            close(warning);
        }
    }
    shown_ = std::move(shown);
}

void PredictionAccount::close(const Warning& warning) {
    ++(warning.hasCome ? counts_.cameTrue : warning.isOrdered ? counts_.averted : counts_.falseAlarm);
}

void PredictionAccount::runEnded(const RunResult& result) {
    if (result == ShiftResult::collision) {
        judge(game().collisionFlights[1], game().collisionFlights[0]);
    }
    // What is still shown then is cut short, and counts for nothing.
    for (const auto& [pair, warning] : shown_) {
        counts_.cameTrue += warning.hasCome ? 1 : 0;
    }
    output_ << R"({"type":"prediction","ahead":)" << counts_.ahead << R"(,"ordered":)" << counts_.ordered
            << R"(,"entered":)" << counts_.entered << R"(,"missed":)" << counts_.missed << R"(,"came":)"
            << counts_.cameTrue << R"(,"averted":)" << counts_.averted << R"(,"false":)" << counts_.falseAlarm
            << '}';
    output_.endLine();
}

} // namespace ventrel
