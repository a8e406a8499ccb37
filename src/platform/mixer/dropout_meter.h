// Tells a sound device that runs dry by how much less than the clock's time it asks for.
//
// Devices ask in bursts, so a long time between two calls alone means nothing: what counts is the call of a
// stretch that comes least late. When that one, too, is later than before, time has been lost for good.

#pragma once

#include <atomic>
#include <cstddef>
#include <limits>

namespace ventrel {

class DropoutMeter {
public:
    /// `rate`: of the device, frames a second.
    explicit DropoutMeter(int rate) : rate_(rate) {}

    /// Before a device begins to ask; not while one does.
    void reset();

    /// The device's side: it asks for so many frames. `now`: seconds of a clock that never stands still.
    void noteCall(double now, std::size_t frames);

    /// The loop's side: seconds of silence that nobody meant since the last time, within a few milliseconds.
    double takeLost();

private:
    static constexpr float never = std::numeric_limits<float>::max();

    const double rate_;
    double due_ = 0; ///< when the next call is due; 0: none has come yet. Of the device's side alone
    std::atomic<float> least_{never}; ///< lateness of the least late call since the last time, in seconds
    float before_ = never;            ///< the same of the time before that. Of the loop's side alone
};

} // namespace ventrel
