// Results in a file that a later run goes on with, where an earlier one was cut short.
#pragma once

#include <cstdint>
#include <fstream>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "cli/commands.h"

namespace vemo {

inline constexpr Option kResumeOption = {"--resume", "RESULTS",
                                         "write into this file; go on where it ends"};
inline constexpr std::string_view kResumeNotes =
    "With --resume the results go into a file. Where it holds those of an earlier run that\n"
    "was cut short, the run goes on behind them: the same command again and again brings a\n"
    "long list to its end. A file that holds anything else is left as it is.\n";

// How a row of a command begins, which tells it from those of other commands and puzzles.
struct RowBeginning {
    std::string text;
    bool isFaulty = false;  // as of Answer
};
using RowBeginnings = std::vector<RowBeginning>;

class Resume {
  public:
    // Looks into the file where there is one; nothing is changed.
    explicit Resume(const std::string& path);

    // What failed, with the file's name; empty where all is well. The results so far stand.
    const std::string& Error() const { return error_; }

    // Which beginning the row of the next puzzle has; nothing where the results end before it. The
    // puzzles come in their order. A row with none of these beginnings is an error.
    std::optional<RowBeginning> Next(const RowBeginnings& beginnings);

    // Makes ready for further rows, after the last call of Next: a row that was cut short is taken
    // off. Where there was an error nothing is changed.
    void GoOn();
    std::ostream& Out() { return out_; }

  private:
    std::string path_;
    std::ifstream rows_;
    std::ofstream out_;
    std::uint64_t wholeLength_ = 0;  // of the rows so far
    bool hasCutRow_ = false;         // behind them
    std::string error_;
};

}  // namespace vemo
