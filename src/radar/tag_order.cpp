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
constexpr int patience = 40;
/// Pixels around the usual place that must be free before a tag goes back.
constexpr int returnRoom = 5;
/// Pixels by which a tag stays off the scope's edge.
constexpr int rimGap = 2;
constexpr int rounds = 3;

/// No tag reaches farther from its flight, in pixels.
constexpr Size reach{100, 60};

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

struct Arrangement {
    TagOrder& order;
    const TagSurroundings& around;

    std::uint8_t& place(const TaggedFlight& flight) const { return order.places[flight.flight.place()]; }
    Rect box(const TaggedFlight& flight) const { return tagStand(flight.tag, flight.at, place(flight)).box; }
};

void gather(Obstacles& near, const Arrangement& all, const TaggedFlight& self) {
    near.tags.clear();
    near.symbols.clear();
    near.landmarks.clear();
    const Rect area{self.at.x - reach.width, self.at.y - reach.height, self.at.x + reach.width,
                    self.at.y + reach.height};
    for (const TaggedFlight& other : all.order.flights) {
        const Point apart = other.at - self.at;
        const bool isNear = std::abs(apart.x) < 2 * reach.width && std::abs(apart.y) < 2 * reach.height;
        if (other.flight == self.flight || !isNear) {
            continue;
        }
        if (const Rect box = all.box(other); box.intersects(area)) {
            near.tags.push_back(box);
        }
        if (const Rect box = symbolBox(other.at); box.intersects(area)) {
            near.symbols.push_back(box);
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

/// Whether the tag has gone elsewhere.
bool reconsider(const Arrangement& all, Obstacles& near, const TaggedFlight& self) {
    gather(near, all, self);
    std::uint8_t& place = all.place(self);
    const int now = costAt(all, near, self, place);
    if (place == usualTagPlace && now == 0) {
        return false;
    }
    if (place != usualTagPlace && mayReturn(all, near, self)) {
        place = usualTagPlace;
        return true;
    }
    const std::size_t best = cheapestPlace(all, near, self);
    if (costAt(all, near, self, best) + patience >= now) {
        return false;
    }
    place = static_cast<std::uint8_t>(best);
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
    const Arrangement all{order, around};
    Obstacles near;
    bool hasMoved = true;
    for (int round = 0; round < rounds && hasMoved; ++round) {
        hasMoved = false;
        for (const TaggedFlight& flight : order.flights) {
            hasMoved = reconsider(all, near, flight) || hasMoved;
        }
    }
}

} // namespace ventrel
