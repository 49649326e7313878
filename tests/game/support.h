// A game without a window: scripted boxes, a clock that is set by hand, a data folder of its own.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "game/game.h"
#include "model/files.h"
#include "platform/memory_settings.h"
#include "platform/plain_files.h"
#include "support/puzzles.h"
#include "support/temp_folder.h"
#include "support/test_folders.h"

namespace vemo::test {

class TestClock final : public Clock {
  public:
    int SecondOfDay() override { return second; }
    int second = 36000;
};

class TestSounds final : public Sounds {
  public:
    bool Load(int, const std::filesystem::path&) override { return true; }
    void Play(int slot) override { played.push_back(static_cast<Sound>(slot)); }
    std::vector<Sound> played;
};

// Answers boxes from a script of titles, texts and answers. A box that nobody expected fails, and
// so does an answer left over.
class ScriptedView final : public View {
  public:
    ~ScriptedView() override {
        EXPECT_TRUE(script_.empty()) << "never shown: " << script_.front().text;
    }

    void Expect(const std::string& title, const std::string& text, Answer answer = Answer::Ok) {
        script_.push_back({title, text, answer, std::nullopt});
    }
    void ExpectQuestion(const std::string& title, const std::string& prompt,
                        std::optional<std::string> reply) {
        script_.push_back({title, prompt, Answer::Ok, std::move(reply)});
    }

    Answer ShowBox(const Box& box) override {
        enter = box.enter;
        return Next(box.title, box.text).answer;
    }
    std::optional<std::string> Ask(const Question& question) override {
        questions.push_back(question);
        return Next(question.title, question.prompt).reply;
    }
    std::optional<std::filesystem::path> AskSaveFile(const SaveQuestion& question) override {
        EXPECT_EQ(question.fileName, expectedFileName);
        return saveAs;
    }
    std::vector<std::filesystem::path> AskOpenFiles(const OpenQuestion&) override {
        return openFiles;
    }
    void OpenForm(Form form, Keyboard) override { opened.push_back(form); }
    void CloseForm(Form form) override { closed.push_back(form); }
    void GiveWay(Form form) override { gaveWay.push_back(form); }
    Bytes HintPicture() override { return picture; }
    void Yield() override {
        ++yields;
        if (onYield) {
            onYield();
        }
    }
    void Pause(int milliseconds, const std::function<bool()>& isOver) override {
        paused += milliseconds;
        if (!isOver()) {
            Yield();
        }
    }
    void Refresh() override {}
    void Beep() override { ++beeps; }
    void OpenLink(const std::string& address) override { link = address; }
    void Close() override { isClosed = true; }

    std::function<void()> onYield;
    int yields = 0;
    int paused = 0;  // milliseconds
    int beeps = 0;
    std::vector<Question> questions;  // all that were asked
    EnterKey enter = EnterKey::Yes;   // of the last box
    std::string link;
    bool isClosed = false;
    std::string expectedFileName;  // of the next question where to save
    std::optional<std::filesystem::path> saveAs;
    std::vector<std::filesystem::path> openFiles;
    std::vector<Form> opened;
    std::vector<Form> closed;
    std::vector<Form> gaveWay;
    Bytes picture;

  private:
    struct Shown {
        std::string title;
        std::string text;
        Answer answer = Answer::No;
        std::optional<std::string> reply;
    };

    Shown Next(const std::string& title, const std::string& text) {
        if (script_.empty()) {
            ADD_FAILURE() << "unexpected box: " << title << ": " << text;
            return {};
        }
        Shown next = script_.front();
        script_.pop_front();
        EXPECT_EQ(next.title, title);
        EXPECT_EQ(next.text, text);
        return next;
    }

    std::deque<Shown> script_;
};

// The plain solution with some cells open; every cell that is not opened is a clue.
inline PuzzleRecord PuzzleWithOpen(const std::vector<int>& open) {
    PuzzleRecord puzzle;
    puzzle.solution = PlainSolution();
    puzzle.clues = puzzle.solution;
    for (int cell : open) {
        puzzle.clues[static_cast<std::size_t>(cell)] = 0;
    }
    return puzzle;
}

// Rows A and B: exchanged, they make a second solution, so that a wrong digit can be placed.
inline std::vector<int> FirstTwoRows() {
    std::vector<int> cells(18);
    std::iota(cells.begin(), cells.end(), 0);
    return cells;
}

// A player's machine: what lasts from one start of the game to the next.
class GameTest : public ::testing::Test {
  protected:
    GameTest() { files.MakeFolder(folder.Path() / "program"); }

    // Ships these puzzles in every level.
    void Ship(const std::vector<PuzzleRecord>& puzzles) {
        for (int level = 1; level <= kLevels; ++level) {
            ShipLevel(level, puzzles);
        }
    }
    void ShipLevel(int level, const std::vector<PuzzleRecord>& puzzles) {
        Bytes content;
        for (const PuzzleRecord& puzzle : puzzles) {
            const PuzzleBytes bytes = Pack(puzzle);
            content.insert(content.end(), bytes.begin(), bytes.end());
        }
        files.Replace(folder.Path() / "program" / PuzzleFileName(level), content);
    }

    void ExpectFirstRun() {
        view.Expect("Vemo Sudoku - 1st run initiation",
                    "A number of logfiles has to be created, normally this must be done only once "
                    "on first run of Vemo Sudoku 2. Depend on the speed of your PC, this can take "
                    "a few minutes.");
    }
    // The first start, its box answered; the game has no level yet.
    void StartFirst() {
        ExpectFirstRun();
        StartAgain();
    }
    // Another start on the same machine.
    void StartAgain() {
        game.emplace(platform, view);
        game->FormLoad();
    }
    void OpenFirst(int level) {
        game->mnuLevelNr(level);
        game->mnuSudokuNext();
    }
    // Assigns by a click on the mark.
    void Assign(int cell, int digit) {
        game->GridMouseUp(cell, digit, MouseButton::Left, Released::Inside);
    }
    void Discard(int cell, int digit) {
        game->GridMouseUp(cell, digit, MouseButton::Right, Released::Inside);
    }
    void FillAll(const std::vector<int>& open) {
        const Digits solution = PlainSolution();
        for (int cell : open) {
            Assign(cell, solution[static_cast<std::size_t>(cell)]);
        }
    }

    const Screen& Seen() const { return game->Current(); }
    std::filesystem::path DataFolder() const { return folder.Path() / "data" / "VemoSud2"; }
    RecordFiles Records() { return {files, DataFolder()}; }

    TempFolder folder;
    MemorySettings settings;
    PlainFiles files;
    TestFolders folders{folder.Path() / "program", folder.Path() / "data"};
    TestSounds sounds;
    TestClock clock;
    Platform platform{settings, folders, files, sounds, clock};
    ScriptedView view;
    std::optional<Game> game;
};

}  // namespace vemo::test
