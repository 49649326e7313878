// The window of the help: the contents on its left, a page on its right, a line that searches all
// pages.
#pragma once

#include "qt/form_window.h"
#include "qt/help_browser.h"
#include "qt/help_index.h"
#include "qt/theme.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QSplitter;
class QTreeWidget;
class QTreeWidgetItem;

namespace vemo {

class FormHelp final : public FormWindow {
  public:
    FormHelp(Game& game, QWidget* parent);

    void ShowPage(const std::string& page);
    void ShowScreen(const BoardColors& colors);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    QWidget* MakeTop();
    void MakeContents();
    void MakeMenus();
    // The page has changed, by whatever means.
    void FollowPage();
    // The contents as far as they have the words of the search.
    void Search();
    void MarkWords();
    void SearchOn(HelpBrowser::Way way);
    void ShowEntry(const QTreeWidgetItem* entry);
    QStringList Words() const;

    std::vector<HelpPage> pages_;
    HelpIndex index_;
    HelpBrowser* text_;
    QTreeWidget* contents_;
    std::vector<QTreeWidgetItem*> entries_;  // by page
    QLineEdit* search_;
    QLabel* found_;
    QSplitter* sides_;
    QPushButton* back_;
    QPushButton* forward_;
};

}  // namespace vemo
