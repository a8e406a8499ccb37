#include "platform/machine/sudden_end.h"

#include <cstdlib>
#include <memory>
#include <utility>

namespace ventrel {

namespace {

void atExit(int /*status*/, void* kept) {
    const std::unique_ptr<std::function<void()>> action(static_cast<std::function<void()>*>(kept));
    if (*action) {
        (*action)();
    }
}

} // namespace

SuddenEnd::SuddenEnd(std::function<void()> action) {
    auto kept = std::make_unique<std::function<void()>>(std::move(action));
    if (::on_exit(atExit, kept.get()) == 0) {
        action_ = kept.release();
    }
}

SuddenEnd::~SuddenEnd() {
    if (action_ != nullptr) {
        *action_ = nullptr;
    }
}

} // namespace ventrel
