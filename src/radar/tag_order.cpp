#include "radar/tag_order.h"

#include <algorithm>
#include <iterator>
#include <limits>

#include "radar/map_geometry.h"

namespace ventrel {

namespace {

// What a place costs: hidden pixels by what hides them, and how little one likes the place itself.
constexpr int perTagPixel = 3;
constexpr int perSymbolPixel = 4;
constexpr int perLandmarkPixel = 1;
constexpr int perCornerOutside = 2000;
constexpr int perRank = 6;

/// By so much another place must be better before a tag goes there.
constexpr int patience = 80;
/// Pixels around the usual place that must be free before a tag goes back.
constexpr int returnRoom = 8;
/// Pixels by which a tag stays off the scope's edge.
constexpr int rimGap = 2;
constexpr int rounds = 2;

/// No tag reaches farther from its flight, in pixels.
constexpr Size reach{100, 50};

int overlap(const Rect& a, const Rect& b) {
    const Rect common = a.intersectedWith(b);
    return common.width() * common.height();
}

/// What may be in the way of one flight's tag.
struct Obstacles {
    std::vector<Rect> tags;
    std::vector<Rect> symbols;
    std::vector<Rect> landmarks;
};

/// The tags as they stand at present.
struct Arrangement {
    TagOrder& order;
    const TagSurroundings& around;
    std::vector<Rect> boxes = {}; ///< of the flights in their order

    std::uint8_t& place(const TaggedFlight& flight) const { return order.places[flight.flight.place()]; }
};

void gather(Obstacles& near, const Arrangement& all, std::size_t self) {
    near.tags.clear();
    near.symbols.clear();
    near.landmarks.clear();
    const Point at = all.order.flights[self].at;
    const Rect area{at.x - reach.width, at.y - reach.height, at.x + reach.width, at.y + reach.height};
    for (std::size_t other = 0; other < all.boxes.size(); ++other) {
        if (other == self) {
            continue;
        }
        if (all.boxes[other].intersects(area)) {
            near.tags.push_back(all.boxes[other]);
        }
        if (area.contains(all.order.flights[other].at)) {
            near.symbols.push_back(symbolBox(all.order.flights[other].at));
        }
    }
    std::ranges::copy_if(all.around.landmarks, std::back_inserter(near.landmarks),
                         [&](const Rect& mark) { return mark.intersects(area); });
}

int hidden(const Obstacles& near, const Rect& box) {
    int sum = 0;
    for (const Rect& tag : near.tags) {
        sum += overlap(box, tag) * perTagPixel;
    }
    for (const Rect& symbol : near.symbols) {
        sum += overlap(box, symbol) * perSymbolPixel;
    }
    for (const Rect& mark : near.landmarks) {
        sum += overlap(box, mark) * perLandmarkPixel;
    }
    return sum;
}

int costAt(const Arrangement& all, const Obstacles& near, const TaggedFlight& self, std::size_t place) {
    const Rect box = tagStand(self.tag, self.at, place).box;
    return hidden(near, box) + cornersOutside(all.around.scope.grownBy(-rimGap), box) * perCornerOutside +
           static_cast<int>(place) * perRank;
}

bool mayReturn(const Arrangement& all, const Obstacles& near, const TaggedFlight& self) {
    const Rect box = tagStand(self.tag, self.at, usualTagPlace).box.grownBy(returnRoom);
    return hidden(near, box) == 0 && cornersOutside(all.around.scope.grownBy(-rimGap), box) == 0;
}

std::size_t cheapestPlace(const Arrangement& all, const Obstacles& near, const TaggedFlight& self) {
    std::size_t best = usualTagPlace;
    int least = std::numeric_limits<int>::max();
    for (std::size_t place = 0; place < tagPlaces; ++place) {
        if (const int cost = costAt(all, near, self, place); cost < least) {
            best = place;
            least = cost;
        }
    }
    return best;
}

/// The place to stand at now. A tag that is in nobody's way only ever goes back to the usual one.
std::size_t placeFor(const Arrangement& all, const Obstacles& near, const TaggedFlight& self) {
    const std::size_t now = all.place(self);
    if (now != usualTagPlace && mayReturn(all, near, self)) {
        return usualTagPlace;
    }
    const int cost = costAt(all, near, self, now);
    if (cost <= static_cast<int>(now) * perRank) {
        return now;
    }
    const std::size_t best = cheapestPlace(all, near, self);
    return costAt(all, near, self, best) + patience < cost ? best : now;
}

/// Whether the tag has gone elsewhere.
bool reconsider(Arrangement& all, Obstacles& near, std::size_t number) {
    const TaggedFlight& self = all.order.flights[number];
    gather(near, all, number);
    const std::size_t place = placeFor(all, near, self);
    if (place == all.place(self)) {
        return false;
    }
    all.place(self) = static_cast<std::uint8_t>(place);
    all.boxes[number] = tagStand(self.tag, self.at, place).box;
    return true;
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
    Arrangement all{order, around};
    all.boxes.reserve(order.flights.size());
    for (const TaggedFlight& flight : order.flights) {
        all.boxes.push_back(tagStand(flight.tag, flight.at, all.place(flight)).box);
    }
    Obstacles near;
    bool hasMoved = true;
    for (int round = 0; round < rounds && hasMoved; ++round) {
        hasMoved = false;
        for (std::size_t number = 0; number < order.flights.size(); ++number) {
            hasMoved = reconsider(all, near, number) || hasMoved;
        }
    }
}

} // namespace ventrel
