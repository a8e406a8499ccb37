// Who plays a game in the player's place: an automatic controller, a recording of somebody's shift. It tells
// which order comes next; whoever runs the game shows it on its way and sends it.

#pragma once

#include <functional>
#include <optional>

#include "sim/clock_seconds.h"
#include "sim/plan.h"
#include "sim/table_index.h"

namespace ventrel {

struct Game;
class SimulationEvents;

/// At a time at which a step acts, which of the two comes first.
enum class OrderMoment { afterStep, beforeStep };

/// An order that is to be sent while the clock stands at that time.
struct SteeredOrder {
    ClockSeconds at;
    FlightIndex flight;
    PanelOrder order;
    OrderMoment moment = OrderMoment::afterStep;

    friend bool operator==(const SteeredOrder&, const SteeredOrder&) = default;
};

/// Told of an order that is about to be sent.
using OrderSight = std::function<void(const SteeredOrder&)>;

class StandIn {
public:
    StandIn() = default;
    StandIn(const StandIn&) = delete;
    StandIn& operator=(const StandIn&) = delete;
    virtual ~StandIn() = default;

    /// A step has acted: who decides by what he sees decides now.
    virtual void stepActed(const Game& /*game*/) {}
    /// The next order, known some seconds ahead so that it can be shown on its way; none while none is known.
    /// Never earlier than one that was sent; one whose time has gone by is sent at once.
    virtual std::optional<SteeredOrder> next() const = 0;
    /// That order has been sent, or its flight is gone.
    virtual void nextIsDone() = 0;

    /// Whether it plays the whole game, from a record of it: then steps, orders, lamps and draws come from
    /// `play` alone.
    virtual bool isWhole() const { return false; }
    /// Of one that does: plays all that has come by the game's clock, and tells of each order first.
    virtual void play(Game& /*game*/, SimulationEvents& /*events*/, const OrderSight& /*sending*/) {}
};

} // namespace ventrel
