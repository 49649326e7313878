// The box that says how a foreign file of records is read, with the first records as they would be.
#pragma once

#include <functional>
#include <vector>

#include <QDialog>

#include "tools/record_layout.h"

class QBoxLayout;
class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;
class QStackedWidget;
class QTableWidget;

namespace vemo {

class LayoutDialog final : public QDialog {
  public:
    // The first records of the file by a layout without a fault.
    using Preview = std::function<std::vector<ReadPiece>(const RecordLayout&)>;

    // `layout`: how the file was read; nothing: by its own format.
    LayoutDialog(const std::optional<RecordLayout>& layout, Preview preview, QWidget* parent);

    // When it is accepted: how to read the file.
    std::optional<RecordLayout> Chosen() const;

  private:
    void AddPlaces(QFormLayout& form);
    void AddMeanings(QFormLayout& form);
    void AddPreview(QBoxLayout& column);
    QWidget* MakeButtons();
    void ShowLayout(const RecordLayout& layout);
    void ShowPreview();
    // Null: the row is empty.
    void ShowPiece(int row, const ReadPiece* piece);
    RecordLayout Entered() const;
    QString Fault() const;

    Preview preview_;
    QSpinBox* headerLength_ = nullptr;
    QSpinBox* recordLength_ = nullptr;
    QSpinBox* cluesOffset_ = nullptr;
    QComboBox* digits_ = nullptr;
    QComboBox* emptyKind_ = nullptr;
    QStackedWidget* empty_ = nullptr;
    QLineEdit* emptyCharacter_ = nullptr;
    QSpinBox* emptyByte_ = nullptr;
    QTableWidget* records_ = nullptr;
    QLabel* fault_ = nullptr;
    QPushButton* read_ = nullptr;
    bool isByOwnFormat_ = false;
};

}  // namespace vemo
