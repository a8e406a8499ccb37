// Only one copy of the program runs for a player at a time.

#pragma once

#include <string_view>

namespace ventrel {

/// Holds a name for as long as it lives. The system lets go of it when the process ends, however that
/// happens.
class InstanceLock {
public:
    explicit InstanceLock(std::string_view name);
    ~InstanceLock();
    InstanceLock(const InstanceLock&) = delete;
    InstanceLock& operator=(const InstanceLock&) = delete;

    /// Whether another process of this player holds the name. Where no lock can be made nobody is shut out.
    bool isTaken() const { return isTaken_; }

private:
    int file_ = -1;
    bool isTaken_ = false;
};

} // namespace ventrel
