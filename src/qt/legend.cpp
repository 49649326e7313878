// The line that explains the shapes of the hint on display.
#include "qt/legend.h"

#include <QFontMetrics>
#include <QPainter>
#include <QStringList>

#include "qt/role_shapes.h"
#include "qt/screen_text.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

// What stands struck through in the legend.
constexpr int kSampleDigit = 3;

int SampleDigitOf(Role role) {
    return role == Role::Attacked ? kSampleDigit : 0;
}

bool AreAlike(const std::vector<LegendEntry>& a, const std::vector<LegendEntry>& b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](const LegendEntry& x, const LegendEntry& y) {
                          return x.role == y.role && x.text == y.text;
                      });
}

}  // namespace

Legend::Legend(QWidget* parent) : QWidget(parent) {
    setAccessibleName(u"Legend"_s);
}

bool Legend::ShowEntries(const std::vector<LegendEntry>& entries, const BoardColors& colors) {
    if (AreAlike(entries, entries_) && colors == colors_) {
        return false;
    }
    entries_ = entries;
    colors_ = colors;
    QStringList words;
    for (const LegendEntry& entry : entries_) {
        words << ToQString(entry.text);
    }
    setAccessibleName(u"Legend: "_s + words.join(u", "_s));
    update();
    return true;
}

int Legend::heightForWidth(int width) const {
    return LegendPainter(entries_, font()).HeightFor(width);
}

QSize Legend::sizeHint() const {
    const LegendPainter legend(entries_, font());
    return {legend.WidthOfAll(), legend.HeightFor(legend.WidthOfAll())};
}

void Legend::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    LegendPainter(entries_, font()).Paint(painter, rect(), colors_);
}

int LegendPainter::WidthOfAll() const {
    int width = 0;
    for (const LegendEntry& entry : entries_) {
        width += EntryWidth(entry);
    }
    return width;
}

int LegendPainter::HeightFor(int width) const {
    return entries_.empty() ? 0 : PlacesIn(width).back().y() + LineHeight();
}

void LegendPainter::Paint(QPainter& painter, const QRect& room, const BoardColors& colors) const {
    const std::vector<QPoint> places = PlacesIn(room.width());
    for (std::size_t index = 0; index < entries_.size(); ++index) {
        const LegendEntry& entry = entries_[index];
        const QPoint place = room.topLeft() + places[index];
        const QPoint middle = place + QPoint(Radius() + Ring(), LineHeight() / 2);
        DrawRole(painter, middle, Radius(), entry.role, SampleDigitOf(entry.role), font_, colors,
                 colors.theme.panel);
        painter.setFont(font_);
        painter.setPen(colors.theme.softText);
        const QRect words(place + QPoint(3 * Radius() + Ring(), 0),
                          QSize(room.width(), LineHeight()));
        painter.drawText(words, Qt::AlignLeft | Qt::AlignVCenter, ToQString(entry.text));
    }
}

std::vector<QPoint> LegendPainter::PlacesIn(int width) const {
    std::vector<QPoint> places;
    QPoint next;
    for (const LegendEntry& entry : entries_) {
        const int needed = EntryWidth(entry);
        if (next.x() > 0 && next.x() + needed > width) {
            next = {0, next.y() + LineHeight()};
        }
        places.push_back(next);
        next.rx() += needed;
    }
    return places;
}

int LegendPainter::EntryWidth(const LegendEntry& entry) const {
    return 5 * Radius() + Ring() + metrics_.horizontalAdvance(ToQString(entry.text));
}

}  // namespace vemo
