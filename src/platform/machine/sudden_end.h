// What must still be done when the process exits from within a library, as the window system's does when the
// screen is lost.

#pragma once

#include <functional>

namespace ventrel {

class SuddenEnd {
public:
    /// `action` is called when the process exits while this lives. It must not touch what has been lost.
    explicit SuddenEnd(std::function<void()> action);
    /// From now on the end is no longer sudden.
    ~SuddenEnd();
    SuddenEnd(const SuddenEnd&) = delete;
    SuddenEnd& operator=(const SuddenEnd&) = delete;

private:
    std::function<void()>* action_ =
        nullptr; // the system's to give away at the exit; none where it has no room
};

} // namespace ventrel
