#include "qorvex/controls/labelled_vector_edit.h"

#include <QCoreApplication>
#include <algorithm>
#include <utility>

#include "qorvex/base/text.h"
#include "qorvex/base_controls/text_cell.h"
#include "qorvex/controls/detail/edit_window.h"

namespace qorvex::inline QorvexVectorEdit {

/// The cell of a label.
class TQorLabelledVectorEdit::LabelCell : public TextCell {
 public:
  LabelCell(QWidget* parent, std::function<void(const QString&)> changed)
      : TextCell(parent), changed_(std::move(changed)) {}

  void Show(const QString& label) { ShowText(label, true); }

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
  std::function<void(const QString&)> changed_;
};

TQorLabelledVectorEdit::TQorLabelledVectorEdit(QWidget* parent) : TQorVectorEdit(parent) {
  // The base class could not ask this one yet.
  GridBuilt();
  Arrange();
  Redisplay();
}

TQorLabelledVectorEdit::~TQorLabelledVectorEdit() {
  for (LabelCell* label : labels_) {
    label->disconnect(this);
    label->removeEventFilter(this);
    LeaveText(label);
    delete label;
  }
}

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
  CommitPending();
  label_type_ = type;
  if (type == ltNumbered) setLabelsEditable(false);
  if (type == ltCustom) GrowCustomLabels(NoOfRows());
  Redisplay();
}

void TQorLabelledVectorEdit::setLabelsEditable(bool editable) {
  CommitPending();
  labels_editable_ = editable;
  ApplyLabelSettings();
}

void TQorLabelledVectorEdit::setLabelWidth(int width) {
  label_width_ = std::max(width, 0);
  Arrange();
}

QString TQorLabelledVectorEdit::Label(quint32 row) const {
  CheckRow(row);
  switch (label_type_) {
    case ltCustom:
      return custom_labels_.value(row);
    case ltNumbered:
      return QString::fromStdString(Int2EStr(qint64{label_offset_} + row));
    case ltSupplied:
      break;
  }
  return OnGetLabel ? OnGetLabel(row) : QString::fromStdString(Int2EStr(row));
}

void TQorLabelledVectorEdit::setLabel(quint32 row, const QString& label) {
  CheckRow(row);
  if (VirtualMode()) {
    Q_EMIT OnSetLabel(row, label);
  } else if (label_type_ != ltCustom || custom_labels_.value(row) == label) {
    return;
  } else {
    SetCustomLabel(row, label);
    ForgetCommand();
  }
  Redisplay();
}

void TQorLabelledVectorEdit::GrowCustomLabels(qsizetype count) {
  if (custom_labels_.size() < count) custom_labels_.resize(count);
}

void TQorLabelledVectorEdit::SetCustomLabel(quint32 row, const QString& label) {
  GrowCustomLabels(qsizetype{row} + 1);
  custom_labels_[row] = label;
}

void TQorLabelledVectorEdit::Sort() {
  const Update update(*this);
  TQorVectorEdit::Sort();
  if (!VirtualMode() && label_type_ == ltCustom) {
    const auto before = std::make_shared<QStringList>(custom_labels_);
    AlsoExchange([this, before] {
      std::swap(custom_labels_, *before);
      Redisplay();
    });
    custom_labels_.sort(Qt::CaseInsensitive);
  }
}

