#pragma once

/// @file
/// TQorLabelledVectorEdit, an editor of a vector with a label beside each element.

#include <QStringList>
#include <functional>

#include "qorvex/base/export.h"
#include "qorvex/base_controls/unit.h"
#include "qorvex/controls/vector_edit.h"

QORVEX_WIDGET_UNIT(QorvexVectorEdit) {

/// @{
/// Handlers of labels: a request for the label of a row, and a label that is to be kept elsewhere.
using TQorGetLabelEvent = std::function<QString(quint32 row)>;
using TQorSetLabelEvent = std::function<void(quint32 row, const QString& label)>;
/// @}

/// A TQorVectorEdit with a column of labels in front of the cells. Everything else is as there; the
/// navigation keys work in the labels too, and stay in their column.
///
/// Labels do not belong to the numbers. SwapElements exchanges custom labels with the elements, but
/// Sort sorts them by themselves, in the order of their texts whatever the case of letters.
class QORVEX_EXPORT TQorLabelledVectorEdit : public TQorVectorEdit {
  Q_OBJECT
  /// @{
  /// Published: see the accessor of the same name.
  QORVEX_PUBLISHED(Qt::Alignment, LabelAlignment)
  QORVEX_PUBLISHED(int, LabelNumOffSet)
  QORVEX_PUBLISHED(TQorLabelType, LabelType)
  QORVEX_PUBLISHED(bool, LabelsEditable)
  QORVEX_PUBLISHED(int, LabelWidth)
  /// @}

 public:
  /// Where labels come from.
  enum TQorLabelType {
    ltCustom,    ///< A list that is kept here; rows beyond its end have empty labels.
    ltNumbered,  ///< The row's index plus LabelNumOffSet.
    ltSupplied   ///< OnGetLabel, or the row's index where it is empty.
  };
  Q_ENUM(TQorLabelType)

  /// Four cells with numbered labels, and an empty vector.
  explicit TQorLabelledVectorEdit(QWidget* parent = nullptr);
  ~TQorLabelledVectorEdit() override;

  /// @{
  /// Where the text of a label stands; centred at first.
  [[nodiscard]] Qt::Alignment LabelAlignment() const noexcept { return label_alignment_; }
  void setLabelAlignment(Qt::Alignment alignment);
  void resetLabelAlignment() { setLabelAlignment(Qt::AlignCenter); }
  /// @}

  /// @{
  /// What is added to a row's index in numbered labels; 1 at first.
  [[nodiscard]] int LabelNumOffSet() const noexcept { return label_offset_; }
  void setLabelNumOffSet(int offset);
  void resetLabelNumOffSet() { setLabelNumOffSet(1); }
  /// @}

  /// @{
  /// Where labels come from; numbered at first. Numbered labels cannot be typed, so this turns
  /// LabelsEditable off. A list of custom labels is filled up with empty ones to the number of
  /// rows.
  [[nodiscard]] TQorLabelType LabelType() const noexcept { return label_type_; }
  void setLabelType(TQorLabelType type);
  void resetLabelType() { setLabelType(ltNumbered); }
  /// @}

  /// @{
  /// Whether the user may type labels; false at first.
  [[nodiscard]] bool LabelsEditable() const noexcept { return labels_editable_; }
  void setLabelsEditable(bool editable);
  void resetLabelsEditable() { setLabelsEditable(false); }
  /// @}

  /// @{
  /// The width of the labels in pixels, 81 at first; negative widths count as 0.
  [[nodiscard]] int LabelWidth() const noexcept { return label_width_; }
  void setLabelWidth(int width);
  void resetLabelWidth() { setLabelWidth(kDefaultLabelWidth); }
  /// @}

  /// @{
  /// The label of a row. EMathError: rsVectorIsEmpty, then rsInvalidRow when there is no such row.
  /// Only custom labels can be set, others stay as they are; in virtual mode every label that is
  /// set goes to OnSetLabel instead.
  [[nodiscard]] QString Label(quint32 row) const;
  void setLabel(quint32 row, const QString& label);
  /// @}

  void Sort() override;
  void SwapElements(quint32 first, quint32 second) override;

  /// Gives the labels of type ltSupplied.
  TQorGetLabelEvent OnGetLabel;

 Q_SIGNALS:
  /// In virtual mode: keep this label.
  void OnSetLabel(quint32 row, const QString& label);
  /// The user has changed the label.
  void OnLabelChange(quint32 row);
  /// The focus has left the label of the row, which is stored.
  void OnLabelExit(quint32 row);

 protected:
  /// The name of the cell in a vector edit, preceded by the label of its row.
  [[nodiscard]] QString CellName(quint32 row, quint32 col) const override;

 private:
  class LabelCell;
  static constexpr int kDefaultLabelWidth = 81;

  LabelCell* MakeLabel(QWidget* panel, quint32 row_edit);
  void ChangeLabel(quint32 row_edit, const QString& text);
  void ShowLabel(TextCell& label, quint32 row_edit, bool used);
  [[nodiscard]] QString LabelName(quint32 row_edit) const;
  void ApplyTo(TextCell& label, const CellSettings& settings) const;
  void ApplyLabelSettings();
  void GrowCustomLabels(qsizetype count);
  void SetCustomLabel(quint32 row, const QString& label);

  QStringList custom_labels_;
  Qt::Alignment label_alignment_ = Qt::AlignCenter;
  int label_offset_ = 1;
  TQorLabelType label_type_ = ltNumbered;
  bool labels_editable_ = false;
  int label_width_ = kDefaultLabelWidth;
};

/// The type of TQorLabelledVectorEdit::LabelType.
using TQorLabelType = TQorLabelledVectorEdit::TQorLabelType;

}  // QORVEX_WIDGET_UNIT(QorvexVectorEdit)
