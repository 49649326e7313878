// What one thread makes and another takes, with a bound on what lies between them.
#pragma once

#include <algorithm>
#include <condition_variable>
#include <deque>
#include <iterator>
#include <mutex>
#include <stop_token>
#include <utility>
#include <vector>

namespace vemo {

template <typename Item>
class HandOver {
  public:
    explicit HandOver(std::size_t most) : most_(most) {}

    // Waits until there is room. False where the stop was asked for: the items are dropped.
    bool Put(std::vector<Item>&& items, const std::stop_token& stop) {
        std::unique_lock lock(mutex_);
        if (!room_.wait(lock, stop, [&] { return items_.size() < most_; })) {
            return false;
        }
        std::move(items.begin(), items.end(), std::back_inserter(items_));
        return true;
    }

    // What is there, no more than `most`.
    std::vector<Item> Take(std::size_t most) {
        std::vector<Item> taken;
        {
            const std::lock_guard lock(mutex_);
            const auto count = static_cast<std::ptrdiff_t>(std::min(most, items_.size()));
            taken.assign(std::move_iterator(items_.begin()),
                         std::move_iterator(items_.begin() + count));
            items_.erase(items_.begin(), items_.begin() + count);
        }
        room_.notify_all();
        return taken;
    }

    bool IsEmpty() const {
        const std::lock_guard lock(mutex_);
        return items_.empty();
    }

  private:
    const std::size_t most_;
    mutable std::mutex mutex_;
    std::condition_variable_any room_;
    std::deque<Item> items_;
};

}  // namespace vemo
