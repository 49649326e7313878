// The hint command.
#include "game/hints.h"

#include "game/checks.h"
#include "game/hint_window.h"
#include "game/simple_hints.h"
#include "game/timer.h"

namespace vemo {
namespace {

constexpr int kBadSolvedCellSlot = 0;
constexpr int kMissingCandidateSlot = 1;
constexpr int kStaleMarkSlot = 2;
constexpr int kReportPenalty = 10;
constexpr int kShowMePenalty = 20;
constexpr const char* kSafeCellText = "A candidate can savely be assigned to the colored cell";

void Report(Stage& stage, int slot, const std::string& text) {
    Speel(stage, Sound::Error);
    stage.session.hintSlot = slot;
    stage.session.textHint = text;
    Penalty(stage, kReportPenalty);
}

void TellNothingFound(Stage& stage, const char* text) {
    Speel(stage, Sound::Giggle);
    stage.session.textHint = text;
}

Solver::StepWatcher ScanWatcher(Stage& stage) {
    return [&stage](const Step& step) {
        stage.session.textHint = step.statusText;
        stage.show();
        stage.view.Yield();
        return !stage.session.isStopRequested;
    };
}

void GiveSimpleHint(Stage& stage) {
    Session& session = stage.session;
    std::optional<SimpleHint> hint;
    {
        const LongFunction busy(session);
        hint = SpecialHint(session.grid, ScanWatcher(stage));
    }
    if (session.isStopRequested) {
        session.textHint.clear();
        return;
    }
    if (!hint) {
        TellNothingFound(stage, "No more logical hints, you'll have to guess");
        return;
    }
    Speel(stage, Sound::Hint);
    session.hintColors.ZetHintVak(hint->target.cell);
    session.textHint = kSafeCellText;
    session.showMe = hint->target;
    Penalty(stage, hint->penalty);
}

void GiveTechniqueHint(Stage& stage) {
    Session& session = stage.session;
    Solver solver = BoardSolver(stage);
    PassResult result = PassResult::Nothing;
    {
        const LongFunction busy(session);
        result = solver.Pass(HintLadder(stage.techniques));
    }
    if (result == PassResult::Stopped) {
        session.textHint.clear();
        return;
    }
    if (result != PassResult::Hint) {
        TellNothingFound(stage, "No logical hints, you'll have to guess more than once...");
        return;
    }
    Speel(stage, Sound::Hint);
    ShowLastFind(stage, solver);
    Penalty(stage, solver.LastStep()->penalty);
}

void ColorStaleMark(Session& session, const StaleMark& stale, Reporter reporter) {
    HintColors& colors = session.hintColors;
    colors.ZetHintVak(stale.placedCell);
    if (reporter == Reporter::Hint) {
        colors.ZetAttackedCell(stale.markedCell, stale.digit);
        return;
    }
    colors.ZetHintRij(CellRow(stale.placedCell));
    colors.ZetHintKolom(CellColumn(stale.placedCell));
    colors.ZetHintBlok(CellBox(stale.placedCell));
    for (int cell : Peers(stale.placedCell) & session.grid.Candidates(stale.digit)) {
        colors.ZetAttackedCell(cell, stale.digit);
    }
}

}  // namespace

Solver BoardSolver(Stage& stage) {
    Solver solver(stage.session.grid);
    solver.SetLog([&stage](std::string_view line) { stage.log.AddLine(line); });
    solver.SetStepWatcher(ScanWatcher(stage));
    return solver;
}

bool ShowHiddenMarks(Stage& stage, const char* question) {
    if (stage.options.pencilmarks) {
        return true;
    }
    if (!AskYesNo(stage, "Hidden pencilmarks detected", question)) {
        return false;
    }
    FlipOption(stage, &Options::pencilmarks);
    return true;
}

void ShowLastFind(Stage& stage, const Solver& solver) {
    Session& session = stage.session;
    const Find& find = solver.LastFind();
    session.hintSlot = solver.LastStep()->slot;
    session.hintCaption = "Hint - " + std::string(HintTitle(find));
    session.textHint = HintText(find);
    session.hintColors.Show(find);
    session.hint = find;
    ShowHint(stage);
}

bool ReportEntries(Stage& stage, Reporter reporter) {
    Session& session = stage.session;
    const Digits& solution = session.puzzle.solution;
    if (const std::optional<int> cell = FindBadSolvedCell(session.grid, solution)) {
        session.DropHint();
        session.hintColors.ZetHintVak(*cell);
        session.hintColors.MarkWrong(*cell);
        Report(stage, kBadSolvedCellSlot, BadSolvedCellText(*cell, session.grid.Digit(*cell)));
        return true;
    }
    if (const std::optional<int> cell = FindMissingCandidate(session.grid, solution)) {
        session.DropHint();
        session.hintColors.ZetHintVak(*cell);
        const char* advice = reporter == Reporter::Hint ? "" : " - Use [Undo] or [Reset Cell]";
        Report(stage, kMissingCandidateSlot, MissingCandidateText(*cell) + advice);
        return true;
    }
    if (const std::optional<StaleMark> stale = FindStaleMark(session.grid)) {
        session.DropHint();
        ColorStaleMark(session, *stale, reporter);
        Report(stage, kStaleMarkSlot, StaleMarkText(*stale));
        return true;
    }
    return false;
}

void GiveHint(Stage& stage) {
    const char* question =
        "All pencilmarks must be visible to make hints available. Make them visible ?";
    if (!stage.session.IsBoardOn() || !ShowHiddenMarks(stage, question) ||
        ReportEntries(stage, Reporter::Hint)) {
        return;
    }
    stage.session.DropHint();
    if (IsSimpleMode(stage)) {
        GiveSimpleHint(stage);
    } else {
        GiveTechniqueHint(stage);
    }
}

void ShowMe(Stage& stage) {
    Session& session = stage.session;
    if (!session.showMe || !session.IsBoardOn()) {
        return;
    }
    const CellDigit target = *session.showMe;
    session.DropHint();
    Speel(stage, Sound::Hint);
    session.hintColors.ZetHintVak(target.cell);
    session.hintColors.ZetHintNummer(target.cell, target.digit, Role::Placed);
    session.textHint = kSafeCellText;
    Penalty(stage, kShowMePenalty);
}

}  // namespace vemo
