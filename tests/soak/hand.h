// The monkey's hand: what a person does at the machine, written into the journal as it is done.

#pragma once

#include "platform/headless/script.h"
#include "tests/soak/journal.h"

namespace ventrel {

class Hand {
public:
    Hand(HeadlessBackend& backend, Journal& journal) : script_(backend), journal_(journal) {}

    void wait(Millis duration);
    void then(std::function<void()> action) { script_.then(std::move(action)); }

    void moveTo(Point place);
    void press(Point place, MouseButton button);
    void release(Point place, MouseButton button);
    void click(Point place, MouseButton button = MouseButton::left);
    void doubleClick(Point place);
    void drag(Point from, Point to);
    void wheel(Point place, int notches);
    void key(Key key, Modifiers modifiers = {});
    void type(std::string_view text);
    void window(WindowEvent event);

private:
    Script script_;
    Journal& journal_;
};

} // namespace ventrel
