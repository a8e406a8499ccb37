#include "radar/tag_order.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

#include "map_geometry/map_geometry.h"
#include "radar/flight_marks.h"

namespace ventrel {

namespace {

// What a place costs: pixels by what they hide, and how little one likes the place itself.
constexpr int perTagPixel = 3;
constexpr int perSymbolPixel = 4;
constexpr int perLandmarkPixel = 1;
constexpr int perCornerOutside = 2000;
constexpr int perRank = 6;

constexpr int tooMuch = std::numeric_limits<int>::max();

/// By so much another place must be better before a tag goes there.
constexpr int patience = 80;
/// Pixels around the usual place that must be free before a tag goes back.
constexpr int returnRoom = 8;
/// Pixels by which a tag stays off the scope's edge.
constexpr int rimGap = 2;
constexpr int rounds = 2;

/// Something that a tag should not hide.
struct Obstacle {
    Rect box;
    int perPixel; ///< what each of its pixels costs
};

/// The tags as they stand at present.
struct Arrangement {
    TagOrder& order;
    const TagSurroundings& around;
    Size reach = {};                         ///< of the tag that may reach the farthest
    std::vector<Rect> boxes = {};            ///< of the flights in their order
    std::vector<std::size_t> downwards = {}; ///< the flights from the top of the scope to its bottom
    std::vector<char> mayMove = {};          ///< by flight: something near it has changed since it was asked
    std::vector<Obstacle> near = {};         ///< what may be in the way of the tag that is asked about

