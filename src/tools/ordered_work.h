// Work on many items at once, its results in the order of the items.
#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <optional>
#include <stop_token>
#include <utility>

#include "tools/threads.h"

namespace vemo {

// The three parts of a run. `next` and `give` are called by the thread that runs it, `work` by any.
template <typename Item, typename Result>
struct OrderedWork {
    std::function<std::optional<Item>()> next;  // nothing: there are no more
    std::function<Result(const Item&, const std::stop_token&)> work;
    std::function<bool(const Item&, Result&&)> give;  // answers whether to go on
};

namespace ordered_work {

template <typename Item, typename Result>
struct Job {
    Item item;
    std::optional<Result> result{};
};

// What the running thread and its workers share.
template <typename Item, typename Result>
struct Shared {
    std::mutex mutex{};
    std::condition_variable changed{};
    std::deque<Job<Item, Result>*> waiting{};
};

template <typename Item, typename Result>
void Serve(Shared<Item, Result>& shared, const OrderedWork<Item, Result>& order,
           const std::stop_token& stop) {
    std::unique_lock lock(shared.mutex);
    while (true) {
        shared.changed.wait(lock, [&] { return !shared.waiting.empty() || stop.stop_requested(); });
        if (stop.stop_requested()) {
            return;
        }
        Job<Item, Result>* job = shared.waiting.front();
        shared.waiting.pop_front();
        lock.unlock();
        Result result = order.work(job->item, stop);
        lock.lock();
        job->result = std::move(result);
        shared.changed.notify_all();
    }
}

template <typename Item, typename Result>
void RunInTurn(const OrderedWork<Item, Result>& order) {
    const std::stop_source never;
    for (auto item = order.next(); item; item = order.next()) {
        if (!order.give(*item, order.work(*item, never.get_token()))) {
            return;
        }
    }
}

}  // namespace ordered_work

// Runs to the last item, or until `give` has had enough: work under way is told to stop then, and
// its results are dropped. With one thread each result is given before the next item is taken; with
// more, some items are taken ahead. Where the system has fewer threads left, those that there are
// do the work. Items should be worth a few microseconds each.
template <typename Item, typename Result>
void RunInOrder(int threads, const OrderedWork<Item, Result>& order) {
    if (threads <= 1) {
        return ordered_work::RunInTurn(order);
    }
    constexpr std::size_t kAheadOfAThread = 4;
    const std::size_t mostAhead = static_cast<std::size_t>(threads) * kAheadOfAThread;
    ordered_work::Shared<Item, Result> shared;
    std::deque<ordered_work::Job<Item, Result>> jobs;  // its items never move
    std::stop_source stop;
    const std::vector<std::jthread> workers =
        StartThreads(threads, [&] { ordered_work::Serve(shared, order, stop.get_token()); });
    if (workers.empty()) {
        return ordered_work::RunInTurn(order);
    }
    bool goesOn = true;
    bool hasMore = true;
    while (goesOn && (hasMore || !jobs.empty())) {
        while (hasMore && jobs.size() < mostAhead) {
            auto item = order.next();
            hasMore = item.has_value();
            if (hasMore) {
                jobs.push_back({std::move(*item)});
                const std::lock_guard lock(shared.mutex);
                shared.waiting.push_back(&jobs.back());
                shared.changed.notify_all();
            }
        }
        if (jobs.empty()) {
            break;
        }
        {
            std::unique_lock lock(shared.mutex);
            shared.changed.wait(lock, [&] { return jobs.front().result.has_value(); });
        }
        goesOn = order.give(jobs.front().item, std::move(*jobs.front().result));
        jobs.pop_front();
    }
    {
        const std::lock_guard lock(shared.mutex);
        stop.request_stop();
    }
    shared.changed.notify_all();
}

}  // namespace vemo
