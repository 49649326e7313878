// The box that says how a foreign file of records is read.
#include "qt/layout_dialog.h"

#include <algorithm>
#include <array>
#include <utility>

#include <QBoxLayout>
#include <QComboBox>
#include <QFontDatabase>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTableWidget>

#include "qt/form_controls.h"
#include "qt/row_table.h"
#include "qt/screen_text.h"
#include "qt/wrap_layout.h"
#include "tools/dig.h"
#include "tools/puzzle_line.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

constexpr int kPad = 16;
constexpr int kGap = 8;
constexpr int kPreviewRows = 5;
constexpr int kSpareCells = 6;  // as wide as the margins of a row

// What an empty cell is; also the pages of the control beside it.
enum EmptyKind : int { kCharacter, kByte, kAnything };

enum PreviewColumn : int { kRecord, kClues, kSudoku, kPreviewColumnCount };
constexpr std::array<RowTableColumn, kPreviewColumnCount> kPreviewColumns = {
    {{"Record", "0000"}, {"Clues", "00"}, {"Sudoku, row by row", ""}}};

constexpr char kFirstPrinted = ' ';
constexpr char kLastPrinted = '~';

bool IsPrinted(std::uint8_t byte) {
    return byte >= kFirstPrinted && byte <= kLastPrinted;
}

}  // namespace

LayoutDialog::LayoutDialog(const std::optional<RecordLayout>& layout, Preview preview,
                           QWidget* parent)
    : QDialog(parent), preview_(std::move(preview)) {
    setObjectName(u"LayoutDialog"_s);
    setWindowTitle(u"Record layout"_s);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kPad, kPad, kPad, kPad);
    column->setSpacing(kGap);
    QLabel* about = MakeText(u"LabelAbout"_s, this);
    about->setText(
        u"For a file of records of one length: the 81 cells of each stand side by side, row by "
        "row, a byte each."_s);
    column->addWidget(about);
    QFormLayout* form = MakeForm();
    column->addLayout(form);
    AddPlaces(*form);
    AddMeanings(*form);
    AddPreview(*column);
    column->addWidget(MakeButtons());
    ShowLayout(layout.value_or(RecordLayout()));
    ShowPreview();
    // All 81 cells are seen where the desk is as wide.
    const QFontMetrics fixed(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    const int beside = records_->columnWidth(kRecord) + records_->columnWidth(kClues);
    const int wanted = beside + (kCells + kSpareCells) * fixed.horizontalAdvance(u'0') + 2 * kPad;
    resize(std::min(wanted, parent->screen()->availableGeometry().width()), sizeHint().height());
}

void LayoutDialog::AddPlaces(QFormLayout& form) {
    const auto add = [this, &form](const QString& name, const QString& caption,
                                   const QString& toolTip, int least, std::uint64_t most) {
        QSpinBox* spin = MakeSpin(name, caption, least, static_cast<int>(most), this);
        spin->setSuffix(u" bytes"_s);
        spin->setToolTip(toolTip);
        connect(spin, &QSpinBox::valueChanged, this, [this] { ShowPreview(); });
        AddRow(form, caption, spin);
        return spin;
    };
    headerLength_ = add(u"SpinHeaderLength"_s, u"Header"_s,
                        u"What stands in the file before its first record"_s, 0, kLongestHeader);
    recordLength_ =
        add(u"SpinRecordLength"_s, u"Record"_s,
            u"The length of a record, with its line end where it has one"_s, 1, kLongestRecord);
    cluesOffset_ = add(u"SpinCluesOffset"_s, u"Clues begin after"_s,
                       u"What stands in a record before its first cell"_s, 0, kLongestRecord);
}

