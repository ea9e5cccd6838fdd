#pragma once

/// @file
/// Unit QorvexDescStats: TQorDescStats, the component for descriptive statistics.

#include <QObject>
#include <QString>
#include <QStringList>
#include <cstdint>

#include "qorvex/base/errors.h"
#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"
#include "qorvex/base_controls/unit.h"
#include "qorvex/stats/descriptive_stats.h"

QORVEX_WIDGET_UNIT(QorvexDescStats) {

/// A component without a picture that holds one sample and keeps its descriptive statistics
/// current.
///
/// A designer enters the values as lines of text, Items; a program sets or reads them as vectors,
/// or adds and deletes single ones. The lines and the values go together in setItems, AddValue,
/// DeleteValue and Clear. Setting a vector leaves the lines as they are, so a later setItems,
/// ConvertItems or Loaded replaces those values.
///
/// Real results are published as text, Float2Str of the value, because no form keeps 80 bits;
/// Mean() and its like give the values themselves. All results are 0 for an empty sample;
/// DescriptiveResults says what small samples and NaN give. Results that are set through their
/// property stay as they are: they are published for show, and not stored. The setters of the
/// stored properties may be called in any order.
///
/// Like any QObject, a component belongs to one thread. Costs are those of DescriptiveStats;
/// Items adds a QString a line.
class QORVEX_EXPORT TQorDescStats : public QObject {
  Q_OBJECT
  /// @{
  /// Published: see the accessor of the same name. Only DecimalPlaces, Items and Population are
  /// stored.
  Q_PROPERTY(int DecimalPlaces READ DecimalPlaces WRITE setDecimalPlaces RESET resetDecimalPlaces)
  Q_PROPERTY(QStringList Items READ Items WRITE setItems RESET resetItems)
  Q_PROPERTY(QString Maximum READ MaximumText WRITE ignoreText RESET ignoreReset
                 STORED false NOTIFY StatsUpdated)
  Q_PROPERTY(QString Mean READ MeanText WRITE ignoreText RESET ignoreReset
                 STORED false NOTIFY StatsUpdated)
  Q_PROPERTY(QString Median READ MedianText WRITE ignoreText RESET ignoreReset
                 STORED false NOTIFY StatsUpdated)
  Q_PROPERTY(QString Minimum READ MinimumText WRITE ignoreText RESET ignoreReset
                 STORED false NOTIFY StatsUpdated)
  Q_PROPERTY(QString Mode READ ModeText WRITE ignoreText RESET ignoreReset
                 STORED false NOTIFY StatsUpdated)
  Q_PROPERTY(bool ModeExists READ ModeExists WRITE ignoreFlag RESET ignoreReset
                 STORED false NOTIFY StatsUpdated)
  Q_PROPERTY(uint NoOfValues READ NoOfValues WRITE ignoreCount RESET ignoreReset
                 STORED false NOTIFY StatsUpdated)
  Q_PROPERTY(bool Population READ Population WRITE setPopulation RESET resetPopulation)
  Q_PROPERTY(QString StdDev READ StdDevText WRITE ignoreText RESET ignoreReset
                 STORED false NOTIFY StatsUpdated)
  Q_PROPERTY(
      QString Sum READ SumText WRITE ignoreText RESET ignoreReset STORED false NOTIFY StatsUpdated)
  Q_PROPERTY(QString SumSq READ SumSqText WRITE ignoreText RESET ignoreReset
                 STORED false NOTIFY StatsUpdated)
  Q_PROPERTY(QString Variance READ VarianceText WRITE ignoreText RESET ignoreReset
                 STORED false NOTIFY StatsUpdated)
  Q_PROPERTY(QString Version READ Version WRITE ignoreText RESET ignoreReset STORED false)
  Q_PROPERTY(QString Kurtosis READ KurtosisText WRITE ignoreText RESET ignoreReset
                 STORED false NOTIFY StatsUpdated)
  Q_PROPERTY(QString Skew READ SkewText WRITE ignoreText RESET ignoreReset
                 STORED false NOTIFY StatsUpdated)
  Q_PROPERTY(QString Quartile1st READ Quartile1stText WRITE ignoreText RESET ignoreReset
                 STORED false NOTIFY StatsUpdated)
  Q_PROPERTY(QString Quartile3rd READ Quartile3rdText WRITE ignoreText RESET ignoreReset
                 STORED false NOTIFY StatsUpdated)
  /// @}

 public:
  /// An empty sample with 4 decimal places. The owner deletes the component when it is deleted
  /// itself.
  explicit TQorDescStats(QObject* owner = nullptr);
  ~TQorDescStats() override;

  /// @{
  /// The decimals of the report, 0 to 255; others are clamped.
  [[nodiscard]] int DecimalPlaces() const noexcept { return decimal_places_; }
  void setDecimalPlaces(int places) noexcept;
  void resetDecimalPlaces() noexcept { setDecimalPlaces(kDefaultDecimalPlaces); }
  /// @}

  /// @{
  /// The lines of text, one for each value. Setting them converts them to values; see
  /// ConvertItems for what happens when a line is no number.
  [[nodiscard]] QStringList Items() const { return items_; }
  void setItems(const QStringList& items);
  void resetItems() { setItems({}); }
  /// @}

  /// @{
  /// Population statistics (divide by n) instead of sample statistics (divide by n - 1).
  [[nodiscard]] bool Population() const noexcept { return stats_.Population(); }
  void setPopulation(bool population);
  void resetPopulation() { setPopulation(false); }
  /// @}

  /// @{
  /// The values, as a copy that the caller may write to. Setting copies them and leaves Items as
  /// they are.
  [[nodiscard]] TQorFloatVector Values() const { return stats_.Values(); }
  void setValues(TQorFloatVector values);
  /// @}

  /// @{
  /// The values as the nearest integers, even ones where two are as near. What the type cannot
  /// hold, NaN included, becomes its smallest integer. Setting converts each integer, without
  /// loss, to a value.
  [[nodiscard]] TQorLIntVector LIntValues() const;
  void setLIntValues(const TQorLIntVector& values);
  [[nodiscard]] TQorLWordVector LWordValues() const;
  void setLWordValues(const TQorLWordVector& values);
  [[nodiscard]] TQorInt64Vector Int64Values() const;
  void setInt64Values(const TQorInt64Vector& values);
  /// @}

  /// The number of values, also during an update; counts beyond 2^32 - 1 show as that.
  [[nodiscard]] std::uint32_t NoOfValues() const noexcept;

  /// @{
  /// A result, as the last update found it; see BeginUpdate. Mode is the unique mode when
  /// ModeExists; Kurtosis is the excess kurtosis. The inter-quartile range is not published.
  [[nodiscard]] const DescriptiveResults& Results() const noexcept { return stats_.Results(); }
  [[nodiscard]] Extended Maximum() const noexcept { return stats_.Results().maximum; }
  [[nodiscard]] Extended Mean() const noexcept { return stats_.Results().mean; }
  [[nodiscard]] Extended Median() const noexcept { return stats_.Results().median; }
  [[nodiscard]] Extended Minimum() const noexcept { return stats_.Results().minimum; }
  [[nodiscard]] Extended Mode() const noexcept { return stats_.Results().mode; }
  [[nodiscard]] bool ModeExists() const noexcept { return stats_.Results().mode_exists; }
  [[nodiscard]] Extended StdDev() const noexcept { return stats_.Results().std_dev; }
  [[nodiscard]] Extended Sum() const noexcept { return stats_.Results().sum; }
  [[nodiscard]] Extended SumSq() const noexcept { return stats_.Results().sum_sq; }
  [[nodiscard]] Extended Variance() const noexcept { return stats_.Results().variance; }
  [[nodiscard]] Extended Kurtosis() const noexcept { return stats_.Results().kurtosis; }
  [[nodiscard]] Extended Skew() const noexcept { return stats_.Results().skew; }
  [[nodiscard]] Extended Quartile1st() const noexcept { return stats_.Results().quartile_1st; }
  [[nodiscard]] Extended Quartile3rd() const noexcept { return stats_.Results().quartile_3rd; }
  [[nodiscard]] Extended InterQuartileRange() const noexcept {
    return stats_.Results().inter_quartile_range;
  }
  /// @}

  /// @{
  /// The published text of a result, Float2Str of it.
  [[nodiscard]] QString MaximumText() const { return Text(Maximum()); }
  [[nodiscard]] QString MeanText() const { return Text(Mean()); }
  [[nodiscard]] QString MedianText() const { return Text(Median()); }
  [[nodiscard]] QString MinimumText() const { return Text(Minimum()); }
  [[nodiscard]] QString ModeText() const { return Text(Mode()); }
  [[nodiscard]] QString StdDevText() const { return Text(StdDev()); }
  [[nodiscard]] QString SumText() const { return Text(Sum()); }
  [[nodiscard]] QString SumSqText() const { return Text(SumSq()); }
  [[nodiscard]] QString VarianceText() const { return Text(Variance()); }
  [[nodiscard]] QString KurtosisText() const { return Text(Kurtosis()); }
  [[nodiscard]] QString SkewText() const { return Text(Skew()); }
  [[nodiscard]] QString Quartile1stText() const { return Text(Quartile1st()); }
  [[nodiscard]] QString Quartile3rdText() const { return Text(Quartile3rd()); }
  /// @}

  /// The library's version.
  [[nodiscard]] QString Version() const;

  /// Appends a value, and to Items its text with up to twenty decimals. The line gives back every
  /// bit of a magnitude of 1/8 or more; smaller ones lose their last bits, and below 5e-21 the
  /// line is "0". Where that matters to a form that is stored, set Items.
  void AddValue(Extended value);
  /// Removes the value at the index and the line at the index, where there is one. Nothing
  /// happens when there is no such value.
  void DeleteValue(std::int32_t index);
  /// Removes the last value, if any, as DeleteValue does.
  void DeleteLast();
  /// Removes all values and lines and ends an update.
  void Clear();

  /// Until EndUpdate, changes leave the results as they are. This is a flag that does not count:
  /// the first EndUpdate ends any number of BeginUpdate.
  void BeginUpdate() noexcept { stats_.BeginUpdate(); }
  /// Ends an update and computes the results.
  void EndUpdate();

  /// Makes the values of the lines in Items with Str2Float. When a line is no number, its
  /// EConvertError reaches the caller: Items keeps the lines, and the values and results stay as
  /// they were.
  void ConvertItems();
  /// What a form calls once its properties have been read in: the values follow the lines, as in
  /// ConvertItems. Qt tells no plain object when that is. setItems converts already, so nothing
  /// changes where a form does not call it.
  void Loaded() { ConvertItems(); }

  /// The report, a line for each figure: label, tab, value with DecimalPlaces decimals. An update
  /// ends first. An empty sample gives one line, the message rsVectorIsEmpty.
  [[nodiscard]] QStringList DescStats();

 Q_SIGNALS:
  /// The results have been computed anew.
  void StatsUpdated();

 private:
  static constexpr int kDefaultDecimalPlaces = 4;

  // What writing and resetting a result does.
  void ignoreText(const QString&) noexcept {}
  void ignoreCount(uint) noexcept {}
  void ignoreFlag(bool) noexcept {}
  void ignoreReset() noexcept {}

  static QString Text(Extended value);
  void DeleteAt(std::int64_t index);
  void NotifyUnlessUpdating();

  DescriptiveStats stats_;
  QStringList items_;
  int decimal_places_ = kDefaultDecimalPlaces;
};

}  // QORVEX_WIDGET_UNIT(QorvexDescStats)
