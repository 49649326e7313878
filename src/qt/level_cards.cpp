// What an empty board offers.
#include "qt/level_cards.h"

#include <algorithm>

#include <QPainter>
#include <QPushButton>

#include "qt/screen_text.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

constexpr double kLineShare = 0.009;  // of a box's side, that its lines may take
constexpr double kPlainBox = 160;     // the side at which the texts have the system's size
constexpr double kCardShare = 0.8;    // of a box's side, that its card is wide
constexpr double kCardPad = 6;        // that a card keeps around its text

bool IsWithoutPuzzle(const Screen& screen) {
    return !screen.isBoardEnabled && !screen.isBoardCovered &&
           std::all_of(screen.cells.begin(), screen.cells.end(),
                       [](const CellView& cell) { return cell.digit == 0; });
}

// The level's unfinished puzzle, where the player wants to go on with it; its next one otherwise.
void Play(Game& game, int level) {
    game.Run(LevelCommand(level));
    if (IsWithoutPuzzle(game.Current())) {
        game.Run(CommandId::SudokuNext);
    }
}

}  // namespace

LevelCards::LevelCards(Game& game, QWidget* parent) : QWidget(parent) {
    setObjectName(u"LevelCards"_s);
    setAccessibleName(u"Levels"_s);
    for (int level = 1; level <= kLevels; ++level) {
        auto* card = new QPushButton(ToQString(LevelName(level)), this);
        card->setObjectName(u"LevelCard%1"_s.arg(level));
        card->setToolTip(u"Play a sudoku of level %1"_s.arg(card->text()));
        connect(card, &QPushButton::clicked, this, [&game, level] { Play(game, level); });
        cards_[static_cast<std::size_t>(level - 1)] = card;
    }
    hide();
}

void LevelCards::ShowScreen(const Screen& screen, const BoardColors& colors) {
    board_ = colors.theme.board;
    std::size_t current = 0;
    for (int level = 1; level <= kLevels; ++level) {
        const CommandView& command = screen.Command(LevelCommand(level));
        QPushButton& card = *cards_[static_cast<std::size_t>(level - 1)];
        card.setEnabled(command.isEnabled);
        card.setDefault(command.isChecked);
        if (command.isChecked) {
            current = static_cast<std::size_t>(level - 1);
        }
    }
    setFocusProxy(cards_[current]);
    setVisible(IsWithoutPuzzle(screen));
}

// The lines between the cells would run through the cards.
void LevelCards::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const double box = width() / 3.0;
    for (int level = 0; level < kLevels; ++level) {
        const QRectF room(level % 3 * box, level / 3 * box, box, box);
        const double inset = kLineShare * box;
        painter.fillRect(room.adjusted(inset, inset, -inset, -inset), board_);
    }
}

void LevelCards::resizeEvent(QResizeEvent*) {
    const double box = width() / 3.0;
    const QFontMetrics metrics = parentWidget()->fontMetrics();
    int widest = 1;
    for (const QPushButton* card : cards_) {
        widest = std::max(widest, metrics.horizontalAdvance(card->text()));
    }
    const double scale =
        std::min(std::clamp(box / kPlainBox, 0.9, 2.0), (kCardShare * box - kCardPad) / widest);
    QFont scaled = parentWidget()->font();
    scaled.setPointSizeF(std::max(1.0, scaled.pointSizeF() * scale));
    setFont(scaled);
    for (int level = 0; level < kLevels; ++level) {
        QPushButton& card = *cards_[static_cast<std::size_t>(level)];
        const QPointF middle((level % 3 + 0.5) * box, (level / 3 + 0.5) * box);
        QRectF place(0, 0, kCardShare * box, std::max(0.22 * box, 1.8 * fontMetrics().height()));
        place.moveCenter(middle);
        card.setGeometry(place.toRect());
    }
}

}  // namespace vemo
