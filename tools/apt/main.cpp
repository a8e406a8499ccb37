// ventrel-apt: compiles airspaces from text, checks them, and prints them as text again.

#include <cstdio>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "sim/grid.h"
#include "tools/apt/commands.h"

namespace {

using namespace ventrel;

constexpr int wrongUsage = 2;

constexpr const char* usage =
    "Makes airspaces for Ventrel.\n"
    "\n"
    "    ventrel-apt build SOURCE.toml -o FILE.apt --width 800|1024\n"
    "        compiles a text source for one screen layout\n"
    "    ventrel-apt check FILE...\n"
    "        names every problem that a player would meet in airport files or sources; silent when there is "
    "none\n"
    "    ventrel-apt show FILE.apt [--picture OUT.jpg]\n"
    "        prints a file as a source; its picture goes to OUT.jpg\n"
    "    ventrel-apt --help\n"
    "\n"
    "Exit status: 0 all is well; 1 a file has problems or cannot be read or written; 2 wrong usage.\n"
    "The source format is described in docs/formats.md.\n";

/// The words after the command, options taken out.
struct Arguments {
    std::vector<std::filesystem::path> files;
    std::optional<std::string> output;
    std::optional<std::string> width;
    std::optional<std::string> picture;
};

int refuse(const std::string& reason) {
    std::fprintf(stderr, "ventrel-apt: %s\nventrel-apt --help tells more.\n", reason.c_str());
    return wrongUsage;
}

/// Sorts the words. On failure returns the reason.
std::optional<std::string> sortWords(const std::vector<std::string>& words, Arguments& arguments) {
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string& word = words[i];
        std::optional<std::string>* option = word == "-o"          ? &arguments.output
                                             : word == "--width"   ? &arguments.width
                                             : word == "--picture" ? &arguments.picture
                                                                   : nullptr;
        if (option == nullptr) {
            if (word.starts_with('-')) {
                return "unknown option '" + word + "'";
            }
            arguments.files.emplace_back(word);
        } else if (i + 1 == words.size()) {
            return "'" + word + "' needs a value";
        } else {
            *option = words[++i];
        }
    }
    return std::nullopt;
}

int runBuild(const Arguments& a) {
    if (a.files.size() != 1 || !a.output || !a.width || a.picture) {
        return refuse("build takes SOURCE.toml -o FILE.apt --width 800|1024");
    }
    for (const ScopeLayout& layout : {smallLayout, largeLayout}) {
        if (*a.width == std::to_string(layout.windowWidth)) {
            return apt::build(a.files.front(), *a.output, layout.windowWidth);
        }
    }
    return refuse("the width '" + *a.width + "' is neither 800 nor 1024");
}

int runCheck(const Arguments& a) {
    if (a.files.empty() || a.output || a.width || a.picture) {
        return refuse("check takes one or more files");
    }
    return apt::check(a.files);
}

int runShow(const Arguments& a) {
    if (a.files.size() != 1 || a.output || a.width) {
        return refuse("show takes one airport file");
    }
    return apt::show(a.files.front(), a.picture.value_or(""));
}

} // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> words(argv + 1, argv + argc);
    if (words.empty()) {
        return refuse("a command is missing");
    }
    if (words.front() == "--help" || words.front() == "-h") {
        std::fputs(usage, stdout);
        return 0;
    }
    Arguments arguments;
    if (const auto reason = sortWords({words.begin() + 1, words.end()}, arguments)) {
        return refuse(*reason);
    }
    if (words.front() == "build") {
        return runBuild(arguments);
    }
    if (words.front() == "check") {
        return runCheck(arguments);
    }
    if (words.front() == "show") {
        return runShow(arguments);
    }
    return refuse("unknown command '" + words.front() + "'");
}
