#pragma once

/// @file
/// MatrixPanel, a matrix on a page.

#include <QString>
#include <QWidget>
#include <array>
#include <cstdint>

#include "qorvex/base/vector_types.h"

class QHBoxLayout;
class QLabel;
class QSpinBox;

namespace qorvex {
inline namespace QorvexMatrixEdit {
class TQorCustomMatrixEdit;
}
}  // namespace qorvex

namespace qorvex::gallery {

class MessageBar;

/// A matrix under a title, with the numbers of its rows and columns, in as many cells as have room:
/// one that is typed, whose size can be set beside the title, or a result, whose cells look like
/// text on the window. It shows decimals or fractions.
class MatrixPanel : public QWidget {
  Q_OBJECT

 public:
  enum class Kind : std::uint8_t { kTyped, kResult };

  /// A matrix of one zero. The name is that of the grid for screen readers, and the object name of
  /// the panel.
  MatrixPanel(Kind kind, const char* object_name, const QString& title, const QString& name,
              QWidget* parent = nullptr);
  ~MatrixPanel() override;

  /// The heading, and the name of the grid for screen readers.
  void SetTitle(const QString& title, const QString& name);
  /// Where buttons beside the size belong.
  [[nodiscard]] QHBoxLayout* Head() const { return head_; }

  [[nodiscard]] TQorFloatMatrix Matrix() const;
  /// Shows a matrix; earlier changes can no longer be undone.
  void SetMatrix(const TQorFloatMatrix& matrix);
  /// Shows a matrix in one step of undo, and raises Changed.
  void Replace(const TQorFloatMatrix& matrix);
  /// Shows a text in place of the matrix, or the matrix again if it is empty.
  void SetRemark(const QString& remark);
  void ShowFractions(bool fractions);
  /// The grid that shows; its changes through code raise nothing until Update is called.
  [[nodiscard]] TQorCustomMatrixEdit& Editor() const { return *editors_[fractions_ ? 1 : 0]; }
  /// Shows the size of the matrix and raises Changed.
  void Update();
  /// Whether all rows have room in a part of the page.
  [[nodiscard]] bool IsLow() const;
  /// Lets a bar report texts that are no numbers.
  void LetWatch(MessageBar& bar) const;
  /// Commits the texts that are being typed.
  void CommitTexts();

 Q_SIGNALS:
  /// The matrix has changed, but not by SetMatrix.
  void Changed();
  /// The memory does not suffice for the chosen size; the message says so.
  void SizeRefused(const QString& message);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void SetUp(TQorCustomMatrixEdit& editor);
  QWidget* MakeSize();
  void Resize();
  void ShowSize();
  void FitHeight();
  void ShowResultColor();

  Kind kind_;
  bool fractions_ = false;
  QLabel* title_;
  QHBoxLayout* head_;
  QLabel* remark_;
  // Of a typed matrix.
  QSpinBox* rows_ = nullptr;
  QSpinBox* cols_ = nullptr;
  // Of a result.
  QLabel* size_ = nullptr;
  // Decimals and fractions. Only the one that shows has the current matrix.
  std::array<TQorCustomMatrixEdit*, 2> editors_;
};

}  // namespace qorvex::gallery
