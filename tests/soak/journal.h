// What the monkey has done: the latest inputs for whoever is told of a finding, and all of an evening in a
// file for whoever finds the program dead.

#pragma once

#include <deque>
#include <filesystem>
#include <fstream>
#include <string>

namespace ventrel {

class Journal {
public:
    /// Every line goes at once into that file; an empty path keeps the latest alone.
    explicit Journal(std::filesystem::path file) : path_(std::move(file)) {}

    /// Forgets the evening before.
    void begin(const std::string& line) {
        latest_.clear();
        if (!path_.empty()) {
            file_ = std::ofstream(path_);
        }
        note(line);
    }

    void note(const std::string& line) {
        latest_.push_back(line);
        if (latest_.size() > kept) {
            latest_.pop_front();
        }
        if (file_.is_open()) {
            file_ << line << std::endl; // whatever kills the program comes without warning
        }
    }

    const std::deque<std::string>& latest() const { return latest_; }

private:
    static constexpr std::size_t kept = 30;

    std::filesystem::path path_;
    std::ofstream file_;
    std::deque<std::string> latest_;
};

} // namespace ventrel
