// ventrel-hear: lets a recogniser hear the pilots' calls, and keeps the table of how well it understood them.

#include <cstdio>
#include <string>
#include <vector>

#include "base/windows1252.h"
#include "tools/sound/voice_report.h"

namespace {

using namespace ventrel;
namespace fs = std::filesystem;

constexpr int success = 0;
constexpr int failure = 1;
constexpr int wrongUsage = 2;
constexpr int callsOfVoice = 48;
constexpr std::size_t firstRecipe = 5;

constexpr const char* usage =
    "Usage: ventrel-hear SCRIPT VOICES WORK DOCUMENT RECIPE...\n"
    "\n"
    "Hears 48 calls of each voice whose recipe is named, joined from the snippets in\n"
    "VOICES/RECIPE'S NAME, and writes the table of DOCUMENT ('-': only shows it).\n"
    "What was misheard stands in WORK afterwards. Needs pocketsphinx and its model of\n"
    "American English (packages pocketsphinx and pocketsphinx-en-us).\n";

Result<std::string> tableOf(const std::vector<std::string>& words) {
    const auto script = sound::readScript(words[1]);
    if (!script) {
        return tl::unexpected(script.error());
    }
    const std::vector<sound::Call> calls = sound::sampleCalls(callsOfVoice);
    std::string table = sound::reportHeader();
    for (std::size_t i = firstRecipe; i < words.size(); ++i) {
        const fs::path recipe = words[i];
        const fs::path voice = fs::path(words[2]) / recipe.stem();
        const auto understood = sound::hear(voice, calls, *script, fs::path(words[3]) / recipe.stem());
        if (!understood) {
            return tl::unexpected(understood.error());
        }
        const auto line = sound::reportLine(recipe, voice, *understood);
        if (!line) {
            return line;
        }
        std::fputs(line->c_str(), stdout);
        std::fflush(stdout);
        table += *line;
    }
    return table;
}

int complain(const Failure& reason) {
    std::fprintf(stderr, "ventrel-hear: %s\n", toTerminal(reason.text).c_str());
    return failure;
}

} // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> words(argv, argv + argc);
    if (words.size() <= firstRecipe) {
        std::fputs(usage, stderr);
        return wrongUsage;
    }
    const auto table = tableOf(words);
    if (!table) {
        return complain(table.error());
    }
    if (words[4] != "-") {
        if (const auto replaced = sound::replaceTable(words[4], *table); !replaced) {
            return complain(replaced.error());
        }
    }
    return success;
}