    const TaggedFlight& flight(std::size_t number) const { return order.flights[number]; }
    std::uint8_t& place(const TaggedFlight& flight) const { return order.places[flight.flight.place()]; }
};

int overlap(const Rect& a, const Rect& b) {
    const int width = std::min(a.right, b.right) - std::max(a.left, b.left);
    const int height = std::min(a.bottom, b.bottom) - std::max(a.top, b.top);
    return width > 0 && height > 0 ? width * height : 0;
}

/// As far as a flight's tag may reach.
Rect reachOf(const TaggedFlight& flight) {
    const Size reach = tagReach(flight.tag);
    return {flight.at.x - reach.width, flight.at.y - reach.height, flight.at.x + reach.width,
            flight.at.y + reach.height};
}

/// The flights that are not too far above or below for their tags to come near that flight's; with itself.
std::span<const std::size_t> flightsNear(const Arrangement& all, const TaggedFlight& flight) {
    const auto height = [&](std::size_t number) { return all.flight(number).at.y; };
    const int far = 2 * all.reach.height;
    const auto first = std::ranges::lower_bound(all.downwards, flight.at.y - far, {}, height);
    const auto last = std::ranges::upper_bound(first, all.downwards.end(), flight.at.y + far, {}, height);
    return {first, last};
}

bool isBeside(const Arrangement& all, const TaggedFlight& a, const TaggedFlight& b) {
    return std::abs(a.at.x - b.at.x) < 2 * all.reach.width;
}

void gatherNear(Arrangement& all, std::size_t self) {
    all.near.clear();
    const Rect area = reachOf(all.flight(self));
    const auto add = [&](const Rect& box, int perPixel) {
        if (overlap(box, area) > 0) {
            all.near.push_back({box, perPixel});
        }
    };
    for (const std::size_t other : flightsNear(all, all.flight(self))) {
        const TaggedFlight& flight = all.flight(other);
        if (other != self && isBeside(all, flight, all.flight(self))) {
            add(all.boxes[other], perTagPixel);
            add(symbolBox(flight.at), perSymbolPixel);
            if (flight.hasBracket) {
                add(bracketBox(flight.at), perSymbolPixel);
            }
        }
    }
    for (const Rect& mark : all.around.landmarks) {
        add(mark, perLandmarkPixel);
    }
}

/// What of it a tag there hides, by its cost; not counted on beyond `enough`.
int hidden(const Arrangement& all, const Rect& box, int enough) {
    int sum = 0;
    for (std::size_t i = 0; i < all.near.size() && sum < enough; ++i) {
        sum += overlap(box, all.near[i].box) * all.near[i].perPixel;
    }
    return sum;
}

int cornersOutside(const Arrangement& all, const Rect& box) {
    return cornersOutside(all.around.scope.grownBy(-rimGap), box);
}

/// How little one likes the place itself.
int rankOf(std::size_t place) {
    return static_cast<int>(place) * perRank;
}

/// What the place costs; at least `enough` where it is that much.
int costAt(const Arrangement& all, const TaggedFlight& self, std::size_t place, int enough = tooMuch) {
    const Rect box = tagStand(self.tag, self.at, place).box;
    int cost = rankOf(place) + cornersOutside(all, box) * perCornerOutside;
    // Both lines of the usual place are clear of the flight's own bracket, if not the box around them.
    if (self.hasBracket && place != usualTagPlace) {
        cost += overlap(box, bracketBox(self.at)) * perSymbolPixel;
    }
    return cost + hidden(all, box, enough - cost);
}

bool mayReturn(const Arrangement& all, const TaggedFlight& self) {
    const Rect box = tagStand(self.tag, self.at, usualTagPlace).box.grownBy(returnRoom);
    return cornersOutside(all, box) == 0 && hidden(all, box, 1) == 0;
}

std::size_t cheapestPlace(const Arrangement& all, const TaggedFlight& self) {
    std::size_t best = usualTagPlace;
    int least = tooMuch;
    for (std::size_t place = 0; place < tagPlaces && rankOf(place) < least; ++place) {
        if (const int cost = costAt(all, self, place, least); cost < least) {
            best = place;
            least = cost;
        }
    }
    return best;
}

/// The place to stand at now. A tag that is in nobody's way only ever goes back to the usual one.
std::size_t placeFor(const Arrangement& all, const TaggedFlight& self) {
    const std::size_t now = all.place(self);
    if (now != usualTagPlace && mayReturn(all, self)) {
        return usualTagPlace;
    }
    const int cost = costAt(all, self, now);
    if (cost <= rankOf(now)) {
        return now;
    }
    const std::size_t best = cheapestPlace(all, self);
    return costAt(all, self, best) + patience < cost ? best : now;
}

/// The tag goes to that place, and whoever stood beside it before or does now is asked once more.
void moveTag(Arrangement& all, std::size_t number, std::size_t place) {
    const TaggedFlight& self = all.flight(number);
    const Rect left = all.boxes[number];
    const Rect taken = tagStand(self.tag, self.at, place).box;
    all.place(self) = static_cast<std::uint8_t>(place);
    all.boxes[number] = taken;
    for (const std::size_t other : flightsNear(all, self)) {
        const Rect area = reachOf(all.flight(other));
        if (other != number && (area.intersects(left) || area.intersects(taken))) {
            all.mayMove[other] = 1;
        }
    }
}

/// Asks the tag whether another place is better.
void reconsider(Arrangement& all, std::size_t number) {
    all.mayMove[number] = 0;
    const TaggedFlight& self = all.flight(number);
    gatherNear(all, number);
    if (const std::size_t place = placeFor(all, self); place != all.place(self)) {
        moveTag(all, number, place);
    }
}

/// The flights where they are, their tags at the places before.
Arrangement beginArrangement(TagOrder& order, const TagSurroundings& around) {
    Arrangement all{order, around};
    const std::size_t count = order.flights.size();
    all.mayMove.assign(count, 1);
    all.boxes.reserve(count);
    for (const TaggedFlight& flight : order.flights) {
        const Size reach = tagReach(flight.tag);
        all.reach = {std::max(all.reach.width, reach.width), std::max(all.reach.height, reach.height)};
        all.downwards.push_back(all.boxes.size());
        all.boxes.push_back(tagStand(flight.tag, flight.at, all.place(flight)).box);
    }
    std::ranges::sort(all.downwards, {}, [&](std::size_t number) { return all.flight(number).at.y; });
    return all;
}

/// Flights that have gone leave nothing behind.
void keepPlaces(TagOrder& order) {
    const std::vector<std::uint8_t> before = std::move(order.places);
    const std::size_t count = order.flights.empty() ? 0 : order.flights.back().flight.place() + 1;
    order.places.assign(count, usualTagPlace);
    for (const TaggedFlight& flight : order.flights) {
        const std::size_t number = flight.flight.place();
        if (number < before.size()) {
            order.places[number] = before[number];
        }
    }
}

} // namespace

std::size_t tagPlaceOf(const TagOrder& order, FlightIndex flight) {
    const std::size_t number = flight.place();
    return number < order.places.size() ? order.places[number] : usualTagPlace;
}

void arrangeTags(TagOrder& order, std::vector<TaggedFlight> flights, const TagSurroundings& around) {
    if (flights == order.flights) {
        return;
    }
    order.flights = std::move(flights);
    keepPlaces(order);
    Arrangement all = beginArrangement(order, around);
    for (int round = 0; round < rounds; ++round) {
        for (std::size_t number = 0; number < order.flights.size(); ++number) {
            if (all.mayMove[number] != 0) {
                reconsider(all, number);
            }
        }
    }
}

} // namespace ventrel
