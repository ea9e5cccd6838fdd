#pragma once

/// @file
/// MatrixPage, an editor of a matrix with its commands.

#include <QString>
#include <QWidget>
#include <array>
#include <functional>

#include "qorvex/base/vector_types.h"

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
/// of it, its determinant and its rank.
class MatrixPage : public QWidget {
  Q_OBJECT

 public:
  explicit MatrixPage(QWidget* parent = nullptr);
  ~MatrixPage() override;

  /// Shows the matrix of a file; what is wrong with it is said on the page.
  void Open(const QString& path);

 private:
  [[nodiscard]] std::array<TQorCustomMatrixEdit*, 2> Editors() const;
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

  TQorMatrixEdit* decimals_;
  TQorMatrixFractEdit* fractions_;
  QSpinBox* rows_;
  QSpinBox* cols_;
  FigureTable* properties_;
  MessageBar* message_;
  // The one that was edited last, which knows how to take it back.
  TQorCustomMatrixEdit* edited_;
  // What the page shows.
  TQorFloatMatrix shown_;
  bool follow_pending_ = false;
};

}  // namespace qorvex::gallery
