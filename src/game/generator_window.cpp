// The window "Generator".
#include "game/generator_window.h"

#include <algorithm>
#include <atomic>
#include <future>
#include <numeric>
#include <random>
#include <utility>

#include "game/play_levels.h"
#include "game/stage.h"
#include "tools/canonical.h"
#include "tools/threads.h"

namespace vemo {
namespace {

// Asks whether to go on although sudokus are not stored.
bool AskAllTheSame(Stage& stage, const std::string& what) {
    return AskYesNo(stage, "Sudokus not stored",
                    "Sudokus that could not be stored and will be lost when the game ends: " +
                        std::to_string(stage.generator.Unstored()) + ". Do you want to " + what +
                        " all the same ?",
                    EnterKey::No);
}

}  // namespace

// The canonical forms of puzzles, found out beside the window.
class GeneratorWindow::KnownForms {
  public:
    explicit KnownForms(std::vector<PuzzleRecord> puzzles)
        : puzzles_(std::move(puzzles)), forms_(std::async(std::launch::async, [this] {
              std::set<Digits> forms;
              for (const PuzzleRecord& puzzle : puzzles_) {
                  if (isStopped_) {
                      break;
                  }
                  forms.insert(CanonicalForm(puzzle.clues, puzzle.solution));
              }
              return forms;
          })) {}
    ~KnownForms() { isStopped_ = true; }
    KnownForms(const KnownForms&) = delete;
    KnownForms& operator=(const KnownForms&) = delete;

    bool AreReady() const {
        return forms_.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
    }
    std::set<Digits> Take() { return forms_.get(); }

