#pragma once

/// @file
/// TallEditor, which gives a vector editor as many cells as fit.

#include <QWidget>

#include "qorvex/controls/QorvexVectorEdit.h"

namespace qorvex::gallery {

/// Contains an editor and has its width. The editor gets as many cells as fit into the height, but
/// not more than the vector has elements; if all elements have one, there is no scroll bar.
class TallEditor : public QWidget {
 public:
  /// Takes ownership of the editor.
  explicit TallEditor(TQorVectorEdit* editor, QWidget* parent = nullptr);
  ~TallEditor() override;

  /// Chooses the format for the values: plain decimals if all magnitudes are ordinary, all digits
  /// and exponents otherwise.
  void FitFormat(const TQorFloatVector& values);

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void Fit();
  [[nodiscard]] int HeightOf(int cells) const;

  TQorVectorEdit* editor_;
};

}  // namespace qorvex::gallery
