// What is on the screen in words.
#include "qt/screen_text.h"

#include <QStringList>

#include "model/units.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

QString RoleText(const Screen& screen, Role role) {
    for (const LegendEntry& entry : screen.legend) {
        if (entry.role == role) {
            return ToQString(entry.text);
        }
    }
    return role == Role::Attacked ? u"goes"_s : u"hint"_s;
}

}  // namespace

QString CellText(const Screen& screen, int cell) {
    const auto index = static_cast<std::size_t>(cell);
    const QString name = ToQString(CellName(cell));
    if (screen.isBoardCovered) {
        return name + u", covered"_s;
    }
    const CellView& view = screen.cells[index];
    if (view.digit != 0) {
        const QString kind = view.isClue ? u", clue "_s : u", "_s;
        return name + kind + QString::number(view.digit);
    }
    QStringList marks;
    for (int digit = 1; digit <= kDigits; ++digit) {
        if (screen.marks[index][static_cast<std::size_t>(digit - 1)].isShown) {
            marks << QString::number(digit);
        }
    }
    if (marks.isEmpty()) {
        return name + u", empty"_s;
    }
    return name + u", marks "_s + marks.join(QLatin1Char(' '));
}

QString CellHintText(const Screen& screen, int cell) {
    const auto index = static_cast<std::size_t>(cell);
    QStringList parts;
    if (screen.isBoardCovered) {
        return {};
    }
    if (screen.cells[index].isWrong) {
        parts << u"wrong"_s;
    }
    for (int digit = 1; digit <= kDigits; ++digit) {
        const Role role = screen.marks[index][static_cast<std::size_t>(digit - 1)].role;
        if (role == Role::None) {
            continue;
        }
        parts << RoleText(screen, role) + QLatin1Char(' ') + QString::number(digit);
    }
    if (parts.isEmpty() && screen.cells[index].isHintCell) {
        parts << u"hint"_s;
    }
    return parts.join(u", "_s);
}

QString ToQString(const std::string& text) {
    return QString::fromStdString(text);
}

QString ToQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace vemo
