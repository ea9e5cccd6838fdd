#pragma once

/// @file
/// TallEditor, room for an editor of a vector that shows as many elements as fit.

#include <QWidget>

#include "qorvex/controls/QorvexVectorEdit.h"

namespace qorvex::gallery {

/// Holds an editor, as wide as that, and gives it as many cells as the height has room for and the
/// vector has elements.
class TallEditor : public QWidget {
 public:
  /// Takes the editor over.
  explicit TallEditor(TQorVectorEdit* editor, QWidget* parent = nullptr);
  ~TallEditor() override;

  /// Writes numbers plainly when they are of ordinary size, as people do, and with all digits and
  /// an exponent otherwise.
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
