#pragma once

/// @file
/// TQorLabelledVectorEdit, an editor of a vector with a label beside each element.

#include <QString>
#include <functional>
#include <map>

#include "qorvex/base/export.h"
#include "qorvex/base_controls/unit.h"
#include "qorvex/controls/vector_edit.h"

QORVEX_WIDGET_UNIT(QorvexVectorEdit) {

/// @{
/// Handlers of events of labels: a request for the label of a row, and a label to store.
using TQorGetLabelEvent = std::function<QString(quint32 row)>;
using TQorSetLabelEvent = std::function<void(quint32 row, const QString& label)>;
/// @}

/// A TQorVectorEdit with a column of labels in front of the cells. The navigation keys work in the
/// labels too, and stay in their column.
///
/// Labels are not tied to the elements. SwapElements exchanges custom labels along with the
/// elements, but Sort sorts the labels of the rows independently, by their texts and regardless of
/// case; empty labels come first. Custom labels take memory only where they are not empty.
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
    ltCustom,    ///< The labels that are stored here; rows without one have an empty label.
    ltNumbered,  ///< The row's index plus LabelNumOffSet.
    ltSupplied   ///< OnGetLabel; if it is empty, the header of the model, or the row's index.
  };
  Q_ENUM(TQorLabelType)

  /// Four cells with numbered labels, and an empty vector.
  explicit TQorLabelledVectorEdit(QWidget* parent = nullptr);
  ~TQorLabelledVectorEdit() override;

  /// @{
  /// The alignment of the labels; centred by default.
  [[nodiscard]] Qt::Alignment LabelAlignment() const noexcept { return label_alignment_; }
  void setLabelAlignment(Qt::Alignment alignment);
  void resetLabelAlignment() { setLabelAlignment(Qt::AlignCenter); }
  /// @}

  /// @{
  /// The number that is added to a row's index in numbered labels; 1 by default.
  [[nodiscard]] int LabelNumOffSet() const noexcept { return label_offset_; }
  void setLabelNumOffSet(int offset);
  void resetLabelNumOffSet() { setLabelNumOffSet(1); }
  /// @}

  /// @{
  /// Where labels come from; numbered by default. Numbered labels cannot be typed, so ltNumbered
  /// turns LabelsEditable off.
  [[nodiscard]] TQorLabelType LabelType() const noexcept { return label_type_; }
  void setLabelType(TQorLabelType type);
  void resetLabelType() { setLabelType(ltNumbered); }
  /// @}

  /// @{
  /// Whether the user may type labels; false by default.
  [[nodiscard]] bool LabelsEditable() const noexcept { return labels_editable_; }
  void setLabelsEditable(bool editable);
  void resetLabelsEditable() { setLabelsEditable(false); }
  /// @}

  /// @{
  /// The width of the labels in pixels, 81 by default; negative widths count as 0.
  [[nodiscard]] int LabelWidth() const noexcept { return label_width_; }
  void setLabelWidth(int width);
  void resetLabelWidth() { setLabelWidth(kDefaultLabelWidth); }
  /// @}

  /// @{
  /// The label of a row. EMathError: rsVectorIsEmpty, then rsInvalidRow if there is no such row.
  /// Only custom labels can be set; others are left unchanged. In virtual mode every label that is
  /// set goes to OnSetLabel instead.
  [[nodiscard]] QString Label(quint32 row) const;
  void setLabel(quint32 row, const QString& label);
  /// @}

  void Sort() override;
  void SwapElements(quint32 first, quint32 second) override;

  /// Supplies the labels of type ltSupplied.
  TQorGetLabelEvent OnGetLabel;

 Q_SIGNALS:
  /// In virtual mode: store this label.
  void OnSetLabel(quint32 row, const QString& label);
  /// The user has changed the label.
  void OnLabelChange(quint32 row);
  /// The focus has left the label of the row, which is stored.
  void OnLabelExit(quint32 row);

 protected:
  /// The label, whose column is the heading of the rows.
  [[nodiscard]] QString RowHeading(quint32 row) const override { return Label(row); }
  /// The name of the cell in a vector edit, preceded by the label of its row.
  [[nodiscard]] QString CellName(quint32 row, quint32 col) const override;
  /// @{
  /// Custom labels move with their rows; those of deleted rows come back with them.
  std::optional<quint32> InsertLines(CellAxis axis, quint32 first, quint32 count,
                                     Extended value) override;
  void RemoveLines(CellAxis axis, quint32 first, quint32 count) override;
  [[nodiscard]] KeptLineData KeepLineData(CellAxis axis, quint32 first, quint32 count) override;
  /// @}

 private:
  class LabelCell;
  static constexpr int kDefaultLabelWidth = 81;

  LabelCell* MakeLabel(QWidget* panel, quint32 row_edit);
  void ChangeLabel(quint32 row_edit, const QString& text);
  void ShowLabel(TextCell& label, quint32 row_edit, bool used);
  [[nodiscard]] QString LabelName(quint32 row_edit) const;
  void ApplyTo(TextCell& label, const CellSettings& settings) const;
  void FitEditing(LabelCell& label) const;
  void ApplyLabelSettings();
  [[nodiscard]] QString CustomLabel(quint32 row) const;
  void SetCustomLabel(quint32 row, const QString& label);
  void SortCustomLabels();

  // Those that are not empty, by their rows.
  std::map<quint32, QString> custom_labels_;
  Qt::Alignment label_alignment_ = Qt::AlignCenter;
  int label_offset_ = 1;
  TQorLabelType label_type_ = ltNumbered;
  bool labels_editable_ = false;
  int label_width_ = kDefaultLabelWidth;
};

/// The type of TQorLabelledVectorEdit::LabelType.
using TQorLabelType = TQorLabelledVectorEdit::TQorLabelType;

}  // QORVEX_WIDGET_UNIT(QorvexVectorEdit)
