// The table of a collection's sudokus: any number of them, by rows of the game's list.
#pragma once

#include <optional>
#include <utility>

#include <QAbstractTableModel>
#include <QTableView>

#include "game/game.h"

namespace vemo {

class CollectionModel final : public QAbstractTableModel {
    Q_OBJECT

  public:
    // The window outlives the model.
    CollectionModel(const CollectionWindow& window, QObject* parent)
        : QAbstractTableModel(parent), window_(window) {}

    // As the game's list is now: others, which is true, or more at its end.
    bool Follow();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    const CollectionWindow& window_;
    int rows_ = 0;
    int version_ = 0;
};

class CollectionTable final : public QTableView {
    Q_OBJECT

  public:
    // The game outlives the table.
    CollectionTable(Game& game, QWidget* parent);

    void ShowRows();

  Q_SIGNALS:
    void CopyWanted();

  protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void selectionChanged(const QItemSelection& selected,
                          const QItemSelection& deselected) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;

  private:
    void SelectRows(const std::vector<ShownRange>& ranges);
    void SortBy(int section);
    void ReportSelection();
    QString Invitation() const;

    Game& game_;
    CollectionModel* model_;
    bool isFollowing_ = false;  // what is selected comes from the game
};

}  // namespace vemo
