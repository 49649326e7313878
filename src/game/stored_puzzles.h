// The puzzles of all level files, to be found again under any look.
#pragma once

#include <atomic>
#include <future>
#include <map>
#include <optional>
#include <vector>

#include "model/files.h"

namespace vemo {

// The signs of the puzzles are found out beside the window.
class StoredPuzzles {
  public:
    explicit StoredPuzzles(RecordFiles& files);
    ~StoredPuzzles() { isStopped_ = true; }
    StoredPuzzles(const StoredPuzzles&) = delete;
    StoredPuzzles& operator=(const StoredPuzzles&) = delete;

    bool AreReady() const;
    // When they are: where the puzzle stands, by the sign of its form.
    std::optional<StoredPlace> Find(std::uint64_t form) const;
    void Add(std::uint64_t form, StoredPlace place) { places_.emplace(form, place); }

  private:
    struct Stored {
        StoredPlace place;
        PuzzleRecord record;
    };

    std::vector<Stored> puzzles_;
    std::map<std::uint64_t, StoredPlace> places_;
    std::atomic<bool> isStopped_ = false;
    std::future<void> work_;  // waits for its thread, and is the first to go
};

}  // namespace vemo
