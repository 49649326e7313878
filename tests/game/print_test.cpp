// Printing without a printer: pages as values, orders as texts, and the window that joins them.
#include <algorithm>
#include <cmath>
#include <map>

#include "game/print_window.h"
#include "game/support.h"

namespace vemo::test {
namespace {

PuzzleRecord Timed(int seconds) {
    PuzzleRecord puzzle = PuzzleWithOpen({0, 1, 40, 80});
    puzzle.best = TimeOfSeconds(seconds);
    return puzzle;
}

PrintJob JobOf(int count, const PageStyle& style) {
    PrintJob job{style, {}};
    for (int number = 1; number <= count; ++number) {
        job.sudokus.push_back(PrintedFrom(Timed(number % 2 == 0 ? 192 : 0), 1, number));
    }
    return job;
}

// The labels that are no digits of grids, in their order.
std::vector<std::string> WordsOn(const Page& page) {
    std::vector<std::string> words;
    for (const PageLabel& label : page.labels) {
        if (label.text.size() > 1) {
            words.push_back(label.text);
        }
    }
    return words;
}

std::ptrdiff_t DigitsOn(const Page& page, PageWeight weight) {
    return std::ranges::count_if(page.labels, [weight](const PageLabel& label) {
        return label.text.size() == 1 && label.weight == weight;
    });
}

using Words = std::vector<std::string>;

TEST(PrintPages, EverySudokuHasItsPlaceOnAsManyPagesAsItTakes) {
    struct Case {
        int sudokus, perPage;
        SolutionPlace solutions;
        int pages;
    };
    for (const auto& [sudokus, perPage, solutions, pages] :
         {Case{0, 4, SolutionPlace::LastPages, 0},
          {1, 4, SolutionPlace::None, 1},
          {4, 4, SolutionPlace::Foot, 1},
          {5, 4, SolutionPlace::Foot, 2},
          {5, 2, SolutionPlace::None, 3},
          {3, 1, SolutionPlace::None, 3},
          {12, 4, SolutionPlace::LastPages, 4},
          {13, 4, SolutionPlace::LastPages, 6}}) {
        PageStyle style;
        style.perPage = perPage;
        style.solutions = solutions;
        const PrintJob job = JobOf(sudokus, style);
        EXPECT_EQ(PageCount(job), pages);
        std::map<std::string, int> seen;
        for (int number = 0; number < PageCount(job); ++number) {
            for (const std::string& word : WordsOn(MakePage(job, number))) {
                ++seen[word];
            }
        }
        for (const PrintedSudoku& sudoku : job.sudokus) {
            EXPECT_EQ(seen[CaptionOf(sudoku)], solutions == SolutionPlace::None ? 1 : 2);
        }
    }
}

TEST(PrintPages, CaptionsNameLevelNumberAndBestTime) {
    EXPECT_EQ(WordsOn(MakePage(JobOf(2, {}), 0)), (Words{"Easy 1", "Easy 2", "Best time 03:12"}));
    PrintJob job = JobOf(1, {});
    job.sudokus[0].number = 0;
    EXPECT_EQ(WordsOn(MakePage(job, 0)), Words{"Easy"});
    job.sudokus[0].level = 0;
    EXPECT_EQ(WordsOn(MakePage(job, 0)), Words{"Sudoku"});
    EXPECT_EQ(WordsOn(MakePage(JobOf(5, {}), 1)), (Words{"Page 2 of 2", "Easy 5"}));
}

TEST(PrintPages, NothingIsNearerToTheEdgesThanTheMargin) {
    for (const Paper paper : {Paper::A4, Paper::Letter}) {
        for (const int perPage : kPerPage) {
            for (const SolutionPlace solutions :
                 {SolutionPlace::None, SolutionPlace::Foot, SolutionPlace::LastPages}) {
                const PrintJob job =
                    JobOf(9, {perPage, PrintContent::PencilMarks, solutions, paper});
                const PaperSize size = SizeOf(paper);
                const auto isWithin = [&size](double x, double y) {
                    constexpr double kLeast = kPageMargin - 1e-9;
                    return x >= kLeast && y >= kLeast && x <= size.width - kLeast &&
                           y <= size.height - kLeast;
                };
                for (int number = 0; number < PageCount(job); ++number) {
                    const Page page = MakePage(job, number);
                    EXPECT_EQ(page.width, size.width);
                    EXPECT_EQ(page.height, size.height);
                    for (const PageBar& bar : page.bars) {
                        EXPECT_TRUE(isWithin(bar.left, bar.top) &&
                                    isWithin(bar.left + bar.width, bar.top + bar.height));
                    }
                    for (const PageLabel& label : page.labels) {
                        EXPECT_TRUE(isWithin(label.x, label.y - label.size / 2) &&
                                    isWithin(label.x, label.y + label.size / 2))
                            << label.text;
                    }
                }
            }
        }
    }
}

// The left, upper ends of the thick lines' grids and their sides, from the longest bars.
struct Square {
    double left, top, side;
};
std::vector<Square> GridsOn(const Page& page) {
    std::vector<Square> grids;
    // Each grid has twenty bars, first the one down its left side.
    for (std::size_t at = 0; at < page.bars.size();) {
        if (page.bars[at].width > page.bars[at].height * 100) {
            ++at;  // the rule above the solutions
            continue;
        }
        grids.push_back({page.bars[at].left, page.bars[at].top, page.bars[at].height});
        at += 20;
    }
    return grids;
}

TEST(PrintPages, GridsAreSquareApartAndAlike) {
    for (const int perPage : kPerPage) {
        const Page page = MakePage(JobOf(perPage, {perPage, {}, {}, Paper::Letter}), 0);
        const std::vector<Square> grids = GridsOn(page);
        ASSERT_EQ(static_cast<int>(grids.size()), perPage);
        for (std::size_t a = 0; a < grids.size(); ++a) {
            EXPECT_NEAR(grids[a].side, grids[0].side, 1e-9);
            EXPECT_GE(grids[a].side, 80) << "pencil marks could not be read";
            for (std::size_t b = 0; b < a; ++b) {
                const double across = std::abs(grids[a].left - grids[b].left);
                const double down = std::abs(grids[a].top - grids[b].top);
                EXPECT_GE(std::max(across, down), grids[0].side + 5);
            }
        }
    }
}

TEST(PrintPages, WhereThereAreFewTheyAreLargeAndTheLastPageIsLikeTheOthers) {
    const auto side = [](int sudokus, int number) {
        return GridsOn(MakePage(JobOf(sudokus, {4, {}, {}, Paper::A4}), number))[0].side;
    };
    EXPECT_GT(side(1, 0), side(2, 0));
    EXPECT_GT(side(2, 0), side(3, 0));
    EXPECT_EQ(side(5, 1), side(5, 0));
}

TEST(PrintPages, WhatStandsInAGridIsToldByWeight) {
    PrintJob job = JobOf(1, {});
    PrintedSudoku& sudoku = job.sudokus[0];
    const auto put = [&job](PrintContent content) {
        job.style.content = content;
        return MakePage(job, 0);
    };
    EXPECT_EQ(DigitsOn(put(PrintContent::Puzzle), PageWeight::Bold), 77);
    EXPECT_EQ(DigitsOn(put(PrintContent::Puzzle), PageWeight::Regular), 0);
    // The four open cells see every other digit.
    EXPECT_EQ(DigitsOn(put(PrintContent::PencilMarks), PageWeight::Regular), 4);
    EXPECT_EQ(DigitsOn(put(PrintContent::Solution), PageWeight::Bold), 77);
    EXPECT_EQ(DigitsOn(put(PrintContent::Solution), PageWeight::Regular), 4);
    sudoku.digits[0] = 9;
    sudoku.marks[1] = MarkOf(2) | MarkOf(5) | MarkOf(7);
    EXPECT_EQ(DigitsOn(put(PrintContent::CurrentState), PageWeight::Regular), 1 + 3);
    EXPECT_EQ(DigitsOn(put(PrintContent::CurrentState), PageWeight::Bold), 77);
}

TEST(PrintPages, MarksStandInTheirPlacesAndTouchNeitherEachOtherNorTheLines) {
    PrintJob job = JobOf(4, {4, PrintContent::CurrentState, SolutionPlace::Foot, Paper::Letter});
    job.sudokus[0].marks[0] = kAllMarks;
    const Page page = MakePage(job, 0);
    const Square grid = GridsOn(page)[4];  // behind the four at the foot
    const double cell = grid.side / 9;
    std::vector<PageLabel> marks;
    std::ranges::copy_if(page.labels, std::back_inserter(marks), [&](const PageLabel& label) {
        return label.text.size() == 1 && label.x < grid.left + cell && label.y < grid.top + cell &&
               label.y > grid.top;
    });
    ASSERT_EQ(marks.size(), 9u);
    for (int digit = 1; digit <= 9; ++digit) {
        const PageLabel& mark = marks[static_cast<std::size_t>(digit - 1)];
        EXPECT_EQ(mark.text, std::to_string(digit));
        const int column = static_cast<int>((mark.x - grid.left) / (cell / 3));
        const int row = static_cast<int>((mark.y - grid.top) / (cell / 3));
        EXPECT_EQ(3 * row + column + 1, digit);
        EXPECT_GE(mark.size, 2.1) << "six points";
    }
    // A digit is at most three quarters as high and as wide as its size.
    EXPECT_GE(marks[1].x - marks[0].x, 0.75 * marks[0].size);
    EXPECT_GE(marks[3].y - marks[0].y, 0.75 * marks[0].size);
    EXPECT_GE(marks[0].x - grid.left, 0.375 * marks[0].size + 0.75);
}

TEST(PrintPages, SolutionsAtTheFootAreTurnedAndBelowAllPuzzles) {
    const Page page =
        MakePage(JobOf(4, {4, PrintContent::Puzzle, SolutionPlace::Foot, Paper::A4}), 0);
    const auto isTurned = [](const PageLabel& label) { return label.isTurned; };
    double lowest = 0;
    double highest = page.height;
    for (const PageLabel& label : page.labels) {
        (isTurned(label) ? highest : lowest) =
            isTurned(label) ? std::min(highest, label.y) : std::max(lowest, label.y);
    }
    EXPECT_GT(highest, lowest);
    EXPECT_EQ(std::ranges::count_if(page.labels, isTurned), 4 * 81 + 4 + 1);
    // Whoever turns the page reads them from the left.
    std::vector<std::pair<double, std::string>> captions;
    for (const PageLabel& label : page.labels) {
        if (label.isTurned && label.text.starts_with("Easy")) {
            captions.emplace_back(-label.x, label.text);
        }
    }
    EXPECT_TRUE(std::ranges::is_sorted(captions));
    EXPECT_EQ(captions.front().second, "Easy 1");

    // The solution itself needs none, and one that is not known cannot have any.
    EXPECT_EQ(PageCount(JobOf(4, {4, PrintContent::Solution, SolutionPlace::LastPages, {}})), 1);
    PrintJob unknown = JobOf(1, {4, PrintContent::Puzzle, SolutionPlace::Foot, {}});
    unknown.sudokus[0].solution = {};
    EXPECT_TRUE(std::ranges::none_of(MakePage(unknown, 0).labels, isTurned));
}

TEST(PrintOrder, ARunIsReadFromItsText) {
    struct Case {
        const char* text;
        int level, first, last;
    };
    for (const auto& [text, level, first, last] : {Case{"Easy:1-4", 1, 1, 4},
                                                   {"outlaw:220", 9, 220, 220},
                                                   {"3:7-7", 3, 7, 7},
                                                   {"MAYHEM", 8, 1, 0}}) {
        const LevelRun run = ParseLevelRun(text);
        EXPECT_EQ(run.error, "") << text;
        EXPECT_EQ(run.level, level);
        EXPECT_EQ(run.first, first);
        EXPECT_EQ(run.last, last);
    }
    for (const char* text :
         {"", ":", ":1-4", "Esay:1", "10:1", "Easy:", "Easy:-4", "Easy:1-", "Easy:0-4",
          "Easy:1-4-7", "Easy:1 -4", "Easy:99999999999", "Easy:+1"}) {
        EXPECT_NE(ParseLevelRun(text).error, "") << text;
    }
    EXPECT_NE(ParseLevelRun("Esay:1").error.find("Esay"), std::string::npos);
}

TEST(PrintOrder, ARunLiesInItsLevel) {
    EXPECT_EQ(RunError(1, 1, 4, 4), "");
    EXPECT_EQ(RunError(1, 1, 5, 4), "The Easy sudokus have the numbers 1 to 4, not 5.");
    EXPECT_NE(RunError(1, 3, 2, 4), "");
    EXPECT_EQ(RunError(9, 1, 1, 0), "There are no Outlaw sudokus to print.");
    EXPECT_EQ(RunError(1, 1, kMostPrinted, kMostPrinted + 1), "");
    EXPECT_NE(RunError(1, 1, kMostPrinted + 1, kMostPrinted + 1), "");
}

class PrintWindowTest : public GameTest {
  protected:
    PrintWindowTest() {
        Ship({Timed(0), Timed(61), Timed(0), Timed(0), Timed(0)});
        StartFirst();
    }

