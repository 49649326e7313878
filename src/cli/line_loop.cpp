// The one loop over a list of puzzles.
#include "cli/line_loop.h"

#include <utility>
#include <vector>

#include "cli/line_source.h"
#include "cli/progress.h"
#include "tools/ordered_work.h"
#include "tools/puzzle_line.h"

namespace vemo {
namespace {

// Enough that handing them over does not count, few enough that all threads have some.
constexpr std::size_t kLinesAtOnce = 32;

using AnswerToLine = std::function<Answer(const InputLine&)>;

struct NumberedAnswer {
    long number = 0;
    Answer answer;
};
using Answers = std::vector<NumberedAnswer>;

Answers AnswersTo(const Lines& lines, const AnswerToLine& answer) {
    Answers answers;
    for (const Line& line : lines) {
        answers.push_back(
            {line.number,
             line.isTooLong ? Refusal("longer than " + std::to_string(kLongestLine) + " characters")
                            : answer({line.number, line.text})});
    }
    return answers;
}

class Loop {
  public:
    Loop(LineSource& source, Streams& streams, const AnswerToLine& answer, const LoopExtras& extras,
         bool showsProgress)
        : source_(source),
          streams_(streams),
          answer_(answer),
          extras_(extras),
          header_(extras.header),
          progress_(streams.err, showsProgress) {}

    // Passes over the lines that have their rows, and tells what is wrong with those that have
    // none; the next Run begins behind them.
    bool PassOver(Resume& resume);

    ExitCode Run(int threads);

  private:
    bool Give(const Answers& answers);
    bool Write(std::string_view text);

    LineSource& source_;
    Streams& streams_;
    const AnswerToLine& answer_;
    const LoopExtras& extras_;
    std::string_view header_;  // as long as it is not written
    Progress progress_;
    std::optional<Lines> behindRows_;
    ExitCode code_ = ExitCode::Fine;
};

bool Loop::PassOver(Resume& resume) {
    std::optional<Lines> lines;
    while ((lines = source_.Next(1))) {
        const Line& line = lines->front();
        if (line.isTooLong || !ReadPuzzleLine(line.text).IsPuzzle()) {
            Give(AnswersTo(*lines, answer_));
            continue;
        }
        const auto row = resume.Next(extras_.rowBeginnings({line.number, line.text}));
        if (!row) {
            break;
        }
        code_ = row->isFaulty ? ExitCode::FaultyLine : code_;
    }
    if (!lines && !streams_.isInterrupted()) {
        resume.Next({});  // no row is left
    }
    behindRows_ = std::move(lines);
    resume.GoOn();
    if (!resume.Error().empty()) {
        Tell(streams_, resume.Error());
    }
    return resume.Error().empty();
}

ExitCode Loop::Run(int threads) {
    bool isWritten = true;
    OrderedWork<Lines, Answers> work;
    work.next = [&] {
        return behindRows_ ? std::exchange(behindRows_, std::nullopt)
                           : source_.Next(threads > 1 ? kLinesAtOnce : 1);
    };
    work.work = [&](const Lines& lines, const std::stop_token&) {
        return AnswersTo(lines, answer_);
    };
    work.give = [&](const Lines&, Answers&& answers) {
        isWritten = Give(answers);
        return isWritten && !streams_.isInterrupted();
    };
    RunInOrder(threads, work);
    progress_.Clear();
    if (!source_.IsFine() || !isWritten || !Write(extras_.footer)) {
        return ExitCode::InputOutput;
    }
    return streams_.isInterrupted() ? ExitCode::Interrupted : code_;
}

bool Loop::Give(const Answers& answers) {
    std::string text;
    for (const auto& [number, answer] : answers) {
        if (answer.isFaulty) {
            code_ = ExitCode::FaultyLine;
        }
        if (!answer.message.empty()) {
            progress_.Clear();
            Tell(streams_, "line " + std::to_string(number) + ": " + answer.message);
        }
        text += answer.text;
    }
    if (progress_.IsDue()) {
        progress_.Show(std::to_string(answers.back().number) + " lines");
    }
    return Write(text);
}

bool Loop::Write(std::string_view text) {
    const std::string whole = std::string(std::exchange(header_, {})).append(text);
    return whole.empty() || WriteResult(streams_, whole);
}

}  // namespace

CommandResult AnswerEachLine(const Arguments& arguments, Streams& streams, Working working,
                             const std::function<Answer(const InputLine&)>& answer,
                             const LoopExtras& extras) {
    LineSource source(arguments.operands.front(), streams);
    std::string error;
    const std::optional<int> threads = source.Threads(arguments, error);
    if (!threads) {
        return UsageError(error);
    }
    if (!source.IsOpen()) {
        return {ExitCode::InputOutput};
    }
    const bool showsProgress = streams.showsProgress && !arguments.Has(kQuietOption.name);
    const int used = working == Working::AtOnce ? *threads : 1;
    const auto results = arguments.ValueOf(kResumeOption.name);
    if (!results) {
        return {Loop(source, streams, answer, extras, showsProgress).Run(used)};
    }
    Resume resume{std::string(*results)};
    Streams intoFile{streams.in, resume.Out(), streams.err, streams.showsProgress,
                     streams.isInterrupted};
    Loop loop(source, intoFile, answer, extras, showsProgress);
    return {loop.PassOver(resume) ? loop.Run(used) : ExitCode::InputOutput};
}

}  // namespace vemo
