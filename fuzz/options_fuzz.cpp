// The options file's reader and writer against any bytes: nothing crashes, what is set reads back the same,
// and the lines that a person wrote stand as before.

#include <algorithm>
#include <cstdlib>
#include <sstream>
#include <string_view>
#include <vector>

#include "records/options_file.h"

namespace {

using namespace ventrel;

/// The lines that no option can stand in, without their ends.
std::vector<std::string> linesWithoutValue(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        line.erase(line.find_last_not_of('\r') + 1);
        const bool mayHoldValue = line.find('=') != std::string::npos && !line.starts_with(';');
        if (!mayHoldValue) {
            lines.push_back(std::move(line));
        }
    }
    return lines;
}

/// Whether every line stands there still, in the old order; sections may have been added.
bool keepsLines(const std::string& before, const std::string& after) {
    const auto now = linesWithoutValue(after);
    auto at = now.begin();
    for (const std::string& line : linesWithoutValue(before)) {
        at = std::find(at, now.end(), line);
        if (at == now.end()) {
            return false;
        }
        ++at;
    }
    return true;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    auto profile = ProfileFile::fromText("fuzz.ini", text);
    const Options read = ReadOptions(profile);
    const std::string name(text.substr(0, text.find('\n')));
    profile.set("Game", "Name", name);
    const std::string asSet = profile.text("Game", "Name", "");
    WriteOptions(read, profile);
    const auto again = ProfileFile::fromText("fuzz.ini", profile.toText());
    const bool isSame = ReadOptions(again) == read && again.text("Game", "Name", "") == asSet;
    if (!isSame || !keepsLines(text, profile.toText())) {
        std::abort();
    }
    return 0;
}
