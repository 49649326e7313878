// The rows of the technique manager.
#include "qt/technique_rows.h"

#include <algorithm>

#include <QCheckBox>
#include <QFocusEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QRadioButton>
#include <QScrollArea>
#include <QStyle>

#include "qt/screen_text.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

using Column = TechniqueColumn;

constexpr std::array kControlColumns = {Column::Technique, Column::Include, Column::Halt};
constexpr int kColumnGap = 16;
constexpr double kRadius = 6;

std::size_t Index(int number) {
    return static_cast<std::size_t>(number);
}

int Number(Column column) {
    return static_cast<int>(column);
}

QLabel* MakeQuietLabel(const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    label->setForegroundRole(QPalette::PlaceholderText);
    return label;
}

// The caption of a row that keeps its place: a lock stands where other rows have their button.
class FixedCaption final : public QLabel {
  public:
    FixedCaption(const QString& text, QWidget* parent)
        : QLabel(text, parent), side_(style()->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth)) {
        setTextFormat(Qt::PlainText);
        setForegroundRole(QPalette::PlaceholderText);
        setIndent(side_ + style()->pixelMetric(QStyle::PM_RadioButtonLabelSpacing));
        setAccessibleName(text + u", keeps its place"_s);
    }

  protected:
    void paintEvent(QPaintEvent* event) override {
        QLabel::paintEvent(event);
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const QColor color = palette().color(QPalette::PlaceholderText);
        const double unit = side_ / 14.0;
        painter.translate(side_ / 2.0, height() / 2.0);
        painter.scale(unit, unit);
        painter.setPen(QPen(color, 1.4));
        painter.drawArc(QRectF(-2.6, -5.5, 5.2, 7), 0, 180 * 16);
        painter.drawLine(QPointF(-2.6, -2), QPointF(-2.6, 0));
        painter.drawLine(QPointF(2.6, -2), QPointF(2.6, 0));
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        painter.drawRoundedRect(QRectF(-4, -0.8, 8, 6), 1.2, 1.2);
    }

  private:
    int side_;
};

}  // namespace

QString MeaningOf(TechniqueColumn column) {
    switch (column) {
    case Column::Technique:
        return u"Hints and Autosolve try the techniques from the top"_s;
    case Column::Include:
        return u"Hints and Autosolve use this technique"_s;
    case Column::Halt:
        return u"Autosolve stops here and shows the step as a hint"_s;
    case Column::Number:
    case Column::Level:
        break;
    }
    return {};
}

TechniqueRows::TechniqueRows(Game& game, QScrollArea& area)
    : game_(game), area_(area), grid_(new QGridLayout(this)) {
    slotAt_.fill(kNoSlot);
    setAccessibleName(u"Techniques"_s);
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    grid_->setContentsMargins(kColumnGap / 2, kColumnGap / 4, kColumnGap / 2, kColumnGap / 4);
    grid_->setHorizontalSpacing(kColumnGap);
    grid_->setVerticalSpacing(0);
    grid_->setColumnStretch(kTechniqueColumns, 1);
    const auto rows = game_.TechniqueManager().Rows();
    for (int position = 0; position < kSlots; ++position) {
        AddPosition(position, rows[Index(position)]);
    }
    for (const TechniqueRow& row : rows) {
        AddBoxes(row);
    }
    area.setWidget(this);
    ShowScreen();
}

void TechniqueRows::AddPosition(int position, const TechniqueRow& row) {
    const auto add = [this, position](QWidget* widget, Column column) {
        grid_->addWidget(widget, position, Number(column));
    };
    grid_->setRowMinimumHeight(position, fontMetrics().height() * 8 / 5);
    QLabel* number = MakeQuietLabel(QString::number(position + 1), this);
    number->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    add(number, Column::Number);
    levels_[Index(position)] = MakeQuietLabel(QString(), this);
    add(levels_[Index(position)], Column::Level);
    if (!row.canMove) {
        auto* caption = new FixedCaption(ToQString(row.caption), this);
        caption->setToolTip(ToQString(row.tooltip));
        add(caption, Column::Technique);
        return;
    }
    auto* option = new QRadioButton(this);
    option->setObjectName(u"OptionOrder_%1"_s.arg(position));
    option->installEventFilter(this);
    connect(option, &QRadioButton::toggled, this, [this, position](bool isChecked) {
        if (isChecked && position != game_.TechniqueManager().Position()) {
            game_.OptionOrder(position);
        }
    });
    options_[Index(position)] = option;
    add(option, Column::Technique);
}

