#pragma once

/// @file
/// MatrixPage, an editor for a matrix, with commands.

#include <QString>
#include <array>
#include <functional>

#include "apps/qorvex-gallery/widgets/page.h"
#include "qorvex/base/vector_types.h"

class QLabel;
class QSpinBox;

namespace qorvex {
inline namespace QorvexMatrixEdit {
class TQorCustomMatrixEdit;
class TQorMatrixEdit;
}  // namespace QorvexMatrixEdit
inline namespace QorvexMatrixFractEdit {
class TQorMatrixFractEdit;
}
}  // namespace qorvex

namespace qorvex::gallery {

class FigureTable;
class MessageBar;

/// A matrix as decimals and as fractions, both of which can be edited, with commands on the whole
/// matrix, its determinant, its rank and its inverse.
class MatrixPage : public Page {
  Q_OBJECT

 public:
  explicit MatrixPage(QWidget* parent = nullptr);
  ~MatrixPage() override;

  /// Shows the matrix in a file, or on the message bar why it cannot.
  void Open(const QString& path);

 private:
  [[nodiscard]] std::array<TQorCustomMatrixEdit*, 4> Editors() const;
  QWidget* MakeCommands();
  void AddButton(QWidget* bar, const QString& text, const char* name, const QString& tip,
                 const std::function<void()>& action);
  void Run(const std::function<void()>& command);
  void Exchange(bool undo);
  // Commits the texts that are being typed.
  void CommitTexts();
  void ShowExample();
  void AskAndOpen();
  void Resize();
  // Shows the current matrix everywhere on the page.
  void Follow();
  void ShowProperties(const TQorFloatMatrix& matrix);

  TQorMatrixEdit* decimals_;
  TQorMatrixFractEdit* fractions_;
  TQorMatrixEdit* inverse_decimals_;
  TQorMatrixFractEdit* inverse_fractions_;
  QLabel* no_inverse_;
  QSpinBox* rows_;
  QSpinBox* cols_;
  FigureTable* properties_;
  MessageBar* message_;
  // The editor that was edited last, which can undo that.
  TQorCustomMatrixEdit* edited_;
  // The matrix that the page shows.
  TQorFloatMatrix shown_;
};

}  // namespace qorvex::gallery
