// The colours of hints and reports.
#include "game/hint_colors.h"

#include <algorithm>

namespace vemo {
namespace {

// A node of several cells is drawn from the one that lies nearest to the other end.
LinkView NearestCells(const ChainLink& link) {
    LinkView nearest;
    int best = 2 * kCells;
    for (int from : link.from) {
        for (int to : link.to) {
            const int down = CellRow(from) - CellRow(to);
            const int across = CellColumn(from) - CellColumn(to);
            const int distance = down * down + across * across;
            if (distance < best) {
                best = distance;
                nearest.fromCell = from;
                nearest.toCell = to;
            }
        }
    }
    return nearest;
}

bool IsRoleOnBoard(const Screen& screen, Role role) {
    return std::ranges::any_of(screen.marks, [&](const auto& marks) {
        return std::ranges::find(marks, role, &MarkView::role) != marks.end();
    });
}

// With an arrow head where some have one; nothing where there is none of this strength.
std::optional<LinkLook> LookOf(const std::vector<LinkView>& links, Find::Strength strength) {
    std::optional<LinkLook> look;
    for (const LinkView& link : links) {
        if (link.isStrong != (strength == Find::Strength::Strong)) {
            continue;
        }
        look = LinkLook{link.isStrong, link.isDirected || (look && look->isDirected)};
    }
    return look;
}

}  // namespace

void HintColors::ZetHintRij(int row) {
    unitTint_ |= UnitOf(UnitKind::Row, row).set;
    redLabels_[Index(UnitNumber(UnitKind::Row, row))] = true;
}

void HintColors::ZetHintKolom(int column) {
    unitTint_ |= UnitOf(UnitKind::Column, column).set;
    redLabels_[Index(UnitNumber(UnitKind::Column, column))] = true;
}

void HintColors::ZetHintBlok(int box) {
    unitTint_ |= UnitOf(UnitKind::Box, box).set;
}

void HintColors::ZetHintNummer(int cell, int digit, Role role) {
    roles_[Index(cell)][Index(digit - 1)] = role;
}

void HintColors::ClearRedLabels(UnitKind kind) {
    std::fill_n(redLabels_.begin() + UnitNumber(kind, 0), 9, false);
}

bool HintColors::IsRedLabel(UnitKind kind, int index) const {
    return redLabels_[Index(UnitNumber(kind, index))];
}

void HintColors::AddLink(const ChainLink& link) {
    LinkView view = NearestCells(link);
    view.fromDigit = link.fromDigit;
    view.toDigit = link.toDigit;
    view.isStrong = link.strong;
    view.isDirected = link.directed;
    links_.push_back(view);
}

void HintColors::ShowPattern(const Find& find) {
    if (find.firstColor.empty() && find.secondColor.empty()) {
        for (int cell : find.cells) {
            for (int digit : find.digits) {
                ZetHintNummer(cell, digit);
            }
        }
    }
    for (const auto& [cell, digit] : find.firstColor) {
        ZetHintNummer(cell, digit);
    }
    for (const auto& [cell, digit] : find.secondColor) {
        ZetHintNummer(cell, digit, Role::Second);
    }
}

// What is left uncoloured of the pattern and sees a placed digit goes with it.
void HintColors::ShowDisplaced(const Find& find, int placedCell, int digit) {
    for (int cell : find.cells) {
        if (Peers(placedCell).Has(cell) && RoleOf(cell, digit) == Role::None) {
            ZetAttackedCell(cell, digit);
        }
    }
}

void HintColors::Show(const Find& find) {
    for (std::size_t k = 0; k < find.units.Size(); ++k) {
        const Unit& unit = find.UnitAt(k);
        switch (unit.kind) {
        case UnitKind::Row:
            ZetHintRij(unit.index);
            break;
        case UnitKind::Column:
            ZetHintKolom(unit.index);
            break;
        case UnitKind::Box:
            ZetHintBlok(unit.index);
            break;
        }
    }
    for (int cell : find.cells) {
        ZetHintVak(cell);
    }
    ShowPattern(find);
    for (const auto& [cell, digit] : find.removals) {
        ZetAttackedCell(cell, digit);
    }
    for (const auto& [cell, digit] : find.placements) {
        ZetHintNummer(cell, digit, Role::Placed);
        ShowDisplaced(find, cell, digit);
    }
    for (const ChainLink& link : find.links) {
        AddLink(link);
    }
    words_ = ColorWordsOf(find);
}

std::vector<LegendEntry> HintColors::LegendFor(const Screen& screen) const {
    const std::array<LegendEntry, 4> roles = {{
        {Role::Pattern, std::string(words_.first)},
        {Role::Second, std::string(words_.second)},
        {Role::Attacked, "goes"},
        {Role::Placed, "comes here"},
    }};
    std::vector<LegendEntry> legend;
    std::ranges::copy_if(roles, std::back_inserter(legend), [&](const LegendEntry& entry) {
        return IsRoleOnBoard(screen, entry.role);
    });
    if (const std::optional<LinkLook> look = LookOf(links_, Find::Strength::Strong)) {
        legend.push_back({Role::None, "strong link", look});
    }
    if (const std::optional<LinkLook> look = LookOf(links_, Find::Strength::Weak)) {
        legend.push_back({Role::None, "weak link", look});
    }
    return legend;
}

void HintColors::PaintOn(Screen& screen) const {
    for (int cell = 0; cell < kCells; ++cell) {
        CellView& view = screen.cells[Index(cell)];
        view.isHintCell = hintCells_.Has(cell);
        view.isUnitTint = unitTint_.Has(cell);
        view.isWrong = wrong_.Has(cell);
        for (int digit = 1; digit <= kDigits; ++digit) {
            MarkView& mark = screen.marks[Index(cell)][Index(digit - 1)];
            mark.role = mark.isShown ? RoleOf(cell, digit) : Role::None;
        }
    }
    for (int index = 0; index < 9; ++index) {
        screen.rowLabels[Index(index)].isRed = IsRedLabel(UnitKind::Row, index);
        screen.columnLabels[Index(index)].isRed = IsRedLabel(UnitKind::Column, index);
    }
    screen.links.insert(screen.links.end(), links_.begin(), links_.end());
    screen.legend = LegendFor(screen);
}

}  // namespace vemo
