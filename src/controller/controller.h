// An automatic controller: it watches a game and says which orders a good player would send.
//
//     const Controller controller{game};
//     while (step(game)) {
//         for (const ControllerOrder& next : controller.decide(game)) {
//             executeOrder(game, next.flight, next.order);
//         }
//     }
//
// It knows what a player sees and plays by the same orders, charged alike. Who writes another one finds here
// what it takes: look at the game after a step, try plans on copies of a flight (`planOrder`), compare what
// they will lose (`Traffic`), and send what is best.

#pragma once

#include <vector>

#include "controller/approach.h"
#include "controller/track.h"
#include "sim/game.h"

namespace ventrel {

struct ControllerOrder {
    FlightIndex flight;
    PanelOrder order; ///< to a flight that waits for take-off its clearance

    friend bool operator==(const ControllerOrder&, const ControllerOrder&) = default;
};

class Controller {
public:
    /// Learns the ways to the runways in use in the game, whose shift is set up. Keeps no reference to it.
    /// It looks so many steps of 15 clock seconds ahead, from 1 to `stepsAhead`: the fewer, the more hurried
    /// a player it stands for.
    explicit Controller(const Game& game, int lookAhead = stepsAhead);

    /// The orders to send now, after a step, in this order; all of them are accepted. Draws nothing,
    /// remembers nothing: the same game gets the same orders.
    std::vector<ControllerOrder> decide(Game game) const;

private:
    int lookAhead_;
    std::vector<Approach> approaches_; // by map point
};

} // namespace ventrel
