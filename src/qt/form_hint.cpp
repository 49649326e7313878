// The big hint window.
#include "qt/form_hint.h"

#include <cmath>

#include <QBuffer>
#include <QImage>
#include <QMenuBar>
#include <QPainter>

#include "qt/hint_content.h"
#include "qt/hint_sheet.h"
#include "qt/print_preview.h"
#include "qt/screen_text.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize kSize(760, 520);
constexpr QSize kLeastSize(420, 320);

}  // namespace

FormHint::FormHint(Game& game, QWidget* parent)
    : FormWindow(game, Form::FormHint, parent), content_(new HintContent(this)) {
    setObjectName(u"FormHint"_s);
    setCentralWidget(content_);
    setMinimumSize(kLeastSize);
    MakeMenu();
    resize(kSize);
}

void FormHint::ShowScreen(const BoardColors& colors) {
    const HintWindow& window = CurrentGame().CurrentHintWindow();
    colors_ = colors;
    setWindowTitle(ToQString(window.caption));
    content_->ShowHint(window, colors);
    const bool isIdle = !CurrentGame().CurrentSession().IsBusy();
    for (QAction* action : {refresh_, save_, print_, more_}) {
        action->setEnabled(isIdle);
    }
}

Bytes FormHint::Picture() const {
    const double scale = content_->devicePixelRatioF();
    QFont font = content_->font();
    font.setPixelSize(static_cast<int>(std::lround(content_->fontInfo().pixelSize() * scale)));
    const HintSheet sheet(CurrentGame().CurrentHintWindow(), colors_, font, scale);
    const QSize size = sheet.SizeFor((QSizeF(content_->size()) * scale).toSize());
    QImage image(size, QImage::Format_RGB32);
    image.fill(colors_.theme.window);
    QPainter painter(&image);
    sheet.Paint(painter, size);
    painter.end();
    QByteArray bytes;
    QBuffer file(&bytes);
    file.open(QIODevice::WriteOnly);
    image.save(&file, "BMP");
    return {bytes.begin(), bytes.end()};
}

void FormHint::MakeMenu() {
    menuBar()->setAccessibleName(u"Menu"_s);
    QMenu* menu = menuBar()->addMenu(u"&Window"_s);
    Game& game = CurrentGame();
    const auto add = [this, menu](const QString& name, const QString& caption,
                                  const QKeySequence& key, const auto& handler) {
        QAction* action = menu->addAction(caption, key, this, handler);
        action->setObjectName(name);
        return action;
    };
    refresh_ = add(u"mnuWindowRefresh"_s, u"&Refresh"_s, QKeySequence(u"F5"_s),
                   [&game] { game.mnuWindowRefresh(); });
    save_ = add(u"mnuWindowsSave"_s, u"&Save as BMP"_s, QKeySequence(u"Ctrl+S"_s),
                [&game] { game.mnuWindowsSave(); });
    print_ =
        add(u"mnuWindowPrint"_s, u"&Print..."_s, QKeySequence(u"Ctrl+P"_s), [this] { Print(); });
    more_ = add(u"mnuWindowMore"_s, u"Learn &More"_s, QKeySequence(u"F1"_s),
                [&game] { game.KeyHelp(Form::FormHint); });
    menu->addSeparator();
    add(u"mnuWindowClose"_s, u"&Close"_s, QKeySequence(u"Ctrl+W"_s),
        [&game] { game.mnuWindowClose(); });
}

void FormHint::Print() {
    const auto make = [this](const QPageSize& paper) {
        return HintPrintout(CurrentGame().CurrentHintWindow(), CurrentGame().CurrentColors().light,
                            paper);
    };
    PrintPreview(CurrentGame(), make, this).exec();
}

}  // namespace vemo
