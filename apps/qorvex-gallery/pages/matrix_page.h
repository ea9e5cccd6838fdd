#pragma once

/// @file
/// MatrixPage, matrices and what is computed from them.

#include <QString>
#include <QTimer>
#include <array>
#include <functional>

#include "apps/qorvex-gallery/model/background_work.h"
#include "apps/qorvex-gallery/model/matrix_calculation.h"
#include "apps/qorvex-gallery/widgets/page.h"
#include "qorvex/base/vector_types.h"

class QButtonGroup;
class QHBoxLayout;
class QPushButton;
class QVBoxLayout;

namespace qorvex::gallery {

class FigureTable;
class MatrixPanel;
class MessageBar;
class SidePanel;
struct MatrixOutcome;

/// A matrix A that is typed, and a result beneath it: its inverse, its row echelon form, its
/// product with a matrix B, or the solution of a system. Results and the figures of A are computed
/// in the background after every change.
class MatrixPage : public Page {
  Q_OBJECT

 public:
  explicit MatrixPage(QWidget* parent = nullptr);
  ~MatrixPage() override;

  /// @{
  /// The choices, and both matrices unless they are large.
  [[nodiscard]] QVariantMap State() const override;
  void SetState(const QVariantMap& state) override;
  /// @}
  [[nodiscard]] PageReport Report() const override;

  /// Shows the matrix in a file as A, or on the message bar why it cannot.
  void Open(const QString& path);

 private:
  void MakeChoices(SidePanel& panel);
  void MakeCommands(QVBoxLayout& group);
  void MakeMatrices();
  void Connect(MatrixPanel& panel);
  [[nodiscard]] std::array<MatrixPanel*, 3> Panels() const { return {a_, b_, result_}; }
  // Runs a command on A.
  void Run(const std::function<void()>& command);
  void Exchange(bool undo);
  void ShowExample();
  void AskAndOpen(MatrixPanel& panel);
  void OpenIn(MatrixPanel& panel, const QString& path);
  void Choose();
  void UseAsA();
  void AskAndSave();

  // Computes the result in the next turn of the event loop.
  void RefreshSoon();
  void Refresh();
  void ShareHeight();
  void Show(const MatrixOutcome& outcome);
  void ShowNone(const QString& why);
  [[nodiscard]] MatrixResult Wanted() const;

  MatrixPanel* a_;
  MatrixPanel* b_;
  MatrixPanel* result_;
  QVBoxLayout* matrices_;
  QHBoxLayout* typed_;
  QButtonGroup* wanted_;
  QButtonGroup* numbers_;
  QPushButton* use_as_a_;
  QPushButton* save_;
  FigureTable* properties_;
  MessageBar* message_;
  // The one that was changed last, which can undo that.
  MatrixPanel* edited_;
  QTimer refresh_;
  // When the computation takes long enough to be mentioned.
  QTimer patience_;
  BackgroundWork work_;
  BackgroundWork reading_a_;
  BackgroundWork reading_b_;
};

}  // namespace qorvex::gallery
