// The window "Check and Import": the sudokus of a file or a level, what is known of them, and what
// can be done with them.
#pragma once

#include <QTimer>

#include "qt/form_window.h"
#include "qt/theme.h"

class QGridLayout;
class QLabel;
class QPushButton;
class QScrollArea;
class QSplitter;

namespace vemo {

class CollectionActions;
class CollectionFilter;
class CollectionFoot;
class CollectionPreview;
class CollectionTable;
class GrowingText;

class FormCollection final : public FormWindow {
  public:
    FormCollection(Game& game, QWidget* parent);

    void ShowScreen(const BoardColors& colors);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    const CollectionWindow& Window() const { return CurrentGame().Collection().Window(); }

    QWidget* MakeTop(QWidget* body);
    QWidget* MakeBody();
    QSplitter* MakeRows();
    QPushButton* MakeOpener(const QString& name, const QString& text, const QString& toolTip);
    QPushButton* MakeLevelButton();
    void ShowOpen();
    void ShowLog();
    void MoveFocus();
    void AskLayout();
    void Tick();
    void Arrange();

    QScrollArea* area_ = nullptr;
    QGridLayout* grid_ = nullptr;
    QLabel* name_ = nullptr;
    QPushButton* open_ = nullptr;
    QPushButton* level_ = nullptr;
    QPushButton* layout_ = nullptr;
    QPushButton* filterButton_ = nullptr;
    CollectionFilter* filter_ = nullptr;
    QSplitter* rows_ = nullptr;
    CollectionTable* table_ = nullptr;
    GrowingText* log_ = nullptr;
    CollectionPreview* preview_ = nullptr;
    CollectionActions* actions_ = nullptr;
    CollectionFoot* foot_ = nullptr;
    QTimer timer_;  // a job goes on while the window is closed
    bool wasBusy_ = false;
    int logOf_ = 0;  // the collection whose log is shown
};

}  // namespace vemo
