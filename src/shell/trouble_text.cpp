#include "shell/trouble_text.h"

#include <algorithm>

#include "base/format.h"

namespace ventrel {

namespace {

/// With long paths each takes two lines, and the box must stay on the smaller screen.
constexpr std::size_t mostTold = 10;

} // namespace

std::string troubleText(std::span<const std::string> troubles) {
    std::string text;
    for (const std::string& trouble : troubles.first(std::min(troubles.size(), mostTold))) {
        text += (text.empty() ? "" : "\n") + trouble;
    }
    if (troubles.size() > mostTold) {
        text += FormatText("\n... and %d more.", {static_cast<long>(troubles.size() - mostTold)});
    }
    return text;
}

} // namespace ventrel
