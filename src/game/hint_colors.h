// The colours that a hint or a report lays over the board. They go with the next step.
#pragma once

#include <array>
#include <optional>
#include <vector>

#include "game/screen.h"
#include "solver/catalogue.h"

namespace vemo {

class HintColors {
  public:
    // One cell, one unit, one candidate of the pattern, one candidate that goes or comes.
    void ZetHintVak(int cell) { hintCells_.Add(cell); }
    void ZetHintRij(int row);
    void ZetHintKolom(int column);
    void ZetHintBlok(int box);
    void ZetHintNummer(int cell, int digit, Role role = Role::Pattern);
    void ZetAttackedCell(int cell, int digit) { ZetHintNummer(cell, digit, Role::Attacked); }
    void MarkWrong(int cell) { wrong_.Add(cell); }
    // All of it off.
    void WisKleuren() { *this = HintColors(); }
    // The red labels of one side: the nine rows' or the nine columns'.
    void ClearRedLabels(UnitKind kind);
    bool IsRedLabel(UnitKind kind, int index) const;
    // The part that a candidate plays.
    Role RoleOf(int cell, int digit) const { return roles_[Index(cell)][Index(digit - 1)]; }

    // The colours of a find: its pattern, its effects, its links; the labels of its rows and
    // columns turn red.
    void Show(const Find& find);

    // Into a screen whose marks are shown or hidden already: tints, the roles of the marks shown,
    // red labels, links, and the legend of what can be seen of them.
    void PaintOn(Screen& screen) const;

  private:
    static constexpr std::size_t Index(int number) { return static_cast<std::size_t>(number); }
    void ShowPattern(const Find& find);
    void ShowDisplaced(const Find& find, int placedCell, int digit);
    void AddLink(const ChainLink& link);
    std::vector<LegendEntry> LegendFor(const Screen& screen) const;

    CellSet hintCells_;
    CellSet unitTint_;
    CellSet wrong_;
    std::array<std::array<Role, kDigits>, kCells> roles_{};
    std::array<bool, 18> redLabels_{};  // rows, then columns
    std::vector<LinkView> links_;
    ColorWords words_;
};

}  // namespace vemo
