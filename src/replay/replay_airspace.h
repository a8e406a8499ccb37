// Where the airspace of a replay is found again.

#pragma once

#include <filesystem>
#include <span>

#include "base/result.h"
#include "replay/replay.h"
#include "sim/airspace.h"

namespace ventrel {

/// The file of the header's name with the header's checksum, out of the first of the folders that has it;
/// folders without a path are passed over. Fails by the file's name, and why it is not the one.
Result<AirspacePtr> findReplayAirspace(const ReplayHeader& header,
                                       std::span<const std::filesystem::path> folders);

} // namespace ventrel
