#include "sim/event_watch.h"

#include <cstddef>

#include "sim/game.h"

namespace ventrel {

EventWatch::Business EventWatch::businessOf(const Flight& flight) {
    const PlanStep& now = flight.current();
    return {.isOnGround = !flight.isAirborne(),
            .changesAltitude = now.altitude != flight.lastStep().altitude,
            .hasCourseLeft = !now.hold && flight.planIndex < flight.plan.length() - 1,
            .holds = now.hold};
}

void EventWatch::begin(const Game& game) {
    isTold_ = false;
    business_.clear();
    for (const Flight& flight : game.flights) {
        business_.push_back(businessOf(flight));
    }
}

bool EventWatch::hasHappened(const Game& game) const {
    bool isDone = isTold_ || business_.size() != game.flights.size();
    for (std::size_t place = 0; !isDone && place < business_.size(); ++place) {
        const Business& before = business_[place];
        const Business now = businessOf(game.flights[place]);
        isDone =
            game.flights[place].isOnScope() &&
            ((before.isOnGround && !now.isOnGround) || (before.changesAltitude && !now.changesAltitude) ||
             (before.hasCourseLeft && !now.hasCourseLeft) || (!before.holds && now.holds));
    }
    return isDone;
}

} // namespace ventrel
