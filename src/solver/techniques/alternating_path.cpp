// The search for an alternating path by contracted blossoms: J. Edmonds, Paths, trees, and flowers,
// 1965. A search that marks what it has met would overlook paths: the way by which it came to a
// pair first may run through a pair that another way would have left for later.
#include "solver/techniques/alternating_path.h"

#include <algorithm>
#include <numeric>

namespace vemo {
namespace {

constexpr int kNone = -1;

constexpr int Mate(int number) {
    return number ^ 1;
}

// The numbers from which paths go on are outer ones. A link between two outer numbers closes a
// ring of odd length: each number on the ring is outer from then on, since one can go round it
// either way, and the ring is taken as one number, its base.
class PathSearch {
  public:
    PathSearch(const BitRows& links, int count, int from, int to)
        : links_(links),
          from_(from),
          last_(Mate(to)),
          before_(static_cast<std::size_t>(count), kNone),
          base_(before_.size()),
          isOuter_(before_.size()) {
        std::iota(base_.begin(), base_.end(), 0);
        MakeOuter(from);
    }

    // Whether the path comes to the pair of its end.
    bool Run() {
        for (std::size_t at = 0; at < queue_.size() && before_[Index(last_)] == kNone; ++at) {
            const int number = queue_[at];
            ForEachBit(links_.Row(number), links_.Words(),
                       [&](int other) { Follow(number, other); });
        }
        return before_[Index(last_)] != kNone;
    }

    std::vector<int> Path() const {
        std::vector<int> path = {Mate(last_)};
        while (path.back() != from_) {
            path.push_back(OuterBefore(path.back()));
        }
        std::ranges::reverse(path);
        return path;
    }

  private:
    static std::size_t Index(int number) { return static_cast<std::size_t>(number); }

    void MakeOuter(int number) {
        isOuter_[Index(number)] = true;
        queue_.push_back(number);
    }

    void Follow(int number, int other) {
        const bool isOfEnds = other == Mate(from_) || other == Mate(last_);
        const bool isDirect = number == from_ && other == last_;
        if (isOfEnds || isDirect || base_[Index(number)] == base_[Index(other)]) {
            return;
        }
        if (isOuter_[Index(other)]) {
            Contract(number, other);
        } else if (before_[Index(other)] == kNone) {
            before_[Index(other)] = number;
            if (other != last_) {
                MakeOuter(Mate(other));
            }
        }
    }

    int OuterBefore(int number) const { return before_[Index(Mate(number))]; }

    // The last base that both ways have in common.
    int CommonBase(int one, int other) const {
        std::vector<bool> isOnWay(base_.size());
        for (int at = base_[Index(one)];; at = base_[Index(OuterBefore(at))]) {
            isOnWay[Index(at)] = true;
            if (at == base_[Index(from_)]) {
                break;
            }
        }
        int at = base_[Index(other)];
        while (!isOnWay[Index(at)]) {
            at = base_[Index(OuterBefore(at))];
        }
        return at;
    }

    void Contract(int one, int other) {
        const int base = CommonBase(one, other);
        std::vector<bool> isInRing(base_.size());
        Walk(one, other, base, isInRing);
        Walk(other, one, base, isInRing);
        for (int number = 0; number < static_cast<int>(base_.size()); ++number) {
            if (isInRing[Index(base_[Index(number)])]) {
                base_[Index(number)] = base;
                if (!isOuter_[Index(number)]) {
                    MakeOuter(number);
                }
            }
        }
    }

    // From a number of the ring back to its base; what was before each is now reached round the
    // ring, beginning with `next`.
    void Walk(int number, int next, int base, std::vector<bool>& isInRing) {
        while (base_[Index(number)] != base) {
            const int mate = Mate(number);
            isInRing[Index(base_[Index(number)])] = true;
            isInRing[Index(base_[Index(mate)])] = true;
            before_[Index(number)] = next;
            next = mate;
            number = before_[Index(mate)];
        }
    }

    const BitRows& links_;
    int from_;
    int last_;
    std::vector<int> before_;
    std::vector<int> base_;
    std::vector<bool> isOuter_;
    std::vector<int> queue_;
};

}  // namespace

std::vector<int> AlternatingPath(const BitRows& links, int count, int from, int to) {
    PathSearch search(links, count, from, to);
    return search.Run() ? search.Path() : std::vector<int>();
}

}  // namespace vemo
