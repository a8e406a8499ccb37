// The folder of the player's replays: the latest shifts, kept by themselves, and those kept by name.

#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "base/result.h"
#include "replay/replay.h"

namespace ventrel {

inline constexpr std::string_view replayFolderName = "replays";
inline constexpr std::string_view replayExtension = ".replay";

/// So many shifts are kept by themselves; of more the oldest go.
inline constexpr int replaysKept = 20;
/// Bytes of a name, without the extension.
inline constexpr std::size_t longestReplayName = 100;

/// A file in the folder for a shift that began then, which is not there yet: "shift 2026-11-25
/// 12-30-05.replay".
std::filesystem::path freshReplayFile(const std::filesystem::path& folder, UtcMoment begun);

/// Makes room for one more shift: of those that are kept by themselves the oldest go. What cannot be deleted
/// stays.
void makeRoomForReplay(const std::filesystem::path& folder);

struct KeptReplay {
    std::filesystem::path file;
    Result<Replay> replay;
    bool isKeptByName = false;
};

/// All of the folder, the latest first, those that cannot be read last; empty without a folder.
std::vector<KeptReplay> listReplays(const std::filesystem::path& folder);

/// Renames a replay to one that is kept until the player deletes it; its new file. `name` is UTF-8. Fails
/// for a name that no file can have, or that one of the folder has already, or that shifts are kept by
/// themselves under.
Result<std::filesystem::path> keepReplayAs(const std::filesystem::path& file, std::string_view name);

/// Fails by name when the file cannot be deleted.
Result<> deleteReplay(const std::filesystem::path& file);

} // namespace ventrel