void LayoutDialog::AddMeanings(QFormLayout& form) {
    digits_ = MakeCombo(u"ComboRecordDigits"_s, u"Digits"_s, this);
    digits_->addItem(u"Text: the characters 1 to 9"_s, int(RecordDigits::Text));
    digits_->addItem(u"Binary: the bytes 1 to 9"_s, int(RecordDigits::Binary));
    AddRow(form, u"Digits"_s, digits_);
    emptyKind_ = MakeCombo(u"ComboEmptyKind"_s, u"An empty cell is"_s, this);
    emptyKind_->addItem(u"A character"_s, kCharacter);
    emptyKind_->addItem(u"A byte"_s, kByte);
    emptyKind_->addItem(u"Whatever is no digit"_s, kAnything);
    emptyCharacter_ = new QLineEdit(this);
    emptyCharacter_->setObjectName(u"EditEmptyCharacter"_s);
    emptyCharacter_->setAccessibleName(u"The character of an empty cell"_s);
    emptyCharacter_->setMaxLength(1);
    emptyByte_ = MakeSpin(u"SpinEmptyByte"_s, u"The byte of an empty cell"_s, 0, 255, this);
    empty_ = new QStackedWidget(this);
    empty_->addWidget(emptyCharacter_);
    empty_->addWidget(emptyByte_);
    empty_->addWidget(new QWidget(empty_));
    auto* line = new QWidget(this);
    auto* row = new QHBoxLayout(line);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(kGap);
    row->addWidget(emptyKind_, 1);
    row->addWidget(empty_, 1);
    AddRow(form, u"An empty cell is"_s, line);
    connect(digits_, &QComboBox::currentIndexChanged, this, [this] { ShowPreview(); });
    connect(emptyKind_, &QComboBox::currentIndexChanged, this, [this] { ShowPreview(); });
    connect(emptyCharacter_, &QLineEdit::textChanged, this, [this] { ShowPreview(); });
    connect(emptyByte_, &QSpinBox::valueChanged, this, [this] { ShowPreview(); });
}

void LayoutDialog::AddPreview(QBoxLayout& column) {
    records_ = new QTableWidget(kPreviewRows, kPreviewColumnCount, this);
    records_->setObjectName(u"ListRecords"_s);
    records_->setAccessibleName(u"The first records"_s);
    SetUpRows(*records_);
    records_->setSelectionMode(QTableWidget::SingleSelection);
    QStringList captions;
    for (const RowTableColumn& row : kPreviewColumns) {
        captions << QString::fromLatin1(row.caption);
    }
    records_->setHorizontalHeaderLabels(captions);
    records_->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    FitColumns(*records_, kPreviewColumns);
    const int rows = kPreviewRows * records_->verticalHeader()->defaultSectionSize();
    records_->setMinimumHeight(rows + records_->horizontalHeader()->sizeHint().height() +
                               2 * records_->frameWidth());
    fault_ = MakeText(u"LabelLayoutFault"_s, this);
    fault_->setForegroundRole(QPalette::BrightText);
    column.addWidget(MakeLabel(u"The first records would be"_s, this));
    column.addWidget(records_, 1);
    column.addWidget(fault_);
}

QWidget* LayoutDialog::MakeButtons() {
    auto* buttons = new QWidget(this);
    const auto make = [buttons](const QString& name, const QString& text) {
        auto* button = new QPushButton(text, buttons);
        button->setObjectName(name);
        return button;
    };
    read_ = make(u"CommandReadRecords"_s, u"&Read Records"_s);
    read_->setDefault(true);
    connect(read_, &QPushButton::clicked, this, &QDialog::accept);
    QPushButton* own = make(u"CommandOwnFormat"_s, u"By Its &Own Format"_s);
    own->setToolTip(u"Find out by itself what the file holds, as when it was opened"_s);
    connect(own, &QPushButton::clicked, this, [this] {
        isByOwnFormat_ = true;
        accept();
    });
    QPushButton* cancel = make(u"CommandCancelLayout"_s, u"&Cancel"_s);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    auto* line = new WrapLayout(buttons, kGap);
    for (QPushButton* button : {read_, own, cancel}) {
        line->addWidget(button);
    }
    return buttons;
}