void TechniqueRows::AddBoxes(const TechniqueRow& row) {
    const QString caption = ToQString(row.caption);
    QCheckBox* include = MakeBox(row.slot);
    include->setAccessibleName(u"Include "_s + caption);
    include->setToolTip(MeaningOf(Column::Include));
    QCheckBox* halt = MakeBox(row.slot + kSlots);
    halt->setAccessibleName(u"Autosolve halt on "_s + caption);
    halt->setToolTip(MeaningOf(Column::Halt));
    if (!row.canInclude) {
        include->setText(u"always"_s);
    }
    if (row.slot < kFirstTechniqueSlot) {
        halt->setText(u"always"_s);
    }
}

QCheckBox* TechniqueRows::MakeBox(int index) {
    auto* box = new QCheckBox(this);
    box->setObjectName(u"CheckInclude_%1"_s.arg(index));
    box->installEventFilter(this);
    connect(box, &QCheckBox::clicked, this, [this, index] { game_.CheckInclude(index); });
    boxes_[Index(index)] = box;
    return box;
}

void TechniqueRows::ShowScreen() {
    const SolveTech& manager = game_.TechniqueManager();
    const auto rows = manager.Rows();
    const auto shown = slotAt_;
    for (int position = 0; position < kSlots; ++position) {
        const TechniqueRow& row = rows[Index(position)];
        ShowBoxes(row);
        if (slotAt_[Index(position)] != row.slot) {
            slotAt_[Index(position)] = row.slot;
            ShowRow(position, row);
        }
    }
    if (slotAt_ != shown) {
        PlaceBoxes();
    }
    if (selected_ != manager.Position()) {
        const bool hadFocus = qobject_cast<QRadioButton*>(window()->focusWidget()) != nullptr;
        Select(manager.Position());
        if (hadFocus) {
            FocusSelected();
        }
        if (isVisible()) {
            RevealSelected();
        }
    }
}

void TechniqueRows::ShowRow(int position, const TechniqueRow& row) {
    const QString level = ToQString(row.tooltip);
    levels_[Index(position)]->setText(level);
    levels_[Index(position)]->setHidden(level.isEmpty());
    QRadioButton* option = options_[Index(position)];
    if (option == nullptr) {
        return;
    }
    const QString caption = ToQString(row.caption);
    option->setText(caption);
    option->setToolTip(level);
    option->setAccessibleName(u"Select %1, position %2"_s.arg(caption).arg(position + 1));
}

void TechniqueRows::ShowBoxes(const TechniqueRow& row) {
    QCheckBox& include = *boxes_[Index(row.slot)];
    include.setChecked(row.isIncluded);
    include.setEnabled(row.canInclude);
    QCheckBox& halt = *boxes_[Index(row.slot + kSlots)];
    halt.setChecked(row.isHalting);
    halt.setEnabled(row.canHalt);
}

// Tab goes through the rows as they stand.
void TechniqueRows::PlaceBoxes() {
    QWidget* last = boxes_[0];
    for (int position = 0; position < kSlots; ++position) {
        for (const Column column : kControlColumns) {
            QAbstractButton* control = ControlAt(position, column);
            if (control == nullptr) {
                continue;
            }
            grid_->addWidget(control, position, Number(column));
            if (control != last) {
                setTabOrder(last, control);
                last = control;
            }
        }
    }
}

// The option buttons are one stop of the Tab key.
void TechniqueRows::Select(int position) {
    selected_ = position;
    options_[Index(position)]->setChecked(true);
    for (QRadioButton* option : options_) {
        if (option != nullptr) {
            option->setFocusPolicy(option->isChecked() ? Qt::StrongFocus : Qt::ClickFocus);
        }
    }
    update();
}

void TechniqueRows::FocusSelected() {
    options_[Index(selected_)]->setFocus(Qt::OtherFocusReason);
}