  private:
    const std::vector<PuzzleRecord> puzzles_;
    std::atomic<bool> isStopped_ = false;
    std::future<std::set<Digits>> forms_;  // waits for its thread, and is the first to go
};

GeneratorWindow::GeneratorWindow(RecordFiles& files, SettingsStore& settings)
    : files_(files), settings_(settings), error_(OrderError(order_)) {}

GeneratorWindow::~GeneratorWindow() = default;

void GeneratorWindow::ReadSettings() {
    Change(ReadGeneratorOrder(settings_));
}

void GeneratorWindow::Change(const GeneratorOrder& order) {
    if (!IsSearching()) {
        order_ = order;
        error_ = OrderError(order_);
    }
}

void GeneratorWindow::Start() {
    if (!CanStart()) {
        return;
    }
    WriteGeneratorOrder(settings_, order_);
    Store();
    searched_ = SettingsOf(order_, std::random_device()());
    hasSearched_ = true;
    counts_ = {};
    passed_ = {};
    std::vector<PuzzleRecord> known;
    for (int level = 1; level <= kLevels; ++level) {
        if (searched_.wanted[static_cast<std::size_t>(level)] > 0) {
            std::ranges::transform(files_.ReadPuzzles(level), std::back_inserter(known),
                                   &NumberedPuzzle::record);
        }
    }
    for (const MadeSudoku& made : made_) {
        if (!made.IsStored()) {
            known.push_back(made.rated.puzzle);
        }
    }
    known_ = std::make_unique<KnownForms>(std::move(known));
}

void GeneratorWindow::Cancel() {
    if (generator_) {
        generator_->Stop();
        TakeOver();
    } else if (known_) {
        EndSearch(Ending::Stopped);
    }
}

void GeneratorWindow::Tick() {
    if (known_ && known_->AreReady()) {
        Search();
    }
    if (generator_) {
        TakeOver();
    }
}

void GeneratorWindow::Search() {
    begin_ = std::chrono::steady_clock::now();
    generator_ = std::make_unique<Generator>(searched_, DefaultThreads(), known_->Take());
    known_.reset();
}

// Whatever fails ends the search: it would only fill the list.
void GeneratorWindow::TakeOver() {
    counts_ = generator_->Counts();
    passed_ = std::chrono::duration_cast<std::chrono::milliseconds>(
        std::chrono::steady_clock::now() - begin_);
    bool isStored = true;
    for (const RatedPuzzle& puzzle : generator_->Take()) {
        isStored = Store(made_.emplace_back(MadeSudoku{puzzle})) && isStored;
    }
    if (row_ == kNoRow && !made_.empty()) {
        row_ = 0;
    }
    if (counts_.ending != Ending::None) {
        EndSearch(counts_.ending);
    } else if (!isStored) {
        generator_->Stop();
    }
}

void GeneratorWindow::EndSearch(Ending ending) {
    counts_.ending = ending;
    known_.reset();
    generator_.reset();
    refusal_.clear();
}

bool GeneratorWindow::Store(MadeSudoku& made) {
    const auto saved = files_.SaveSudoku(made.rated.rating, made.rated.puzzle);
    if (saved.error) {
        failure_ = Utf8(saved.error->path) + ": " + saved.error->reason;
        ++unstored_;
        return false;
    }
    made.number = saved.number;
    return true;
}

void GeneratorWindow::Store() {
    unstored_ = 0;
    failure_.clear();
    refusal_.clear();
    for (MadeSudoku& made : made_) {
        if (!made.IsStored()) {
            Store(made);
        }
    }
}

void GeneratorWindow::GiveUpUnstored() {
    unstored_ = 0;
}

double GeneratorWindow::TriesPerSecond() const {
    return passed_.count() == 0
               ? 0
               : 1000.0 * static_cast<double>(counts_.tried) / static_cast<double>(passed_.count());
}

void GeneratorWindow::Select(int row) {
    refusal_.clear();
    row_ = row >= 0 && row < static_cast<int>(made_.size()) ? row : kNoRow;
}

const MadeSudoku* GeneratorWindow::Selected() const {
    return row_ == kNoRow ? nullptr : &made_[static_cast<std::size_t>(row_)];
}

std::string GeneratorWindow::Message() const {
    if (!refusal_.empty()) {
        return refusal_;
    }
    if (known_) {
        return "Looking through the sudokus of these levels, so that none is made again...";
    }
    if (generator_) {
        return "Searching. You can play meanwhile: the search goes on when this window is closed, "
               "and ends with Cancel.";
    }
    if (!failure_.empty()) {
        return failure_ + ". Sudokus made, but not stored: " + std::to_string(unstored_) +
               ". See to the file, then press Store.";
    }
    if (hasSearched_) {
        return EndMessage();
    }
    return "Choose how many sudokus of which levels are to be made, then press Start. Each one is "
           "added to its level, to be opened there by its number.";
}

std::string GeneratorWindow::EndMessage() const {
    const auto sum = [](const auto& counts) {
        return std::to_string(std::accumulate(counts.begin(), counts.end(), 0));
    };
    const std::string made =
        ". Sudokus made: " + sum(counts_.kept) + " of " + sum(searched_.wanted) + ".";
    switch (counts_.ending) {
    case Ending::Tries:
        return "The tries are used up" + made;
    case Ending::Time:
        return "The time is up" + made;
    case Ending::Stopped:
        return "Stopped" + made;
    case Ending::NoThreads:
        return "The system has no thread left to search with" + made;
    case Ending::Complete:
    case Ending::None:
        break;
    }
    return "Complete" + made;
}

void OpenGenerator(Stage& stage) {
    stage.view.OpenForm(Form::FormGenerator, Keyboard::Follows);
}

void TickGenerator(Stage& stage) {
    GeneratorWindow& window = stage.generator;
    const int unstored = window.Unstored();
    window.Tick();
    if (window.Unstored() > unstored) {
        stage.view.OpenForm(Form::FormGenerator, Keyboard::Stays);
    }
}

std::string WhyNotPlay(const Stage& stage) {
    const MadeSudoku* made = stage.generator.Selected();
    if (made == nullptr) {
        return "Select a sudoku in the list first.";
    }
    if (!made->IsStored()) {
        return "This sudoku is not stored yet: press Store first.";
    }
    return WhyNoPuzzleCanBeLoaded(stage.session);
}

void PlayMadeSudoku(Stage& stage) {
    if (std::string why = WhyNotPlay(stage); !why.empty()) {
        stage.generator.Refuse(std::move(why));
        return;
    }
    const MadeSudoku& made = *stage.generator.Selected();
    const int level = made.rated.rating;
    const std::optional<PuzzleRecord> record = stage.files.ReadPuzzle(level, made.number);
    if (!record || !IsWhole(*record) || record->clues != made.rated.puzzle.clues) {
        Tell(stage, "Can't open sudoku",
             "Sudoku number " + std::to_string(made.number) + " is no longer in " +
                 Utf8(stage.files.PuzzlePath(level)),
             BoxIcon::Warning);
        return;
    }
    if (LoadSudoku(stage, level, made.number)) {
        stage.view.GiveWay(Form::FormGenerator);
    }
}

bool MayCloseGenerator(Stage& stage) {
    return stage.generator.Unstored() == 0 || AskAllTheSame(stage, "close the window");
}

bool MayQuitGenerator(Stage& stage) {
    if (stage.generator.Unstored() == 0) {
        return true;
    }
    if (!AskAllTheSame(stage, "quit")) {
        OpenGenerator(stage);
        return false;
    }
    stage.generator.GiveUpUnstored();
    return true;
}

bool RefuseQuitWhileSearching(Stage& stage) {
    if (!stage.generator.IsSearching()) {
        return false;
    }
    stage.generator.Refuse(
        "The game cannot end during a search: press Cancel first. What was made stays.");
    OpenGenerator(stage);
    return true;
}

}  // namespace vemo
