#pragma once

/// @file
/// MatrixPage, an editor of a matrix with its commands.

#include <QString>
#include <QWidget>
#include <array>
#include <functional>

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

/// A matrix as decimals and as fractions, either of which can be edited, with commands on the whole
/// of it, its determinant, its rank and its inverse.
class MatrixPage : public QWidget {
  Q_OBJECT

 public:
  explicit MatrixPage(QWidget* parent = nullptr);
  ~MatrixPage() override;

  /// Shows the matrix of a file; what is wrong with it is said on the page.
  void Open(const QString& path);

 private:
  [[nodiscard]] std::array<TQorCustomMatrixEdit*, 4> Editors() const;
  QWidget* MakeCommands();
  void AddButton(QWidget* bar, const QString& text, const char* name, const QString& tip,
                 const std::function<void()>& action);
  void Run(const std::function<void()>& command);
  void Exchange(bool undo);
  // Texts that are being typed count from now on.
  void CommitTexts();
  void ShowExample();
  void AskAndOpen();
  void Resize();
  // Whatever the matrix has become, the rest of the page shows it.
  void Follow();
  void ShowProperties(const TQorFloatMatrix& matrix);
  // The inverse, or why there is none.
  void ShowInverse(const TQorFloatMatrix& inverse, const QString& why_not);

  TQorMatrixEdit* decimals_;
  TQorMatrixFractEdit* fractions_;
  TQorMatrixEdit* inverse_decimals_;
  TQorMatrixFractEdit* inverse_fractions_;
  QLabel* no_inverse_;
  QSpinBox* rows_;
  QSpinBox* cols_;
  FigureTable* properties_;
  MessageBar* message_;
  // The one that was edited last, which knows how to take it back.
  TQorCustomMatrixEdit* edited_;
  // What the page shows.
  TQorFloatMatrix shown_;
};

}  // namespace qorvex::gallery
