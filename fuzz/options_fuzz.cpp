// The options file's reader against any bytes: nothing crashes, and what is set reads back the same.

#include <cstdlib>
#include <string_view>

#include "sim/options.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace ventrel;
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    auto profile = ProfileFile::fromText("fuzz.ini", text);
    const Options read = ReadOptions(profile);
    const std::string name(text.substr(0, text.find('\n')));
    profile.set("Game", "Name", name);
    const std::string asSet = profile.text("Game", "Name", "");
    WriteOptions(read, profile);
    const auto again = ProfileFile::fromText("fuzz.ini", profile.toText());
    const bool isSame = ReadOptions(again) == read && again.text("Game", "Name", "") == asSet;
    if (!isSame) {
        std::abort();
    }
    return 0;
}
