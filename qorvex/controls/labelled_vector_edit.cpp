#include "qorvex/controls/labelled_vector_edit.h"

#include <QCoreApplication>
#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

#include "qorvex/base/text.h"
#include "qorvex/base_controls/text_cell.h"
#include "qorvex/controls/detail/shift_keys.h"
#include "qorvex/controls/panel/detail/panel_parts.h"

namespace qorvex::inline QorvexVectorEdit {

namespace {

qint64 BytesOfLabels(const std::map<quint32, QString>& labels) {
  qint64 bytes = QorvexControls::detail::BytesOf(labels);
  for (const auto& [row, label] : labels) {
    bytes += label.size() * static_cast<qint64>(sizeof(QChar));
  }
  return bytes;
}

}  // namespace

/// The cell of a label.
class TQorLabelledVectorEdit::LabelCell : public TextCell {
 public:
  LabelCell(QWidget* parent, quint32 row_edit, std::function<void(const QString&)> changed)
      : TextCell(parent), row_edit_(row_edit), changed_(std::move(changed)) {}

  [[nodiscard]] quint32 RowEdit() const noexcept { return row_edit_; }
  void Show(const QString& label) { ShowText(label, true); }
  void SetEditable(bool editable, bool tab_stop) {
    setFocusPolicy(editable && tab_stop ? Qt::StrongFocus : Qt::ClickFocus);
    if (editable != isReadOnly()) return;
    setReadOnly(!editable);
    setFrame(editable);
    // Labels that cannot be typed look like the header of a table.
    QPalette palette;
    if (!editable) palette.setColor(QPalette::Base, Qt::transparent);
    setPalette(palette);
  }

  bool Commit() override {
    if (Pending()) {
      ShowText(text(), false);
      changed_(text());
    } else {
      Restore();
    }
    return true;
  }

