// ventrel-art: writes the program's drawings as SVG, and makes its pictures from what was rendered of them.

#include <cstdio>
#include <string>
#include <vector>

#include "base/whole_file.h"
#include "tools/art/commands.h"

namespace {

using namespace ventrel;

constexpr int success = 0;
constexpr int failure = 1;
constexpr int wrongUsage = 2;
constexpr std::size_t largestMaterials = std::size_t{1} << 20;

constexpr const char* usage =
    "Draws the pictures of Ventrel.\n"
    "\n"
    "    ventrel-art list                               the names of all drawings\n"
    "    ventrel-art draw NAME MATERIALS OUT.svg        one of them as a drawing\n"
    "    ventrel-art convert IN.png OUT                 a rendered picture as the program reads it\n"
    "    ventrel-art frame CONSOLE.png OUT              the radar's frame, cut out of a rendered console\n"
    "    ventrel-art key ONBLACK.png ONWHITE.png OUT    a picture with clear parts, from two renderings\n"
    "\n"
    "Exit status: 0 done; 1 a file cannot be read or written; 2 wrong usage.\n";

int draw(const std::string& name, const std::string& materials, const std::string& target) {
    const auto content = readFileStart(materials, largestMaterials);
    if (!content) {
        std::fprintf(stderr, "ventrel-art: %s cannot be opened\n", materials.c_str());
        return failure;
    }
    const std::string text =
        art::drawing(name, {reinterpret_cast<const char*>(content->data()), content->size()});
    if (text.empty()) {
        std::fprintf(stderr, "ventrel-art: there is no drawing '%s'\n", name.c_str());
        return wrongUsage;
    }
    if (!replaceFile(target, std::as_bytes(std::span(text)))) {
        std::fprintf(stderr, "ventrel-art: %s cannot be written\n", target.c_str());
        return failure;
    }
    return success;
}

int statusOf(bool succeeded) {
    return succeeded ? success : failure;
}

} // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> words(argv + 1, argv + argc);
    const auto isCommand = [&](const char* name, std::size_t operands) {
        return words.size() == operands + 1 && words.front() == name;
    };
    if (isCommand("list", 0)) {
        for (const std::string& name : art::drawingNames()) {
            std::puts(name.c_str());
        }
        return success;
    }
    if (isCommand("draw", 3)) {
        return draw(words[1], words[2], words[3]);
    }
    if (isCommand("convert", 2)) {
        return statusOf(art::convertPicture(words[1], words[2]));
    }
    if (isCommand("frame", 2)) {
        return statusOf(art::cutRadarFrame(words[1], words[2]));
    }
    if (isCommand("key", 3)) {
        return statusOf(art::keyPicture(words[1], words[2], words[3]));
    }
    const bool wantsHelp = isCommand("--help", 0);
    std::fputs(usage, wantsHelp ? stdout : stderr);
    return wantsHelp ? success : wrongUsage;
}