void TQorLabelledVectorEdit::SwapElements(quint32 first, quint32 second) {
  const Update update(*this);
  TQorVectorEdit::SwapElements(first, second);
  if (!VirtualMode() && label_type_ == ltCustom) {
    const auto swap = [=, this] {
      const QString label = custom_labels_.value(first);
      SetCustomLabel(first, custom_labels_.value(second));
      SetCustomLabel(second, label);
      Redisplay();
    };
    swap();
    AlsoExchange(swap);
  }
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

void TQorLabelledVectorEdit::Notify(CellEvent what, quint32 row, quint32 col) {
  if (what == CellEvent::kEnter) in_labels_ = false;
  TQorVectorEdit::Notify(what, row, col);
}

TQorLabelledVectorEdit::LabelCell* TQorLabelledVectorEdit::MakeLabel(quint32 row_edit) {
  auto* const label =
      new LabelCell(this, [this, row_edit](const QString& text) { ChangeLabel(row_edit, text); });
  connect(label, &TextCell::Entered, this, [this, row_edit] { LabelEnter(row_edit); });
  connect(label, &TextCell::Left, this, [this, row_edit] { LabelExit(row_edit); });
  Watch(label);
  return label;
}

void TQorLabelledVectorEdit::LabelEnter(quint32 row_edit) {
  in_labels_ = true;
  EnterText(labels_[row_edit], row_edit, 0);
}

void TQorLabelledVectorEdit::LabelExit(quint32 row_edit) {
  LeaveText(labels_[row_edit]);
  Q_EMIT OnLabelExit(Rows().Top() + row_edit);
}

void TQorLabelledVectorEdit::ChangeLabel(quint32 row_edit, const QString& text) {
  const quint32 row = Rows().Top() + row_edit;
  if (row >= NoOfRows()) return;
  const QString before = Label(row);
  setLabel(row, text);
  if (Label(row) != before) {
    Q_EMIT OnLabelChange(row);
  } else {
    Redisplay();
  }
}

void TQorLabelledVectorEdit::GridBuilt() {
  while (labels_.size() > Rows().Edits()) {
    LabelCell* const label = labels_.back();
    labels_.pop_back();
    label->disconnect(this);
    label->removeEventFilter(this);
    LeaveText(label);
    label->hide();
    label->deleteLater();
  }
  while (labels_.size() < Rows().Edits()) {
    const std::size_t edit = labels_.size();
    labels_.push_back(MakeLabel(static_cast<quint32>(edit)));
    if (edit > 0) setTabOrder(Cell(edit - 1, 0), labels_[edit]);
    setTabOrder(labels_[edit], Cell(edit, 0));
    labels_[edit]->show();
  }
  ApplyLabelSettings();
}

void TQorLabelledVectorEdit::CellSettingsApplied() {
  ApplyLabelSettings();
}

void TQorLabelledVectorEdit::ApplyLabelSettings() {
  const CellSettings settings = EffectiveSettings();
  // Labels that nobody types look like the header of a table.
  QPalette palette;
  if (!labels_editable_) palette.setColor(QPalette::Base, Qt::transparent);
  for (LabelCell* label : labels_) {
    label->setPalette(palette);
    label->setFrame(labels_editable_);
    label->setAlignment(label_alignment_);
    label->setReadOnly(!labels_editable_);
    label->setFocusPolicy(labels_editable_ && TabStop() ? Qt::StrongFocus : Qt::ClickFocus);
    label->SetSelectionBehaviour(settings.selection);
  }
}

void TQorLabelledVectorEdit::Redisplayed() {
  for (std::size_t edit = 0; edit < labels_.size(); ++edit) {
    LabelCell* const label = labels_[edit];
    const quint32 row = Rows().Top() + static_cast<quint32>(edit);
    const bool used = edit < Rows().UsedEdits();
    label->Show(used ? Label(row) : QString());
    label->setEnabled(used);
    const QString name = QCoreApplication::translate("TQorLabelledVectorEdit", "Label of row %1")
                             .arg(qint64{row} + 1);
    if (label->accessibleName() != name) label->setAccessibleName(name);
  }
}

int TQorLabelledVectorEdit::LeadingWidth() const {
  return label_width_;
}

TextCell* TQorLabelledVectorEdit::NavigationTarget(std::size_t row_edit,
                                                   std::size_t col_edit) const {
  if (in_labels_) return labels_[row_edit];
  return TQorVectorEdit::NavigationTarget(row_edit, col_edit);
}

void TQorLabelledVectorEdit::Arrange() {
  TQorVectorEdit::Arrange();
  for (std::size_t edit = 0; edit < labels_.size(); ++edit) {
    const int height = CellRect(edit, 0).height();
    labels_[edit]->setGeometry(Placed({0, static_cast<int>(edit) * height, label_width_, height}));
  }
}

}  // namespace qorvex::inline QorvexVectorEdit