 private:
  quint32 row_edit_;
  std::function<void(const QString&)> changed_;
};

TQorLabelledVectorEdit::TQorLabelledVectorEdit(QWidget* parent) : TQorVectorEdit(parent) {
  Parts().grid.SetHeader(
      {.make = [this](QWidget* panel, quint32 row_edit) { return MakeLabel(panel, row_edit); },
       .show = [this](TextCell& label, quint32 row_edit,
                      bool used) { ShowLabel(label, row_edit, used); },
       .name = [this](quint32 row_edit) { return LabelName(row_edit); },
       .apply = [this](TextCell& label,
                       const CellSettings& settings) { ApplyTo(label, settings); }});
  Parts().geometry.SetHeaderWidth(label_width_);
  FitGrid();
}

TQorLabelledVectorEdit::~TQorLabelledVectorEdit() = default;

void TQorLabelledVectorEdit::setLabelAlignment(Qt::Alignment alignment) {
  label_alignment_ = alignment;
  ApplyLabelSettings();
}

void TQorLabelledVectorEdit::setLabelNumOffSet(int offset) {
  label_offset_ = offset;
  Redisplay();
}

void TQorLabelledVectorEdit::setLabelType(TQorLabelType type) {
  if (type == label_type_) return;
  Parts().focus.CommitPending();
  label_type_ = type;
  if (type == ltNumbered) setLabelsEditable(false);
  Redisplay();
}

void TQorLabelledVectorEdit::setLabelsEditable(bool editable) {
  Parts().focus.CommitPending();
  labels_editable_ = editable;
  ApplyLabelSettings();
}

void TQorLabelledVectorEdit::setLabelWidth(int width) {
  label_width_ = std::clamp(width, 0, QorvexControls::detail::ElementSizes::kLargest);
  Parts().geometry.SetHeaderWidth(label_width_);
  Parts().layout.Arrange();
}

QString TQorLabelledVectorEdit::Label(quint32 row) const {
  CheckRow(row);
  switch (label_type_) {
    case ltCustom:
      return CustomLabel(row);
    case ltNumbered:
      return QString::fromStdString(Int2EStr(qint64{label_offset_} + row));
    case ltSupplied:
      break;
  }
  if (OnGetLabel) return OnGetLabel(row);
  return Model() ? Parts().model.Heading(CellAxis::kRows, row)
                 : QString::fromStdString(Int2EStr(row));
}

void TQorLabelledVectorEdit::setLabel(quint32 row, const QString& label) {
  CheckRow(row);
  if (VirtualMode()) {
    Q_EMIT OnSetLabel(row, label);
  } else if (label_type_ != ltCustom || CustomLabel(row) == label) {
    return;
  } else {
    SetCustomLabel(row, label);
    Parts().history.ForgetCommand();
  }
  Redisplay();
}

QString TQorLabelledVectorEdit::CustomLabel(quint32 row) const {
  const auto label = custom_labels_.find(row);
  return label != custom_labels_.end() ? label->second : QString();
}

void TQorLabelledVectorEdit::SetCustomLabel(quint32 row, const QString& label) {
  if (label.isEmpty()) {
    custom_labels_.erase(row);
  } else {
    custom_labels_[row] = label;
  }
}

void TQorLabelledVectorEdit::SortCustomLabels() {
  const auto end = custom_labels_.lower_bound(NoOfRows());
  std::vector<QString> sorted;
  for (auto label = custom_labels_.begin(); label != end; ++label) sorted.push_back(label->second);
  std::ranges::stable_sort(sorted, [](const QString& a, const QString& b) {
    return a.compare(b, Qt::CaseInsensitive) < 0;
  });
  custom_labels_.erase(custom_labels_.begin(), end);
  // Behind the empty ones.
  quint32 row = NoOfRows() - static_cast<quint32>(sorted.size());
  for (const QString& label : sorted) custom_labels_[row++] = label;
}

void TQorLabelledVectorEdit::Sort() {
  const Update update(*this);
  TQorVectorEdit::Sort();
  if (!VirtualMode() && label_type_ == ltCustom) {
    const auto before = std::make_shared<std::map<quint32, QString>>(custom_labels_);
    Parts().history.ExtendCommand(BytesOfLabels(*before),
                                  [this, before] { std::swap(custom_labels_, *before); });
    SortCustomLabels();
  }
}

void TQorLabelledVectorEdit::SwapElements(quint32 first, quint32 second) {
  const Update update(*this);
  TQorVectorEdit::SwapElements(first, second);
  if (!VirtualMode() && label_type_ == ltCustom) {
    const auto swap = [=, this] {
      const QString label = CustomLabel(first);
      SetCustomLabel(first, CustomLabel(second));
      SetCustomLabel(second, label);
    };
    swap();
    Parts().history.ExtendCommand(0, swap);
  }
}

std::optional<quint32> TQorLabelledVectorEdit::InsertLines(CellAxis axis, quint32 first,
                                                           quint32 count, Extended value) {
  const Update update(*this);
  const std::optional<quint32> place = TQorVectorEdit::InsertLines(axis, first, count, value);
  if (!VirtualMode()) QorvexControls::detail::ShiftKeys(custom_labels_, first, 0, count);
  return place;
}

void TQorLabelledVectorEdit::RemoveLines(CellAxis axis, quint32 first, quint32 count) {
  const Update update(*this);
  TQorVectorEdit::RemoveLines(axis, first, count);
  if (!VirtualMode()) QorvexControls::detail::ShiftKeys(custom_labels_, first, count, 0);
}

KeptLineData TQorLabelledVectorEdit::KeepLineData(CellAxis, quint32 first, quint32 count) {
  auto labels = QorvexControls::detail::EntriesOf(custom_labels_, first, count);
  if (labels.empty()) return {};
  const qint64 bytes = BytesOfLabels(labels);
  return {[this, kept = std::move(labels)] { custom_labels_.insert(kept.begin(), kept.end()); },
          bytes};
}

QString TQorLabelledVectorEdit::CellName(quint32 row, quint32 col) const {
  const QString name = TQorVectorEdit::CellName(row, col);
  if (row >= NoOfRows()) return name;
  if (label_type_ == ltNumbered) {
    return QCoreApplication::translate("TQorVectorEdit", "Row %1").arg(Label(row));
  }
  return QCoreApplication::translate("TQorLabelledVectorEdit", "%1, %2",
                                     "label of a row, name of the row")
      .arg(Label(row), name);
}

TQorLabelledVectorEdit::LabelCell* TQorLabelledVectorEdit::MakeLabel(QWidget* panel,
                                                                     quint32 row_edit) {
  auto* const label = new LabelCell(
      panel, row_edit, [this, row_edit](const QString& text) { ChangeLabel(row_edit, text); });
  connect(label, &TextCell::Entered, this, [this, label, row_edit] {
    Parts().focus.Enter(*label, {row_edit, 0}, true);
    Parts().selection.Entered(label->EnteredByMouse());
  });
  connect(label, &TextCell::Left, this, [this, label, row_edit] {
    Parts().focus.Leave(*label);
    Parts().selection.Left({Rows().Top() + row_edit, 0});
    Q_EMIT OnLabelExit(Rows().Top() + row_edit);
  });
  Watch(*label);
  return label;
}

void TQorLabelledVectorEdit::ChangeLabel(quint32 row_edit, const QString& text) {
  const quint32 row = Rows().Top() + row_edit;
  if (row >= NoOfRows()) {
    Redisplay();
    return;
  }
  const QString before = Label(row);
  setLabel(row, text);
  if (Label(row) != before) {
    Q_EMIT OnLabelChange(row);
  } else {
    Redisplay();
  }
}

void TQorLabelledVectorEdit::ApplyLabelSettings() {
  Parts().grid.ApplyToHeader(EffectiveSettings());
}

void TQorLabelledVectorEdit::ApplyTo(TextCell& label, const CellSettings& settings) const {
  label.setAlignment(label_alignment_);
  label.SetSelectionBehaviour(settings.selection);
  FitEditing(static_cast<LabelCell&>(label));
}

void TQorLabelledVectorEdit::FitEditing(LabelCell& label) const {
  // A text typed in front of the spare row would have no row.
  const bool is_spare = Parts().rows.HasSpare() && Rows().Top() + label.RowEdit() == NoOfRows();
  label.SetEditable(labels_editable_ && !is_spare, TabStop());
}

void TQorLabelledVectorEdit::ShowLabel(TextCell& label, quint32 row_edit, bool used) {
  const quint32 row = Rows().Top() + row_edit;
  // A star marks the spare row.
  const QString text = row < NoOfRows() ? Label(row) : QString(QorvexControls::detail::kSpareMark);
  auto& cell = static_cast<LabelCell&>(label);
  cell.Show(used ? text : QString());
  FitEditing(cell);
  label.setEnabled(used);
}

QString TQorLabelledVectorEdit::LabelName(quint32 row_edit) const {
  return QCoreApplication::translate("TQorLabelledVectorEdit", "Label of row %1")
      .arg(qint64{Rows().Top()} + row_edit + 1);
}

}  // namespace qorvex::inline QorvexVectorEdit
