// Only one copy of the program runs for a player at a time.

#pragma once

#include <filesystem>

namespace ventrel {

/// Holds a file of the player's own for as long as it lives. The system lets go of it when the process ends,
/// however that happens.
class InstanceLock {
public:
    /// Makes the file when it is missing, so that nobody but the player can open it.
    explicit InstanceLock(const std::filesystem::path& file);
    ~InstanceLock();
    InstanceLock(const InstanceLock&) = delete;
    InstanceLock& operator=(const InstanceLock&) = delete;

    /// Whether another process of this player holds it. Where no lock can be made, and where the file is
    /// somebody else's, nobody is shut out.
    bool isTaken() const { return isTaken_; }

private:
    int file_ = -1;
    bool isTaken_ = false;
};

} // namespace ventrel
