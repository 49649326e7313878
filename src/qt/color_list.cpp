// The list of the colours.
#include "qt/color_list.h"

#include <QEvent>
#include <QScrollBar>

#include "qt/color_swatch.h"
#include "qt/screen_text.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

constexpr int kLeastCharacters = 30;
constexpr int kRows = 14;  // seen at once, if there is room

}  // namespace

ColorList::ColorList(Game& game, QWidget* parent) : QListWidget(parent), game_(game) {
    setObjectName(u"ListColors"_s);
    setAccessibleName(u"Colors"_s);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setUniformItemSizes(false);
    headings_[0] = new QListWidgetItem(u"Brushes"_s, this);
    for (int row = 0; row < kColorRows; ++row) {
        if (row == kBrushColors) {
            headings_[1] = new QListWidgetItem(u"Hints"_s, this);
        }
        auto* item = new QListWidgetItem(this);
        item->setData(Qt::UserRole, row);
        items_[static_cast<std::size_t>(row)] = item;
    }
    for (QListWidgetItem* heading : headings_) {
        heading->setFlags(Qt::NoItemFlags);
    }
    connect(this, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem* item) {
        const QVariant row = item == nullptr ? QVariant() : item->data(Qt::UserRole);
        if (row.isValid() && row.toInt() != game_.CurrentColorWindow().Row()) {
            game_.ColorSelect(row.toInt());
        }
    });
}

void ColorList::ShowColors(const ColorWindow& window, const BoardColors& shown,
                           const BoardColors& colors) {
    if (shown_ != shown || colors_ != colors) {
        shown_ = shown;
        colors_ = colors;
        Fill();
    }
    QListWidgetItem* selected = items_[static_cast<std::size_t>(window.Row())];
    if (currentItem() != selected) {
        setCurrentItem(selected);
    }
}

void ColorList::Fill() {
    const int line = fontMetrics().height();
    setIconSize({2 * line, line * 3 / 2});
    QFont bold = font();
    bold.setWeight(QFont::DemiBold);
    for (QListWidgetItem* heading : headings_) {
        heading->setFont(bold);
        heading->setForeground(colors_.theme.softText);
        heading->setSizeHint({0, line * 2});
    }
    for (int row = 0; row < kColorRows; ++row) {
        FillItem(row, game_.CurrentColorWindow().Report(row));
    }
}

void ColorList::FillItem(int row, const ColorReport& report) {
    QListWidgetItem& item = *items_[static_cast<std::size_t>(row)];
    QString text = ToQString(ColorName(row));
    QStringList reasons;
    for (const ColorWarning& warning : report.warnings) {
        reasons << ToQString(warning.text);
    }
    if (!reasons.isEmpty()) {
        text += u": "_s + ToQString(report.warnings.front().brief);
    }
    item.setText(text);
    item.setToolTip(reasons.isEmpty() ? ToQString(ColorUse(row)) : reasons.join(u'\n'));
    item.setForeground(reasons.isEmpty() ? colors_.theme.text : colors_.theme.wrong);
    const QPixmap swatch = ColorSwatch(row, shown_, iconSize(), devicePixelRatioF(), font());
    QIcon icon(swatch);
    icon.addPixmap(swatch, QIcon::Selected);  // else it is tinted
    item.setIcon(icon);
    item.setSizeHint({0, fontMetrics().height() * 2});
}

QSize ColorList::sizeHint() const {
    const QFontMetrics metrics = fontMetrics();
    const int bar = verticalScrollBar()->sizeHint().width();
    return {kLeastCharacters * metrics.averageCharWidth() + 2 * metrics.height() + bar,
            kRows * metrics.height() * 2};
}

void ColorList::changeEvent(QEvent* event) {
    QListWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange && items_.back() != nullptr) {
        Fill();
    }
}

}  // namespace vemo