void LayoutDialog::ShowLayout(const RecordLayout& layout) {
    headerLength_->setValue(static_cast<int>(layout.headerLength));
    recordLength_->setValue(static_cast<int>(layout.recordLength));
    cluesOffset_->setValue(static_cast<int>(layout.cluesOffset));
    digits_->setCurrentIndex(digits_->findData(static_cast<int>(layout.digits)));
    const std::uint8_t empty = layout.empty.value_or(0);
    emptyByte_->setValue(empty);
    emptyCharacter_->setText(IsPrinted(empty) ? QString(QLatin1Char(static_cast<char>(empty)))
                                              : QString());
    const int kind = !layout.empty ? kAnything : IsPrinted(empty) ? kCharacter : kByte;
    emptyKind_->setCurrentIndex(emptyKind_->findData(kind));
}

RecordLayout LayoutDialog::Entered() const {
    RecordLayout layout;
    layout.headerLength = static_cast<std::uint64_t>(headerLength_->value());
    layout.recordLength = static_cast<std::uint64_t>(recordLength_->value());
    layout.cluesOffset = static_cast<std::uint64_t>(cluesOffset_->value());
    layout.digits = static_cast<RecordDigits>(digits_->currentData().toInt());
    layout.empty.reset();
    if (emptyKind_->currentData() == kByte) {
        layout.empty = static_cast<std::uint8_t>(emptyByte_->value());
    } else if (emptyKind_->currentData() == kCharacter) {
        layout.empty = static_cast<std::uint8_t>(emptyCharacter_->text().at(0).unicode());
    }
    return layout;
}

// What is wrong with what is entered, a sentence for the player; empty: nothing.
QString LayoutDialog::Fault() const {
    if (emptyKind_->currentData() == kCharacter) {
        const QString text = emptyCharacter_->text();
        if (text.isEmpty()) {
            return u"Enter the character that an empty cell is"_s;
        }
        if (text.at(0).unicode() > kLastPrinted) {
            return u"%1 is no single byte: choose \"A byte\""_s.arg(text);
        }
    }
    return ToQString(LayoutFault(Entered()));
}

void LayoutDialog::ShowPreview() {
    empty_->setCurrentIndex(emptyKind_->currentData().toInt());
    const QString fault = Fault();
    const std::vector<ReadPiece> pieces =
        fault.isEmpty() ? preview_(Entered()) : std::vector<ReadPiece>();
    for (int row = 0; row < kPreviewRows; ++row) {
        const auto at = static_cast<std::size_t>(row);
        ShowPiece(row, at < pieces.size() ? &pieces[at] : nullptr);
    }
    fault_->setText(!fault.isEmpty() ? fault
                    : pieces.empty() ? u"The file has no record by this layout"_s
                                     : QString());
    read_->setEnabled(!pieces.empty());
}

void LayoutDialog::ShowPiece(int row, const ReadPiece* piece) {
    const auto put = [this, row](int column, const QString& text) {
        auto* item = new QTableWidgetItem(text);
        item->setToolTip(text);
        if (column == kSudoku) {
            item->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
        }
        records_->setItem(row, column, item);
    };
    const bool isPuzzle = piece != nullptr && piece->IsPuzzle();
    const QString error = piece == nullptr ? QString() : ToQString(piece->error);
    put(kRecord, piece == nullptr ? QString() : QString::number(piece->line));
    put(kClues, isPuzzle ? QString::number(ClueCount(piece->Clues())) : QString());
    put(kSudoku, isPuzzle ? ToQString(WriteGrid81(piece->Clues())) : error);
}

std::optional<RecordLayout> LayoutDialog::Chosen() const {
    return isByOwnFormat_ ? std::nullopt : std::optional(Entered());
}

}  // namespace vemo
