#include "tools/chart/distance.h"

#include <cmath>
#include <limits>

namespace ventrel::chart {

namespace {

constexpr float farAway = 1e9F; // squared pixels

/// The lower envelope of parabolas that stand on a row's values (Felzenszwalb and Huttenlocher): replaces
/// each value by the least of all values of the row, with the square of the way to it added.
class Envelope {
public:
    explicit Envelope(std::size_t length) : places_(length), starts_(length + 1), row_(length) {}

    std::vector<float>& row() { return row_; }

    void run() {
        std::size_t top = 0;
        places_[0] = 0;
        starts_[0] = -std::numeric_limits<double>::infinity();
        starts_[1] = std::numeric_limits<double>::infinity();
        for (std::size_t q = 1; q < row_.size(); ++q) {
            double start = meeting(places_[top], q);
            while (start <= starts_[top]) {
                --top;
                start = meeting(places_[top], q);
            }
            ++top;
            places_[top] = q;
            starts_[top] = start;
            starts_[top + 1] = std::numeric_limits<double>::infinity();
        }
        lower();
    }

private:
    double raised(std::size_t place) const {
        const auto p = static_cast<double>(place);
        return static_cast<double>(row_[place]) + p * p;
    }
    /// Where the later parabola sinks below the earlier one.
    double meeting(std::size_t earlier, std::size_t later) const {
        return (raised(later) - raised(earlier)) / (2 * static_cast<double>(later - earlier));
    }

    void lower() {
        const std::vector<float> before = row_;
        std::size_t k = 0;
        for (std::size_t q = 0; q < row_.size(); ++q) {
            while (starts_[k + 1] < static_cast<double>(q)) {
                ++k;
            }
            const double way = static_cast<double>(q) - static_cast<double>(places_[k]);
            row_[q] = static_cast<float>(way * way + static_cast<double>(before[places_[k]]));
        }
    }

    std::vector<std::size_t> places_;
    std::vector<double> starts_;
    std::vector<float> row_;
};

} // namespace

Plane distanceTo(Side side, const Plane& covered) {
    const int length = covered.side();
    Plane distance(length);
    Envelope envelope(static_cast<std::size_t>(length));
    for (int x = 0; x < length; ++x) {
        for (int y = 0; y < length; ++y) {
            const bool isCovered = covered.at(x, y) >= 0.5F;
            envelope.row()[static_cast<std::size_t>(y)] = isCovered == (side == Side::covered) ? 0 : farAway;
        }
        envelope.run();
        for (int y = 0; y < length; ++y) {
            distance.at(x, y) = envelope.row()[static_cast<std::size_t>(y)];
        }
    }
    for (int y = 0; y < length; ++y) {
        const auto row = distance.row(y);
        envelope.row().assign(row.begin(), row.end());
        envelope.run();
        for (int x = 0; x < length; ++x) {
            distance.at(x, y) = std::sqrt(envelope.row()[static_cast<std::size_t>(x)]);
        }
    }
    return distance;
}

} // namespace ventrel::chart
