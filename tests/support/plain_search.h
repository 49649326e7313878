// A second opinion on solutions: the plainest recursion that is fast enough, sharing nothing with
// the program.
#pragma once

#include <array>

namespace vemo::test {

class PlainSearch {
  public:
    template <typename Cells>
    explicit PlainSearch(const Cells& clues) {
        for (int cell = 0; cell < 81; ++cell) {
            if (const int digit = clues[static_cast<unsigned>(cell)]; digit != 0) {
                clash_ = clash_ || !IsFree(cell, digit);
                Set(cell, digit);
            }
        }
    }

    // 0, 1, or 2 for two and more; the first solution is kept.
    int Count() {
        found = 0;
        if (!clash_) {
            Go();
        }
        return found;
    }

    int found = 0;
    std::array<int, 81> first{};

  private:
    bool IsFree(int cell, int digit) const {
        for (int k = 0; k < 9; ++k) {
            const int inBox = cell / 27 * 27 + cell % 9 / 3 * 3 + k / 3 * 9 + k % 3;
            if (At(cell / 9 * 9 + k) == digit || At(9 * k + cell % 9) == digit ||
                At(inBox) == digit) {
                return false;
            }
        }
        return true;
    }
    int At(int cell) const { return grid_[static_cast<unsigned>(cell)]; }
    void Set(int cell, int digit) { grid_[static_cast<unsigned>(cell)] = digit; }

    void Go() {
        int best = -1;
        int fewest = 10;
        for (int cell = 0; cell < 81; ++cell) {
            int count = 0;
            for (int digit = 1; At(cell) == 0 && digit <= 9; ++digit) {
                count += IsFree(cell, digit) ? 1 : 0;
            }
            if (At(cell) == 0 && count < fewest) {
                best = cell;
                fewest = count;
            }
        }
        if (best < 0) {
            first = ++found == 1 ? grid_ : first;
            return;
        }
        for (int digit = 1; digit <= 9 && found < 2; ++digit) {
            if (IsFree(best, digit)) {
                Set(best, digit);
                Go();
                Set(best, 0);
            }
        }
    }

    std::array<int, 81> grid_{};
    bool clash_ = false;
};

}  // namespace vemo::test
