// A queue between two threads, one that puts in and one that takes out; neither ever waits or allocates.

#pragma once

#include <array>
#include <atomic>
#include <cstddef>

namespace ventrel {

template <typename Item, std::size_t capacity>
class CommandQueue {
    static_assert((capacity & (capacity - 1)) == 0, "positions wrap round with the counters");

public:
    /// False when it is full; the item is lost then.
    bool put(const Item& item) {
        const std::size_t end = end_.load(std::memory_order_relaxed);
        if (end - begin_.load(std::memory_order_acquire) == capacity) {
            return false;
        }
        items_[end % capacity] = item;
        end_.store(end + 1, std::memory_order_release);
        return true;
    }

    /// False when it is empty.
    bool take(Item& item) {
        const std::size_t begin = begin_.load(std::memory_order_relaxed);
        if (begin == end_.load(std::memory_order_acquire)) {
            return false;
        }
        item = items_[begin % capacity];
        begin_.store(begin + 1, std::memory_order_release);
        return true;
    }

private:
    std::array<Item, capacity> items_{};
    std::atomic<std::size_t> begin_{0};
    std::atomic<std::size_t> end_{0};
};

} // namespace ventrel
