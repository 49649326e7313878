// The one loop over a list of puzzles.
#include "cli/line_loop.h"

#include <array>
#include <cerrno>
#include <fstream>
#include <ios>
#include <limits>

#include "cli/commands.h"
#include "cli/progress.h"
#include "tools/puzzle_line.h"

namespace vemo {
namespace {

// A position with all its marks has 973 characters.
constexpr std::size_t kLongestLine = 4096;

// Takes lines from a stream, the longest only as far as its buffer reaches.
class LineReader {
  public:
    explicit LineReader(std::istream& in) : in_(in) {}

    // False at the end of the input, and where it cannot be read on.
    bool Next();
    bool IsTooLong() const { return isTooLong_; }
    InputLine Line() const { return {number_, {buffer_.data(), length_}}; }

  private:
    std::istream& in_;
    std::array<char, kLongestLine + 1> buffer_;
    std::size_t length_ = 0;
    long number_ = 0;
    bool isTooLong_ = false;
};

bool LineReader::Next() {
    errno = 0;
    in_.getline(buffer_.data(), static_cast<std::streamsize>(buffer_.size()));
    const std::streamsize taken = in_.gcount();
    if (in_.bad() || (in_.eof() && taken == 0)) {
        return false;
    }
    ++number_;
    isTooLong_ = in_.fail();
    // A line end is counted, but not kept.
    const bool hasEnd = !in_.eof() && !isTooLong_;
    length_ = static_cast<std::size_t>(taken) - (hasEnd ? 1 : 0);
    if (isTooLong_) {
        in_.clear();
        in_.ignore(std::numeric_limits<std::streamsize>::max(), '\n');
    }
    return true;
}

class Loop {
  public:
    Loop(std::istream& in, Streams& streams, bool showsProgress)
        : in_(in), reader_(in), streams_(streams), progress_(streams.err, showsProgress) {}

    ExitCode Run(const std::string& name, const std::function<Answer(const InputLine&)>& answer);

  private:
    bool Give(const Answer& answer);

    std::istream& in_;
    LineReader reader_;
    Streams& streams_;
    Progress progress_;
    ExitCode code_ = ExitCode::Fine;
};

ExitCode Loop::Run(const std::string& name, const std::function<Answer(const InputLine&)>& answer) {
    while (reader_.Next()) {
        const InputLine line = reader_.Line();
        if (reader_.IsTooLong()) {
            Give(Refusal("longer than " + std::to_string(kLongestLine) + " characters"));
        } else if (!IsBlankOrComment(line.text) && !Give(answer(line))) {
            return ExitCode::InputOutput;
        }
        if (progress_.IsDue()) {
            progress_.Show(std::to_string(line.number) + " lines");
        }
    }
    progress_.Clear();
    if (in_.bad()) {
        Tell(streams_, name + " cannot be read" + SystemReason());
        return ExitCode::InputOutput;
    }
    return code_;
}

bool Loop::Give(const Answer& answer) {
    if (answer.isFaulty) {
        code_ = ExitCode::FaultyLine;
    }
    if (!answer.message.empty()) {
        progress_.Clear();
        Tell(streams_, "line " + std::to_string(reader_.Line().number) + ": " + answer.message);
    }
    return answer.text.empty() || WriteResult(streams_, answer.text);
}

}  // namespace

ExitCode AnswerEachLine(const Arguments& arguments, Streams& streams,
                        const std::function<Answer(const InputLine&)>& answer) {
    const bool showsProgress = streams.showsProgress && !arguments.Has(kQuietOption.name);
    const std::string& name = arguments.operands.front();
    if (name == "-") {
        return Loop(streams.in, streams, showsProgress).Run("standard input", answer);
    }
    errno = 0;
    std::ifstream file(name, std::ios::binary);
    if (!file) {
        Tell(streams, name + " cannot be opened" + SystemReason());
        return ExitCode::InputOutput;
    }
    return Loop(file, streams, showsProgress).Run(name, answer);
}

}  // namespace vemo
