// Results in a file that a later run goes on with, where an earlier one was cut short.
#pragma once

#include <fstream>
#include <optional>
#include <string>

#include "cli/commands.h"

namespace vemo {

inline constexpr Option kResumeOption = {"--resume", "RESULTS",
                                         "write into this file; go on where it ends"};
inline constexpr std::string_view kResumeNotes =
    "With --resume the results go into a file. Where it holds those of an earlier run that\n"
    "was cut short, the run goes on behind them: the same command again and again brings a\n"
    "long list to its end.\n";

class Resume {
  public:
    // Opens the file, or makes it, and takes off a row that was cut short.
    explicit Resume(const std::string& path);

    // What failed, with the file's name; empty where all is well. The results so far stand.
    const std::string& Error() const { return error_; }

    // Whether the puzzle has its row; the rows are asked for in their order. A row of another
    // puzzle is an error.
    bool Has(const std::string& puzzle);

    // Where further rows go, after the last call of Has.
    std::ostream& Out() { return out_; }

  private:
    void CutOff();

    std::string path_;
    std::ifstream rows_;
    std::ofstream out_;
    std::string error_;
};

}  // namespace vemo
