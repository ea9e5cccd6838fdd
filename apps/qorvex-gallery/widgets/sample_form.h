#pragma once

/// @file
/// SampleForm, the choice of the data of a test.

#include <QVariantMap>
#include <QWidget>

#include "apps/common/hypothesis_tests.h"

class QCheckBox;
class QComboBox;
class QFormLayout;
class QSpinBox;

namespace qorvex::gallery {

class ColumnBox;
class ColumnList;
class Sheet;
struct TestOrder;

/// What a test takes: columns of the sheet, the groups of one by the labels in another, or counts
/// that are typed. Only the choices that suit the test show.
class SampleForm : public QWidget {
  Q_OBJECT

 public:
  /// The sheet must outlive the form.
  explicit SampleForm(const Sheet& sheet, QWidget* parent = nullptr);
  ~SampleForm() override;

  void SetInput(apps::TestInput input);
  /// Chooses the column of the first sample, unless the user has chosen one.
  void SuggestColumn(int column);
  /// Sets the columns, the groups and the counts of an order.
  void Fill(TestOrder& order) const;

  /// @{
  /// The choices, by the numbers of columns from 0.
  [[nodiscard]] QVariantMap State() const;
  void SetState(const QVariantMap& state);
  /// @}

 Q_SIGNALS:
  /// Another choice. Changed cells do not count: see Sheet::Changed.
  void Changed();

 private:
  void Connect();
  void ShowRows();
  [[nodiscard]] bool HasGroups() const;
  [[nodiscard]] bool HasList() const;

  const Sheet& sheet_;
  bool is_first_chosen_ = false;
  apps::TestInput input_ = apps::TestInput::kSample;
  QFormLayout* layout_;
  // Columns or groups.
  QComboBox* kind_;
  ColumnBox* first_;
  ColumnBox* second_;
  ColumnBox* proportions_;
  ColumnBox* labels_;
  ColumnList* list_;
  QCheckBox* yates_;
  QSpinBox* fitted_;
  QSpinBox* successes_;
  QSpinBox* trials_;
};

}  // namespace qorvex::gallery