void TechniqueRows::RevealSelected() {
    Reveal(selected_);
}

int TechniqueRows::WantedWidth(TechniqueColumn column) const {
    int width = 0;
    for (int position = 0; position < kSlots; ++position) {
        const QLayoutItem* cell = grid_->itemAtPosition(position, Number(column));
        width = std::max(width, cell->sizeHint().width());
    }
    return width;
}

void TechniqueRows::SetWidth(TechniqueColumn column, int width) {
    grid_->setColumnMinimumWidth(Number(column), width);
}

void TechniqueRows::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().midlight());
    painter.drawRoundedRect(RowRect(selected_).adjusted(0, 1, 0, -1), kRadius, kRadius);
    // What keeps its place stands apart from what can be moved.
    painter.setRenderHint(QPainter::Antialiasing, false);
    for (const int position : {kFirstMovableSlot, kLastMovableSlot + 1}) {
        const QRect row = RowRect(position);
        painter.fillRect(QRect(row.left(), row.top(), row.width(), 1), palette().mid());
    }
}

void TechniqueRows::mousePressEvent(QMouseEvent* event) {
    for (int position = kFirstMovableSlot; position <= kLastMovableSlot; ++position) {
        if (RowRect(position).contains(event->pos())) {
            options_[Index(position)]->setFocus(Qt::MouseFocusReason);
            game_.OptionOrder(position);
        }
    }
}

bool TechniqueRows::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        const bool isPlain = (key->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
        return isPlain && MoveFocus(watched, key->key());
    }
    // A row that moved under a pressed button would take the click away from it.
    if (event->type() == QEvent::FocusIn &&
        static_cast<QFocusEvent*>(event)->reason() != Qt::MouseFocusReason) {
        Reveal(PositionOf(watched));
    }
    return QWidget::eventFilter(watched, event);
}

QAbstractButton* TechniqueRows::ControlAt(int position, TechniqueColumn column) const {
    const int slot = slotAt_[Index(position)];
    switch (column) {
    case Column::Technique:
        return options_[Index(position)];
    case Column::Include:
        return boxes_[Index(slot)];
    case Column::Halt:
        return boxes_[Index(slot + kSlots)];
    default:
        return nullptr;
    }
}

// An arrow key goes to the next control in its direction that is not off. Answers whether the key
// was one.
bool TechniqueRows::MoveFocus(const QObject* from, int key) {
    const int down = key == Qt::Key_Down ? 1 : key == Qt::Key_Up ? -1 : 0;
    const int right = key == Qt::Key_Right ? 1 : key == Qt::Key_Left ? -1 : 0;
    if (down == 0 && right == 0) {
        return false;
    }
    int position = PositionOf(from);
    int column = 0;
    while (ControlAt(position, kControlColumns[Index(column)]) != from) {
        ++column;
    }
    const int columns = static_cast<int>(kControlColumns.size());
    for (position += down, column += right;
         position >= 0 && position < kSlots && column >= 0 && column < columns;
         position += down, column += right) {
        QAbstractButton* next = ControlAt(position, kControlColumns[Index(column)]);
        if (next == nullptr || !next->isEnabled()) {
            continue;
        }
        window()->setAttribute(Qt::WA_KeyboardFocusChange);
        next->setFocus(Qt::TabFocusReason);
        if (kControlColumns[Index(column)] == Column::Technique) {
            next->setChecked(true);
        }
        break;
    }
    return true;
}

int TechniqueRows::PositionOf(const QObject* control) const {
    int position = 0;
    while (position < kSlots - 1 &&
           std::ranges::none_of(kControlColumns, [this, control, position](Column column) {
               return ControlAt(position, column) == control;
           })) {
        ++position;
    }
    return position;
}

QRect TechniqueRows::RowRect(int position) const {
    const QRect cell = grid_->cellRect(position, 0);
    const int inset = kColumnGap / 4;
    return {inset, cell.top(), width() - 2 * inset, cell.height()};
}

// With a part of the next row, so that the list is seen to go on.
void TechniqueRows::Reveal(int position) {
    grid_->activate();
    const QRect row = RowRect(position);
    area_.ensureVisible(0, row.center().y(), 0, row.height());
}

}  // namespace vemo
