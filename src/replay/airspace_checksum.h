// A number that tells whether two airspaces are the same to the simulation.

#pragma once

#include <cstdint>

#include "sim/airspace.h"

namespace ventrel {

/// 64-bit FNV-1a over what a shift is made from: the window's width, and of every map point ident, place,
/// kind and runway. Names, colours, labels and the picture may differ.
std::uint64_t airspaceChecksum(const Airspace& airspace);

} // namespace ventrel
