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

/// The published properties in order, each listed here and nowhere else. SETTING(Type, Name) can be
/// set. FIGURE(Name, member) is the text of a member of DescriptiveResults. SHOWN(Type, Name) is
/// any other result.
#define QORVEX_DESC_STATS_PROPERTIES(SETTING, FIGURE, SHOWN) \
  SETTING(int, DecimalPlaces)                                \
  SETTING(QStringList, Items)                                \
  FIGURE(Maximum, maximum)                                   \
  FIGURE(Mean, mean)                                         \
  FIGURE(Median, median)                                     \
  FIGURE(Minimum, minimum)                                   \
  FIGURE(Mode, mode)                                         \
  SHOWN(bool, ModeExists)                                    \
  SHOWN(uint, NoOfValues)                                    \
  SETTING(bool, Population)                                  \
  FIGURE(StdDev, std_dev)                                    \
  FIGURE(Sum, sum)                                           \
  FIGURE(SumSq, sum_sq)                                      \
  FIGURE(Variance, variance)                                 \
  SHOWN(QString, Version)                                    \
  FIGURE(Kurtosis, kurtosis)                                 \
  FIGURE(Skew, skew)                                         \
  FIGURE(Quartile1st, quartile_1st)                          \
  FIGURE(Quartile3rd, quartile_3rd)

/// For a kind of property that a use of the list leaves out.
#define QORVEX_DESC_STATS_SKIP(first, second)

/// Publishes a result. Designers hide properties that cannot be written or reset, so both are
/// possible but have no effect, and forms do not store the result.
#define QORVEX_DESC_STATS_RESULT(Type, Name, getter) \
  Q_PROPERTY(Type Name READ getter WRITE ignore RESET ignoreReset STORED false NOTIFY StatsUpdated)
/// Publishes a figure as text.
#define QORVEX_DESC_STATS_FIGURE(Name, member) QORVEX_DESC_STATS_RESULT(QString, Name, Name##Text)
/// Publishes any other result.
#define QORVEX_DESC_STATS_SHOWN(Type, Name) QORVEX_DESC_STATS_RESULT(Type, Name, Name)
/// The accessors of a figure: the number and its published text.
#define QORVEX_DESC_STATS_ACCESSORS(Name, member) \
  [[nodiscard]] Extended Name() const noexcept {  \
    return Results().member;                      \
  }                                               \
  [[nodiscard]] QString Name##Text() const {      \
    return Text(Results().member);                \
  }

