// A sudoku on a small board of its own, and in words.
#include "qt/grid_screen.h"

#include <QStringList>

namespace vemo {

using namespace Qt::StringLiterals;

Screen ScreenOf(const Digits& clues) {
    Screen screen;
    for (std::size_t cell = 0; cell < clues.size(); ++cell) {
        screen.cells[cell] = {.digit = clues[cell], .isClue = clues[cell] != 0};
    }
    return screen;
}

Screen ScreenOf(const Grid& grid) {
    Screen screen;
    for (int cell = 0; cell < kCells; ++cell) {
        screen.cells[static_cast<std::size_t>(cell)] = {.digit = grid.Digit(cell),
                                                        .isClue = grid.IsGiven(cell)};
    }
    return screen;
}

QString RowsOf(const Digits& digits) {
    QStringList rows;
    for (int row = 0; row < 9; ++row) {
        QString text = u"row %1:"_s.arg(QLatin1Char(static_cast<char>("ABCDEFGHJ"[row])));
        for (int column = 0; column < 9; ++column) {
            const int digit = digits[static_cast<std::size_t>(row * 9 + column)];
            text += digit == 0 ? u" empty"_s : u" %1"_s.arg(digit);
        }
        rows << text;
    }
    return rows.join(u"; "_s);
}

}  // namespace vemo
