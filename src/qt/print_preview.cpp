// The preview of what another window prints.
#include "qt/print_preview.h"

#include <utility>

#include <QBoxLayout>
#include <QComboBox>
#include <QLabel>
#include <QScreen>

#include "qt/print_controls.h"
#include "qt/print_pages_painter.h"
#include "qt/print_pane.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

constexpr int kPad = 16;
constexpr int kGap = 8;
constexpr QSize kSize(640, 800);
constexpr double kDeskShare = 0.9;  // of the desk's height that the window takes at most

}  // namespace

PrintPreview::PrintPreview(Game& game, Maker make, QWidget* parent)
    : QDialog(parent),
      game_(game),
      make_(std::move(make)),
      paper_(new QComboBox(this)),
      pane_(new PrintPane(game, this)) {
    setObjectName(u"PrintPreview"_s);
    paper_->setObjectName(u"ComboPaper"_s);
    paper_->addItems(PaperNames());
    connect(paper_, &QComboBox::currentIndexChanged, this,
            [this](int paper) { ChoosePaper(paper); });
    auto* label = new QLabel(u"P&aper"_s, this);
    label->setBuddy(paper_);
    auto* line = new QHBoxLayout;
    line->setContentsMargins(kPad, kPad, kPad, 0);
    line->setSpacing(kGap);
    line->addWidget(label);
    line->addWidget(paper_);
    line->addStretch(1);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addLayout(line);
    column->addWidget(pane_, 1);
    const int most = static_cast<int>(kDeskShare * screen()->availableGeometry().height());
    resize(kSize.width(), std::min(kSize.height(), most));
    ShowPaper();
}

// A dialog that closes leaves nothing running.
void PrintPreview::done(int result) {
    pane_->Stop();
    QDialog::done(result);
}

void PrintPreview::ShowPaper() {
    const Paper paper = game_.CurrentPaper();
    const QSignalBlocker blocker(paper_);
    paper_->setCurrentIndex(static_cast<int>(paper));
    const Printout printout = make_(PageSizeOf(paper));
    setWindowTitle(u"Print - %1"_s.arg(printout.name));
    pane_->ShowPrintout(printout);
}

void PrintPreview::ChoosePaper(int paper) {
    game_.ChoosePaper(static_cast<Paper>(paper));
    ShowPaper();
}

}  // namespace vemo
