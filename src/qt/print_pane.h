// The preview of a printout, and the buttons that put it on paper or into a file.
#pragma once

#include <memory>
#include <optional>

#include <QTimer>
#include <QWidget>

#include "game/game.h"
#include "qt/printout.h"

class QComboBox;
class QLabel;
class QLayout;
class QProgressBar;
class QPushButton;
class QSpinBox;

namespace vemo {

class PageView;
class PrintRun;

class PrintPane final : public QWidget {
  public:
    // The game outlives the pane.
    PrintPane(Game& game, QWidget* parent);
    ~PrintPane() override;

    void ShowPrintout(const Printout& printout);
    // What the player has to know of the printout; a warning where it cannot be printed.
    enum class NoteKind : unsigned char { Plain, Warning };
    void ShowNote(const QString& note, NoteKind kind);
    // While the game is busy nothing is printed.
    void ShowIdle(bool isIdle);
    // Ends what is being printed.
    void Stop();

  private:
    QLayout* MakeTop();
    QLayout* MakeFoot();
    QPushButton* MakeButton(const QString& name, const QString& text, void (PrintPane::*handler)());
    void AddKeys();
    void Turn(int pages);
    void ZoomBy(int steps);
    void Print();
    void SavePdf();
    void Begin(std::unique_ptr<PrintRun> run);
    void GoOn();
    void Finish();
    void Tell(const QString& message, NoteKind kind);
    void ShowState();

    Game& game_;
    Printout printout_;
    bool isIdle_ = true;
    std::unique_ptr<PrintRun> run_;
    std::filesystem::path pdfFile_;  // of the run; empty: it goes to a printer
    QTimer timer_;

    PageView* view_;
    QPushButton* previous_ = nullptr;
    QPushButton* next_ = nullptr;
    QSpinBox* page_ = nullptr;
    QComboBox* zoom_ = nullptr;
    QLabel* message_ = nullptr;
    QProgressBar* progress_ = nullptr;
    QPushButton* print_ = nullptr;
    QPushButton* save_ = nullptr;
    QPushButton* stop_ = nullptr;
};

}  // namespace vemo
