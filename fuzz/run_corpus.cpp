// Runs a fuzz target once over every file of a folder, in builds without libFuzzer.

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>

#include "base/whole_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argc, char** argv) {
    constexpr std::size_t largestInput = std::size_t{1} << 24;
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s CORPUS_FOLDER\n", argv[0]);
        return 2;
    }
    int count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(argv[1])) {
        const auto content = ventrel::readFileStart(entry.path(), largestInput);
        if (content) {
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(content->data()), content->size());
            ++count;
        }
    }
    std::printf("%d inputs run\n", count);
    return count > 0 ? 0 : 1;
}
