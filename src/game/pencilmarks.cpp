// The display modes of the pencil marks.
#include "game/pencilmarks.h"

namespace vemo {
namespace {

// The mark under the pointer, and those that a hint speaks of.
Marks SimpleMarks(const Session& session, int cell) {
    Marks marks = 0;
    for (int digit = 1; digit <= kDigits; ++digit) {
        const bool isPointed = session.pointedMark == cell * kDigits + digit - 1;
        if (isPointed || session.hintColors.RoleOf(cell, digit) != Role::None) {
            marks |= MarkOf(digit);
        }
    }
    return marks;
}

}  // namespace

Marks ShownMarks(const Stage& stage, int cell) {
    const Session& session = stage.session;
    if (session.IsMaking()) {
        return session.grid.MarksAt(cell);
    }
    if (session.phase == PlayPhase::NoPuzzle || !stage.options.pencilmarks) {
        return 0;
    }
    const Marks marks = session.grid.MarksAt(cell);
    return IsSimpleMode(stage) ? static_cast<Marks>(marks & SimpleMarks(session, cell)) : marks;
}

bool AreMarksUsable(const Stage& stage) {
    return stage.options.pencilmarks;
}

bool CanDiscardMarks(const Stage& stage) {
    return AreMarksUsable(stage) && !IsSimpleMode(stage);
}

}  // namespace vemo
