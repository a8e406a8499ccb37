// Pieces of JSON that the trace and the interactive game share.

#pragma once

#include <optional>

#include "sim/game.h"
#include "tools/sim/output.h"
#include "tools/sim/recorder.h"

namespace ventrel {

/// Writes the elements with commas between them.
template <typename Range, typename Write>
void writeList(Output& output, const Range& range, Write write) {
    bool isFirst = true;
    for (const auto& element : range) {
        if (!isFirst) {
            output << ',';
        }
        isFirst = false;
        write(element);
    }
}

/// A map point as an object.
void writePoint(Output& output, const Vor& vor);

/// The place in its table; -1 for none.
template <typename Index>
int numberOrNone(const std::optional<Index>& index) {
    return index ? index->number() : -1;
}

/// 0 when every flight was handled, -1 after a collision, 1 when the time was up.
int resultNumber(const RunResult& result);

} // namespace ventrel
