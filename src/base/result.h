// The one way in which an operation fails: it returns what it made, or why it could not.
//
// A failure is finished words for the person in front of the screen; the shell shows them in a message box,
// the command-line tools write them to standard error. Nothing below them reports by itself.

#pragma once

#include <string>
#include <utility>

#include <tl/expected.hpp>

#include "base/failure.h"

namespace ventrel {

/// Why something could not be done. The text (Windows-1252) names the file or the input, and the reason.
struct Failure {
    std::string text;
    MessageIcon icon = MessageIcon::stop;

    friend bool operator==(const Failure&, const Failure&) = default;
};

/// A value, or the failure in its place: the only word of what went wrong, which the compiler lets nobody
/// drop.
template <typename Value = void>
class [[nodiscard]] Result : public tl::expected<Value, Failure> {
public:
    using tl::expected<Value, Failure>::expected;
};

/// `return failed(...)` from an operation that returns any Result.
inline tl::unexpected<Failure> failed(std::string text, MessageIcon icon = MessageIcon::stop) {
    return tl::unexpected(Failure{std::move(text), icon});
}

} // namespace ventrel
