// What can be done with many sudokus of a collection at once.
#include "qt/collection_actions.h"

#include <string_view>

#include <QLabel>
#include <QMenu>
#include <QPushButton>

#include "game/collection_texts.h"
#include "qt/form_controls.h"
#include "qt/screen_text.h"
#include "qt/wrap_layout.h"
#include "tools/duplicates.h"
#include "tools/puzzle_export.h"

namespace vemo {

using namespace Qt::StringLiterals;

namespace {

constexpr int kGap = 8;

// What the buttons are for.
QString WhatFor(const CollectionWindow& window, std::size_t chosen) {
    if (chosen == 0) {
        return u"For all shown:"_s;
    }
    return window.IsForSelected() ? u"For the %1 selected:"_s.arg(ToQString(Grouped(chosen)))
                                  : u"For all %1 shown:"_s.arg(ToQString(Grouped(chosen)));
}

}  // namespace

QPushButton* MakeMenuButton(const QString& name, const QString& text, QMenu& menu,
                            QWidget* parent) {
    auto* button = new QPushButton(text, parent);
    button->setObjectName(name);
    menu.setParent(button, menu.windowFlags());
    button->setMenu(&menu);
    return button;
}

CollectionActions::CollectionActions(Game& game, QWidget* parent) : QWidget(parent), game_(game) {
    auto* line = new WrapLayout(this, kGap);
    whatFor_ = MakeLabel(QString(), this);
    whatFor_->setObjectName(u"LabelWhatFor"_s);
    line->addWidget(whatFor_);
    AddJob(u"CommandCheck"_s, u"&Check"_s, u"Count solutions, rate, and look for duplicates"_s,
           CollectionJob::Check);
    AddJob(u"CommandRate"_s, u"&Rate"_s,
           u"Find each sudoku's level with the techniques that are switched on"_s,
           CollectionJob::Rate);
    AddJob(u"CommandBruteCheck"_s, u"&Brute Check"_s, u"Find out which have exactly one solution"_s,
           CollectionJob::BruteCheck);
    AddJob(u"CommandFindTwins"_s, u"Find &Duplicates"_s,
           u"Look for sudokus that occur twice, or are the same turned, mirrored, with digits "
           "changed or lines moved"_s,
           CollectionJob::FindTwins);
    AddButton(
        MakeMenuButton(u"CommandRemoveTwins"_s, u"Re&move Duplicates"_s, *MakeRemoveMenu(), this),
        u"Take duplicates that were found off the list; no file changes"_s);
    putBack_ = new QPushButton(u"P&ut Back"_s, this);
    putBack_->setObjectName(u"CommandPutBack"_s);
    putBack_->setToolTip(u"Show all that were taken off the list again"_s);
    connect(putBack_, &QPushButton::clicked, this, [this] { game_.Collection().CommandPutBack(); });
    line->addWidget(putBack_);
    AddJob(u"CommandImport"_s, u"&Import"_s,
           u"Rate them and add those that are new to the level files"_s, CollectionJob::Import);
    AddButton(MakeMenuButton(u"CommandExport"_s, u"&Export"_s, *MakeExportMenu(), this),
              u"Write them to a file"_s);
    auto* print = new QPushButton(u"Prin&t..."_s, this);
    print->setObjectName(u"CommandPrint"_s);
    connect(print, &QPushButton::clicked, this, [this] { game_.Collection().CommandPrint(); });
    AddButton(print, u"Print them, or see the pages first"_s);
}

void CollectionActions::AddJob(const QString& name, const QString& text, const QString& toolTip,
                               CollectionJob job) {
    auto* button = new QPushButton(text, this);
    button->setObjectName(name);
    connect(button, &QPushButton::clicked, this,
            [this, job] { game_.Collection().CommandStart(job); });
    AddButton(button, toolTip);
}

void CollectionActions::AddButton(QPushButton* button, const QString& toolTip) {
    button->setToolTip(toolTip);
    buttons_ << button;
    layout()->addWidget(button);
}

QMenu* CollectionActions::MakeRemoveMenu() {
    auto* menu = new QMenu(this);
    const auto add = [this, menu](const QString& text, Sameness sameness) {
        menu->addAction(text, this,
                        [this, sameness] { game_.Collection().CommandRemoveTwins(sameness); });
    };
    add(u"Exact &Only"_s, Sameness::Exact);
    add(u"Exact &and Equivalent"_s, Sameness::Equivalent);
    return menu;
}

QMenu* CollectionActions::MakeExportMenu() {
    auto* menu = new QMenu(this);
    constexpr std::u16string_view kLetters = u"123456789abc";
    static_assert(kLetters.size() == kExportFormats.size());
    for (std::size_t at = 0; at < kExportFormats.size(); ++at) {
        const ExportFormatRow& row = kExportFormats[at];
        const QString text = u"&%1  %2 (*%3)"_s.arg(QChar(kLetters[at]), ToQString(row.caption),
                                                    ToQString(row.ending));
        menu->addAction(text, this,
                        [this, format = row.format] { game_.Collection().CommandExport(format); });
    }
    return menu;
}

void CollectionActions::ShowUsable() {
    const CollectionWindow& window = game_.Collection().Window();
    const std::size_t chosen = window.ChosenCount();
    whatFor_->setText(WhatFor(window, chosen));
    for (QPushButton* button : buttons_) {
        button->setEnabled(chosen > 0 && !window.IsBusy());
    }
    putBack_->setEnabled(window.RemovedCount() > 0 && !window.IsBusy());
}

}  // namespace vemo
