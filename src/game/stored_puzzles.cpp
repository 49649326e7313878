// The puzzles of all level files.
#include "game/stored_puzzles.h"

#include <chrono>

#include "tools/duplicates.h"

namespace vemo {

StoredPuzzles::StoredPuzzles(RecordFiles& files) {
    for (int level = 1; level <= kLevels; ++level) {
        for (const NumberedPuzzle& puzzle : files.ReadPuzzles(level)) {
            puzzles_.push_back({{level, puzzle.number}, puzzle.record});
        }
    }
    work_ = std::async(std::launch::async, [this] {
        for (const Stored& stored : puzzles_) {
            if (isStopped_) {
                break;
            }
            places_.emplace(SignsOf(stored.record.clues, {1, stored.record.solution}).form,
                            stored.place);
        }
    });
}

bool StoredPuzzles::AreReady() const {
    return work_.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
}

std::optional<StoredPlace> StoredPuzzles::Find(std::uint64_t form) const {
    const auto found = places_.find(form);
    return found == places_.end() ? std::nullopt : std::optional(found->second);
}

}  // namespace vemo
