#pragma once

/// @file
/// TQorCustomModel, the base of the models of vectors and matrices.

#include <QAbstractTableModel>
#include <QLocale>
#include <optional>

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"
#include "qorvex/base_controls/cell_settings.h"
#include "qorvex/base_controls/unit.h"

QORVEX_WIDGET_UNIT(QorvexControls) {

/// A table of 80-bit values for Qt's views, proxies, mappers and charts. Several views, and any
/// number of editors with setModel, can share it.
///
/// - EditRole is the shortest decimal text from which the same 80 bits are read.
/// - DisplayRole is the nearest double, which views write in their locale, proxies sort and charts
///   draw; where the range of doubles ends, it is the text of EditRole. With a DisplayFormat it is
///   a text.
/// - SortRole is a text that sorts as the elements do, to the last bit.
/// - In these roles null is a variant without a value.
/// - TextAlignmentRole is right, or as in DisplayFormat.
///
/// setData takes the roles EditRole and DisplayRole: numbers of any type, plain decimal texts, and
/// texts in the locale of the model. A blank text or a variant without a value makes the element
/// null. Other texts are refused.
class QORVEX_EXPORT TQorCustomModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  /// Roles beside Qt's own.
  enum Role {
    SortRole = Qt::UserRole  ///< For QSortFilterProxyModel::setSortRole.
  };
  Q_ENUM(Role)

  ~TQorCustomModel() override;

  /// @{
  /// The locale of texts that are set, and of those that are shown with a DisplayFormat;
  /// QLocale() by default.
  [[nodiscard]] QLocale Locale() const { return locale_; }
  void setLocale(const QLocale& locale);
  /// @}

  /// @{
  /// How elements are written for DisplayRole; nothing by default, so that DisplayRole is a number.
  [[nodiscard]] std::optional<NumberSettings> DisplayFormat() const { return format_; }
  void setDisplayFormat(const std::optional<NumberSettings>& format);
  /// @}

  /// @{
  /// Qt's interface of models. All elements can be edited.
  [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
  [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
  /// @}

 protected:
  /// A model without elements.
  explicit TQorCustomModel(QObject* parent);

  /// @{
  /// One element, of which there is one in the given row and column. NaN is null.
  [[nodiscard]] virtual Extended Value(int row, int col) const = 0;
  virtual void Store(int row, int col, Extended value) = 0;
  /// @}
  /// Stores an element and raises dataChanged.
  void Change(int row, int col, Extended value);
  /// Raises dataChanged for all elements.
  void AllChanged();

 private:
  [[nodiscard]] QVariant Display(Extended value) const;

  QLocale locale_;
  std::optional<NumberSettings> format_;
};

}  // QORVEX_WIDGET_UNIT(QorvexControls)
