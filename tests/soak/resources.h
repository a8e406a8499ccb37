// What this process has taken from the machine.

#pragma once

#include <cstddef>

namespace ventrel {

/// Bytes that have been allocated and not given back.
std::size_t bytesInUse();
/// Bytes of memory that the process occupies.
std::size_t residentBytes();
/// Files that it holds open.
int openFiles();

} // namespace ventrel
