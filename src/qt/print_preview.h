// The preview of what another window prints: its text or its picture.
#pragma once

#include <functional>

#include <QDialog>

#include "game/game.h"
#include "qt/printout.h"

class QComboBox;

namespace vemo {

class PrintPane;

class PrintPreview final : public QDialog {
  public:
    using Maker = std::function<Printout(const QPageSize& paper)>;

    // The game and whatever `make` needs outlive the preview.
    PrintPreview(Game& game, Maker make, QWidget* parent);

    void done(int result) override;

  private:
    void ShowPaper();
    void ChoosePaper(int paper);

    Game& game_;
    Maker make_;
    QComboBox* paper_;
    PrintPane* pane_;
};

}  // namespace vemo
