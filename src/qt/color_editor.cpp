// The controls that change one colour.
#include "qt/color_editor.h"

#include <QColorDialog>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "qt/color_swatch.h"
#include "qt/screen_text.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

constexpr int kGap = 8;
constexpr int kNoteLines = 4;
constexpr int kCharacters = 9;  // of a colour's text, with some room
constexpr ColorPart kParts[] = {ColorPart::Color, ColorPart::Text};

QLabel* MakeText(const QString& name, QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

QString PartName(ColorPart part, int row) {
    const QString name = ToQString(ColorName(row));
    return part == ColorPart::Text ? u"Digits on %1"_s.arg(name) : name;
}

// An empty text takes no room.
void Say(QLabel& label, const QString& text) {
    label.setText(text);
    label.setVisible(!text.isEmpty());
}

}  // namespace

ColorEditor::ColorEditor(Game& game, QWidget* parent) : QWidget(parent), game_(game) {
    name_ = MakeText(u"LabelColorName"_s, this);
    QFont bold = font();
    bold.setWeight(QFont::Bold);
    name_->setFont(bold);
    use_ = MakeText(u"LabelColorUse"_s, this);
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(kGap);
    grid->setVerticalSpacing(kGap);
    grid->setColumnStretch(1, 1);
    for (const ColorPart part : kParts) {
        LineOf(part) = MakeLine(part, *grid);
    }
    reset_ = new QPushButton(u"&Reset Color"_s, this);
    reset_->setObjectName(u"CommandResetColor"_s);
    reset_->setToolTip(u"The color that came with the game"_s);
    connect(reset_, &QPushButton::clicked, this, [this] { game_.CommandResetColor(); });

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(kGap);
    column->addWidget(name_);
    column->addWidget(use_);
    column->addLayout(grid);
    column->addWidget(reset_, 0, Qt::AlignLeft);
    column->addWidget(MakeNotes());
    column->addStretch(1);
}

// As high as most notes are, so that the board above keeps its size while one comes and goes.
QWidget* ColorEditor::MakeNotes() {
    auto* notes = new QWidget(this);
    notes->setMinimumHeight(kNoteLines * fontMetrics().lineSpacing() + kGap);
    error_ = MakeText(u"LabelColorError"_s, notes);
    figure_ = MakeText(u"LabelContrast"_s, notes);
    warnings_ = MakeText(u"LabelWarnings"_s, notes);
    auto* column = new QVBoxLayout(notes);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(kGap);
    for (QLabel* label : {error_, figure_, warnings_}) {
        column->addWidget(label);
    }
    column->addStretch(1);
    for (QLabel* label : {error_, warnings_}) {
        label->setForegroundRole(QPalette::BrightText);
    }
    return notes;
}

ColorEditor::Line ColorEditor::MakeLine(ColorPart part, QGridLayout& grid) {
    const bool isDigits = part == ColorPart::Text;
    Line line;
    line.label = new QLabel(isDigits ? u"&Digits"_s : u"&Color"_s, this);
    line.edit = new QLineEdit(this);
    line.edit->setObjectName(isDigits ? u"EditDigits"_s : u"EditColor"_s);
    line.edit->setMinimumWidth(kCharacters * fontMetrics().horizontalAdvance(u'D'));
    line.label->setBuddy(line.edit);
    connect(line.edit, &QLineEdit::textEdited, this,
            [this, part](const QString& text) { game_.ColorType(part, text.toStdString()); });
    connect(line.edit, &QLineEdit::editingFinished, this, [this] { game_.ColorEndTyping(); });
    line.choose = new QPushButton(isDigits ? u"Choos&e..."_s : u"C&hoose..."_s, this);
    line.choose->setObjectName(isDigits ? u"CommandChooseDigits"_s : u"CommandChooseColor"_s);
    connect(line.choose, &QPushButton::clicked, this, [this, part] { Choose(part); });
    int column = 0;
    for (QWidget* control : std::initializer_list<QWidget*>{line.label, line.edit, line.choose}) {
        QSizePolicy policy = control->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        control->setSizePolicy(policy);
        grid.addWidget(control, static_cast<int>(part), column++);
    }
    return line;
}

void ColorEditor::ShowColors(const ColorWindow& window, const BoardColors& colors) {
    const int row = window.Row();
    const ColorReport& report = window.Report(row);
    name_->setText(ToQString(ColorName(row)));
    use_->setText(ToQString(ColorUse(row)));
    for (const ColorPart part : kParts) {
        ShowLine(part, window, colors);
    }
    Say(*error_, ToQString(window.Error()));
    const bool isColor = window.Error().empty();
    Say(*figure_, isColor ? ToQString(report.figure) : QString());
    QStringList warnings;
    for (const ColorWarning& warning : report.warnings) {
        warnings << ToQString(warning.text) + u'.';
    }
    Say(*warnings_, isColor ? warnings.join(u'\n') : QString());
    // What goes off cannot keep the keyboard.
    if (!window.CanReset() && reset_->hasFocus()) {
        LineOf(ColorPart::Color).edit->setFocus();
    }
    reset_->setEnabled(window.CanReset());
}

void ColorEditor::ShowLine(ColorPart part, const ColorWindow& window, const BoardColors& colors) {
    Line& line = LineOf(part);
    const bool isShown = window.HasPart(part);
    line.label->setVisible(isShown);
    line.edit->setVisible(isShown);
    line.choose->setVisible(isShown);
    if (!isShown) {
        return;
    }
    const QString name = PartName(part, window.Row());
    line.edit->setAccessibleName(name);
    line.choose->setAccessibleName(u"Choose %1"_s.arg(name));
    const QString text = ToQString(window.Text(part));
    if (line.edit->text() != text) {
        line.edit->setText(text);
    }
    const int side = fontMetrics().height();
    line.choose->setIconSize({side, side});
    line.choose->setIcon(PlainSwatch(QColor(QRgb(window.Color(part))), colors.theme.softText,
                                     line.choose->iconSize(), devicePixelRatioF()));
}

void ColorEditor::Choose(ColorPart part) {
    const ColorWindow& window = game_.CurrentColorWindow();
    if (!window.HasPart(part)) {
        return;
    }
    const Rgb before = window.Color(part);
    auto* dialog = new QColorDialog(QColor(QRgb(before)), this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    // The systems' own boxes tell nothing before they close.
    dialog->setOption(QColorDialog::DontUseNativeDialog);
    dialog->setWindowTitle(PartName(part, window.Row()));
    connect(dialog, &QColorDialog::currentColorChanged, this,
            [this, part](const QColor& color) { game_.ColorChange(part, color.rgb() & RGB_MASK); });
    connect(dialog, &QColorDialog::rejected, this,
            [this, part, before] { game_.ColorChange(part, before); });
    dialog->open();
}

}  // namespace vemo
