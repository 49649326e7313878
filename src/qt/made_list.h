// The list of the sudokus that the generator made.
#pragma once

#include <QAbstractTableModel>
#include <QTableView>

#include "game/game.h"

namespace vemo {

class MadeModel final : public QAbstractTableModel {
  public:
    MadeModel(const Game& game, QObject* parent) : QAbstractTableModel(parent), game_(game) {}

    // As the generator's list is now: it only grows, and what is not stored may get stored.
    void Follow();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    const Game& game_;
    int rows_ = 0;
    int unstored_ = 0;
};

class MadeList final : public QTableView {
  public:
    MadeList(Game& game, QWidget* parent);

    void ShowMade(const GeneratorWindow& window);

  protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    Game& game_;
    MadeModel* model_;
};

}  // namespace vemo
