// The options file during one run of the program: read at the start, written whenever the player has changed
// something, and at the end.
//
// It never writes over what it could not read, and it tells only once of what goes wrong with the file.

#pragma once

#include <filesystem>
#include <functional>
#include <optional>

#include "base/profile_file.h"

namespace ventrel {

class OptionsStore {
public:
    /// Reads the file, which need not be there. With an empty path there is no place to keep options in.
    explicit OptionsStore(std::filesystem::path file);

    /// As the file stood at the start; empty where it could not be read.
    const ProfileFile& atStart() const { return atStart_; }

    /// Whether there was no file at the start, but a place for one: nobody has played here yet.
    bool isFirstStart() const { return isFirstStart_; }

    /// As it stands now; empty where it cannot be read.
    ProfileFile now() const;

    /// Lets `change` set keys on the file as it stands now, and writes it. After a failed read at the start
    /// nothing is ever written: the player's own options stand there still.
    void update(const std::function<void(ProfileFile&)>& change);

    /// What went wrong, for the player, once in the run; none when nothing has or it has been told.
    std::optional<Failure> takeFailure();

private:
    void note(std::string_view what, const Failure& reason);

    std::filesystem::path file_;
    ProfileFile atStart_;
    bool isFirstStart_ = false;
    bool mayWrite_ = true;
    std::optional<Failure> failure_;
    bool wasTold_ = false;
};

} // namespace ventrel
