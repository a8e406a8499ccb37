// Where the monkey's hand goes.

#pragma once

#include <optional>

#include "shell/program.h"
#include "tests/soak/chance.h"
#include "tests/soak/hand.h"
#include "tests/soak/machine.h"

namespace ventrel {

/// What a gesture sees and may touch.
struct Scene {
    Program& program;
    SoakMachine& machine;
    Hand& hand;
    Chance& chance;
};

/// Points of the desktop. Of windows one on something that can be seen; none where no flight is on the scope.
Point anywhere(Scene& scene);
Point onSomething(Scene& scene);
std::optional<Point> onSomeFlight(Scene& scene);

} // namespace ventrel
