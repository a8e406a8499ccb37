// Enters a score into a table, for the script that kills it meanwhile:
//
//     enter_score FILE NAME SCORE

#include <cstdio>
#include <cstdlib>
#include <span>

#include "shell/high_scores.h"

int main(int count, char** words) {
    using namespace ventrel;
    const std::span<char*> arguments(words, words + count);
    if (arguments.size() != 4) {
        return EXIT_FAILURE;
    }
    const std::filesystem::path file = arguments[1];
    const auto made = makeHighScoreFile(file);
    const auto place = InsertHighScore(file, {arguments[2], std::atoi(arguments[3]), "New York"});
    return made && place && place->row && place->saved ? EXIT_SUCCESS : EXIT_FAILURE;
}
