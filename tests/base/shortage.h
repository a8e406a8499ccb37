// A machine that has too little of something, for as long as the object lives.

#pragma once

#include <sys/resource.h>
#include <unistd.h>

#include <csignal>
#include <fstream>

namespace ventrel {

/// The program gets no more of a resource than that.
class Shortage {
public:
    Shortage(__rlimit_resource resource, rlim_t most) : resource_(resource) {
        ::getrlimit(resource_, &before_);
        const rlimit wanted{most, before_.rlim_max};
        ::setrlimit(resource_, &wanted);
    }
    ~Shortage() { ::setrlimit(resource_, &before_); }
    Shortage(const Shortage&) = delete;
    Shortage& operator=(const Shortage&) = delete;

private:
    __rlimit_resource resource_;
    rlimit before_{};
};

/// No file can grow.
class FullDisk {
public:
    ~FullDisk() { std::signal(SIGXFSZ, handler_); }

private:
    void (*handler_)(int) = std::signal(SIGXFSZ, SIG_IGN);
    Shortage files_{RLIMIT_FSIZE, 1};
};

/// So many bytes can be had on top of what the program has. Not where sanitizers take memory of their own.
class LittleMemory {
public:
    explicit LittleMemory(rlim_t more) : memory_(RLIMIT_AS, taken() + more) {}

private:
    static rlim_t taken() {
        rlim_t pages = 0;
        std::ifstream("/proc/self/statm") >> pages;
        return pages * static_cast<rlim_t>(::sysconf(_SC_PAGESIZE));
    }
    Shortage memory_;
};

} // namespace ventrel