QORVEX_WIDGET_UNIT(QorvexDescStats) {

/// A non-visual component that holds one sample and keeps its descriptive statistics up to date.
///
/// - A designer enters the values as lines of text, Items. A program sets or reads them as vectors,
///   or adds and deletes single values.
/// - setItems, AddValue, DeleteValue and Clear change lines and values together. Setting a vector
///   leaves the lines unchanged, so a later setItems, ConvertItems or Loaded replaces the vector.
/// - Real results are published as text (Float2Str), because forms cannot store 80-bit numbers.
///   Mean() and the other accessors return the numbers.
/// - All results are 0 for an empty sample. DescriptiveResults describes small samples and NaN.
/// - Writing or resetting a published result has no effect, and forms do not store results.
/// - The stored properties may be set in any order.
///
/// Like any QObject, a component belongs to one thread. Costs are those of DescriptiveStats, plus a
/// QString for each line of Items.
class QORVEX_EXPORT TQorDescStats : public QObject {
  Q_OBJECT
  /// @{
  /// Published: see the accessor of the same name. Only DecimalPlaces, Items and Population are
  /// stored.
  QORVEX_DESC_STATS_PROPERTIES(QORVEX_PUBLISHED, QORVEX_DESC_STATS_FIGURE, QORVEX_DESC_STATS_SHOWN)
  /// @}

 public:
  /// An empty sample with 4 decimal places. The component is deleted with its owner.
  explicit TQorDescStats(QObject* owner = nullptr);
  ~TQorDescStats() override;

  /// @{
  /// The number of decimals in the report, clamped to 0 to 255; 4 by default.
  [[nodiscard]] int DecimalPlaces() const noexcept { return decimal_places_; }
  void setDecimalPlaces(int places) noexcept;
  void resetDecimalPlaces() noexcept { setDecimalPlaces(kDefaultDecimalPlaces); }
  /// @}

  /// @{
  /// The lines of text, one for each value. Setting them converts them to values; see ConvertItems
  /// for lines that are not numbers.
  [[nodiscard]] QStringList Items() const { return items_; }
  void setItems(const QStringList& items);
  void resetItems() { setItems({}); }
  /// @}

  /// @{
  /// Whether to compute population statistics (divide by n) instead of sample statistics (divide by
  /// n - 1); false by default.
  [[nodiscard]] bool Population() const noexcept { return stats_.Population(); }
  void setPopulation(bool population);
  void resetPopulation() { setPopulation(false); }
  /// @}

  /// @{
  /// The values, as a copy that the caller may modify. Setting copies them and leaves Items
  /// unchanged.
  [[nodiscard]] TQorFloatVector Values() const { return stats_.Values(); }
  void setValues(TQorFloatVector values);
  /// @}

  /// @{
  /// The values rounded to the nearest integer, halves to even. NaN and values out of range become
  /// the smallest value of the type. Setting converts each integer exactly.
  [[nodiscard]] TQorLIntVector LIntValues() const;
  void setLIntValues(const TQorLIntVector& values);
  [[nodiscard]] TQorLWordVector LWordValues() const;
  void setLWordValues(const TQorLWordVector& values);
  [[nodiscard]] TQorInt64Vector Int64Values() const;
  void setInt64Values(const TQorInt64Vector& values);
  /// @}

  /// The number of values, current even during an update; at most 2^32 - 1.
  [[nodiscard]] std::uint32_t NoOfValues() const noexcept;
  /// The results as of the last update; see BeginUpdate.
  [[nodiscard]] const DescriptiveResults& Results() const noexcept { return stats_.Results(); }
  /// Whether one value is more frequent than every other.
  [[nodiscard]] bool ModeExists() const noexcept { return Results().mode_exists; }
  /// The third quartile minus the first; not published.
  [[nodiscard]] Extended InterQuartileRange() const noexcept {
    return Results().inter_quartile_range;
  }
  /// @{
  /// A figure of Results and the text that is published. Mode is meaningful when ModeExists;
  /// Kurtosis is the excess kurtosis.
  QORVEX_DESC_STATS_PROPERTIES(QORVEX_DESC_STATS_SKIP, QORVEX_DESC_STATS_ACCESSORS,
                               QORVEX_DESC_STATS_SKIP)
  /// @}

  /// The version of the library.
  [[nodiscard]] QString Version() const;

  /// Appends a value, and to Items its text with up to twenty decimals. The text is exact for
  /// magnitudes of 1/8 or more; smaller ones lose their last bits, and below 5e-21 the line is "0".
  /// Set Items instead where a stored form must keep such values.
  void AddValue(Extended value);
  /// Removes the value at the index, and the line at the index if there is one. Ignores an index
  /// out of range.
  void DeleteValue(std::int32_t index);
  /// Removes the last value, if any, as DeleteValue does.
  void DeleteLast();
  /// Removes all values and lines, and ends an update.
  void Clear();

  /// Suspends computation until EndUpdate. This is a flag, not a counter: the first EndUpdate ends
  /// any number of BeginUpdate calls.
  void BeginUpdate() noexcept { stats_.BeginUpdate(); }
  /// Ends an update and computes the results.
  void EndUpdate();

  /// Converts the lines of Items to values with Str2Float. For a line that is not a number it
  /// raises EConvertError and changes neither the lines nor the values and results.
  void ConvertItems();
  /// For forms, after they have set the properties: calls ConvertItems. Forms need not call it,
  /// since setItems has converted the lines.
  void Loaded() { ConvertItems(); }

  /// The report, one line per figure: label, tab, and value with DecimalPlaces decimals. Ends an
  /// update first. For an empty sample it is one line, the message rsVectorIsEmpty.
  [[nodiscard]] QStringList DescStats();

 Q_SIGNALS:
  /// The results have been recomputed.
  void StatsUpdated();

 private:
  static constexpr int kDefaultDecimalPlaces = 4;

  template <class T>
  void ignore(const T&) noexcept {}
  void ignoreReset() noexcept {}

  static QString Text(Extended value);
  void DeleteAt(std::int64_t index);
  void NotifyUnlessUpdating();

  DescriptiveStats stats_;
  QStringList items_;
  int decimal_places_ = kDefaultDecimalPlaces;
};

}  // QORVEX_WIDGET_UNIT(QorvexDescStats)