    const PrintWindow& Window() const { return game->CurrentPrint(); }
    PrintOrder Run(int level, int first, int last) const {
        PrintOrder order = Window().Order();
        order.source = PrintSource::Run;
        order.level = level;
        order.first = first;
        order.last = last;
        return order;
    }
    std::vector<int> Numbers() const {
        std::vector<int> numbers;
        for (const PrintedSudoku& sudoku : Window().Job().sudokus) {
            numbers.push_back(sudoku.number);
        }
        return numbers;
    }
    using Ints = std::vector<int>;
};

TEST_F(PrintWindowTest, WithoutASudokuTheFirstOfTheLevelAreProposed) {
    game->mnuLevelNr(3);
    game->mnuSudokuPrint();
    EXPECT_EQ(view.opened, std::vector{Form::FormPrint});
    EXPECT_EQ(Window().Name(), "Hard 1-4");
    EXPECT_EQ(Numbers(), (Ints{1, 2, 3, 4}));
    PrintOrder order = Window().Order();
    order.source = PrintSource::Current;
    game->PrintChange(order);
    EXPECT_TRUE(Window().Error().starts_with("No sudoku is open"));
    EXPECT_TRUE(Window().Job().sudokus.empty());
}

TEST_F(PrintWindowTest, TheSudokuInPlayIsFollowed) {
    OpenFirst(4);
    game->mnuSudokuPrint();
    EXPECT_EQ(Window().Name(), "Crazy 1");
    const auto shown = [this] { return Window().Job().sudokus.at(0); };
    EXPECT_EQ(shown().digits[0], 0);
    EXPECT_NE(shown().marks[0], 0);
    Assign(0, PlainSolution()[0]);
    EXPECT_EQ(shown().digits[0], PlainSolution()[0]);
    EXPECT_EQ(shown().clues[0], 0);
    const int version = Window().Version();
    game->MoveSelection(Direction::Down, Jump::NextCell);
    EXPECT_EQ(Window().Version(), version);

    // Stopping the clock buys no time to think.
    game->CommandPauseClick();
    EXPECT_TRUE(Window().Error().starts_with("The clock is stopped"));
    EXPECT_TRUE(Window().Job().sudokus.empty());
    game->CommandPauseClick();
    EXPECT_EQ(shown().digits[0], PlainSolution()[0]);
    game->FormUnload(Form::FormPrint);
    game->mnuSolveUndo();
    EXPECT_EQ(Window().Version(), version + 2);
}

TEST_F(PrintWindowTest, DamagedSudokusAreNamedAndTheOthersPrinted) {
    game->mnuSudokuPrint();
    files.WriteAt(Records().PuzzlePath(2), kPuzzleRecordSize, Bytes(10, 12));
    files.WriteAt(Records().PuzzlePath(2), 3 * kPuzzleRecordSize + 81, Bytes(81, 0));
    game->PrintChange(Run(2, 1, 4));
    game->PrintChange(Run(2, 1, 5));
    EXPECT_EQ(Numbers(), (Ints{1, 3, 5}));
    EXPECT_EQ(Window().Notice(), "Left out, because damaged: Medium 2, 4.");
    game->PrintChange(Run(2, 4, 4));
    EXPECT_EQ(Window().Error(), "Left out, because damaged: Medium 4.");
    game->PrintChange(Run(2, 2, 6));
    EXPECT_EQ(Window().Error(), "The Medium sudokus have the numbers 1 to 5, not 6.");
}

TEST_F(PrintWindowTest, TheCurrentStateIsWhatWasPlayedOrSaved) {
    OpenFirst(4);
    Assign(0, PlainSolution()[0]);
    game->mnuSudokuSave();
    game->mnuSudokuNext();
    Assign(1, PlainSolution()[1]);
    game->mnuSudokuPrint();
    PrintOrder order = Run(4, 1, 3);
    order.style.content = PrintContent::CurrentState;
    game->PrintChange(order);
    const std::vector<PrintedSudoku>& shown = Window().Job().sudokus;
    ASSERT_EQ(shown.size(), 3u);
    EXPECT_EQ(shown[0].digits[0], PlainSolution()[0]);
    EXPECT_NE(shown[0].marks[1], 0);
    EXPECT_EQ(shown[1].digits[0], 0);
    EXPECT_EQ(shown[1].digits[1], PlainSolution()[1]);
    EXPECT_EQ(shown[2].digits, shown[2].clues);
    EXPECT_EQ(shown[2].marks[0], 0);
    // The one in play is followed, as far as it can be seen.
    Assign(2, PlainSolution()[2]);
    EXPECT_EQ(shown[1].digits[2], PlainSolution()[2]);
    game->CommandPauseClick();
    EXPECT_EQ(shown[1].digits, shown[1].clues);
    EXPECT_EQ(shown[1].marks[0], 0);
    game->CommandPauseClick();
    EXPECT_EQ(shown[1].digits[2], PlainSolution()[2]);
    // Without marks on the board there are none on paper.
    game->mnuPencilmarksMode();
    game->PrintChange(order);
    EXPECT_EQ(Window().Job().sudokus[0].marks[1], 0);
    EXPECT_EQ(Window().Job().sudokus[1].marks[0], 0);
}

TEST_F(PrintWindowTest, ASudokuThatIsBeingMadeHasNoSolutionYet) {
    game->mnuSudokuMake();
    Assign(0, 5);
    game->mnuSudokuPrint();
    PrintOrder order = Window().Order();
    order.style.solutions = SolutionPlace::Foot;
    game->PrintChange(order);
    ASSERT_EQ(Window().Job().sudokus.size(), 1u);
    EXPECT_EQ(Window().Job().sudokus[0].clues[0], 5);
    EXPECT_EQ(Window().Name(), "Sudoku");
    EXPECT_TRUE(Window().Notice().starts_with("Sudokus without a known solution: 1."));
}

TEST_F(PrintWindowTest, TheLookOfThePagesIsRememberedAndMalformedSettingsReadAsDefaults) {
    game->mnuSudokuPrint();
    PrintOrder order = Window().Order();
    order.style = {2, PrintContent::PencilMarks, SolutionPlace::LastPages, Paper::A4};
    game->PrintChange(order);
    game->ChoosePaper(Paper::Letter);
    order.style.paper = Paper::Letter;
    StartAgain();
    game->mnuSudokuPrint();
    EXPECT_EQ(Window().Order().style, order.style);
    EXPECT_EQ(game->CurrentPaper(), Paper::Letter);
    for (const auto& [key, text] :
         {std::pair{"PerPage", "3"}, {"Content", "4"}, {"Solutions", "-1"}, {"Paper", "big"}}) {
        settings.Save("Print", key, text);
    }
    game->mnuSudokuPrint();
    EXPECT_EQ(Window().Order().style, PageStyle());
}

TEST_F(PrintWindowTest, AFileThatCannotBeWrittenIsTold) {
    const std::filesystem::path place = folder / "pages.pdf";
    files.MakeFolder(place);
    view.Expect("File Error", place.string() + ": is no regular file");
    EXPECT_FALSE(game->StorePdf(place, Bytes{1, 2, 3}));
    EXPECT_TRUE(game->StorePdf(folder / "other.pdf", Bytes{1, 2, 3}));
    EXPECT_EQ(files.Size(folder / "other.pdf"), 3u);
    view.expectedFileName = "Easy 1-4.pdf";
    EXPECT_EQ(game->AskPdfFile("Easy 1-4"), std::nullopt);
}

}  // namespace
}  // namespace vemo::test
