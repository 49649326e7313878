// Positions that show one technique each.
#include "tools/technique_examples.h"

#include <algorithm>
#include <istream>
#include <sstream>

#include "solver/brute_force.h"
#include "solver/solver.h"
#include "tools/puzzle_line.h"

namespace vemo {
namespace {

enum Column : std::size_t {
    kTechnique,
    kSlot,
    kFirstInLadder = 4,
    kGivens,
    kGrid,
    kMarks,
    kLog,
    kHint,
    kRemovals = 12,
    kPlacements,
    kColumns
};

std::vector<std::string> Split(const std::string& text, char separator) {
    std::vector<std::string> parts;
    std::istringstream stream(text);
    for (std::string part; std::getline(stream, part, separator);) {
        parts.push_back(part);
    }
    return parts;
}

// "- 12 | 3 …" as the field of a position: ",12,3".
std::string MarksField(const std::string& marks) {
    std::string field;
    bool isFirst = true;
    std::istringstream words(marks);
    for (std::string word; words >> word;) {
        if (word != "|") {
            field += isFirst ? "" : ",";
            field += word == "-" ? "" : word;
            isFirst = false;
        }
    }
    return field;
}

std::optional<TechniqueExample> ReadExample(const std::string& line) {
    std::vector<std::string> columns = Split(line, '\t');
    columns.resize(kColumns);
    const PositionLine position = ReadPositionLine(
        columns[kGrid] + '\t' + MarksField(columns[kMarks]) + '\t' + columns[kGivens]);
    int slot = kNoSlot;
    if (!position.IsPosition() || !(std::istringstream(columns[kSlot]) >> slot) || slot < kNoSlot ||
        slot >= kSlots) {
        return std::nullopt;
    }
    return TechniqueExample{columns[kTechnique],
                            slot,
                            columns[kFirstInLadder] == "1",
                            position.grid,
                            columns[kLog],
                            columns[kHint],
                            columns[kRemovals],
                            columns[kPlacements]};
}

// Ends the search at the find with a certain line in the log.
class LoggedFind final : public FindSink {
  public:
    explicit LoggedFind(const std::string& log) : log_(log) {}

    bool Offer(const Find& find) override {
        if (LogLine(find) == log_) {
            found_ = find;
        }
        return !found_;
    }
    const std::optional<Find>& Found() const { return found_; }

  private:
    const std::string& log_;
    std::optional<Find> found_;
};

}  // namespace

std::vector<TechniqueExample> ReadTechniqueExamples(std::istream& file) {
    std::vector<TechniqueExample> examples;
    std::string line;
    std::getline(file, line);
    while (std::getline(file, line)) {
        std::optional<TechniqueExample> example = ReadExample(line);
        if (!example) {
            return {};
        }
        examples.push_back(std::move(*example));
    }
    return examples;
}

std::optional<Find> FindOf(const TechniqueExample& example) {
    LoggedFind sink(example.log);
    for (const std::span<const Step> steps : {Steps(), StepsOutsideTheLadder()}) {
        for (const Step& step : steps) {
            if (step.slot != example.slot || sink.Found()) {
                continue;
            }
            if (step.trial != nullptr) {
                Solver solver(example.grid);
                step.trial(solver, sink);
            } else {
                step.search(Position(example.grid), step.args, sink);
            }
        }
    }
    return sink.Found();
}

Digits SolutionOf(const Grid& grid) {
    Digits clues{};
    for (int cell : grid.Givens()) {
        clues[static_cast<std::size_t>(cell)] = static_cast<std::uint8_t>(grid.Digit(cell));
    }
    return BruteForceSolve(clues).solution;
}

bool AgreesWithSolution(const Find& find, const Grid& grid) {
    const Digits solution = SolutionOf(grid);
    const auto isRight = [&solution](const CellDigit& candidate) {
        return solution[candidate.cell] == candidate.digit;
    };
    return solution[0] != 0 && std::ranges::none_of(find.removals, isRight) &&
           std::ranges::all_of(find.placements, isRight);
}

}  // namespace vemo
