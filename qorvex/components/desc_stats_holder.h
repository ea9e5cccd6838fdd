#pragma once

/// @file
/// TQorDescStatsHolder, descriptive statistics on a form.

#include <QString>
#include <QStringList>

#include "qorvex/base/export.h"
#include "qorvex/base_controls/unit.h"
#include "qorvex/components/QorvexDescStats.h"
#include "qorvex/components/component_holder.h"

/// A result that a designer shows: it can be written and reset, since others are not shown, but
/// neither does anything, and no form stores it.
#define QORVEX_SHOWN(Type, Name, getter) \
  Q_PROPERTY(Type Name READ getter WRITE ignore RESET ignoreReset STORED false NOTIFY StatsUpdated)

QORVEX_WIDGET_UNIT(QorvexControls) {

/// Puts a TQorDescStats on a form.
class QORVEX_EXPORT TQorDescStatsHolder : public ComponentHolder {
  Q_OBJECT
  /// @{
  /// Published: see the property of TQorDescStats of the same name.
  QORVEX_PUBLISHED(int, DecimalPlaces)
  QORVEX_PUBLISHED(QStringList, Items)
  QORVEX_SHOWN(QString, Maximum, MaximumText)
  QORVEX_SHOWN(QString, Mean, MeanText)
  QORVEX_SHOWN(QString, Median, MedianText)
  QORVEX_SHOWN(QString, Minimum, MinimumText)
  QORVEX_SHOWN(QString, Mode, ModeText)
  QORVEX_SHOWN(bool, ModeExists, ModeExists)
  QORVEX_SHOWN(uint, NoOfValues, NoOfValues)
  QORVEX_PUBLISHED(bool, Population)
  QORVEX_SHOWN(QString, StdDev, StdDevText)
  QORVEX_SHOWN(QString, Sum, SumText)
  QORVEX_SHOWN(QString, SumSq, SumSqText)
  QORVEX_SHOWN(QString, Variance, VarianceText)
  QORVEX_SHOWN(QString, Version, Version)
  QORVEX_SHOWN(QString, Kurtosis, KurtosisText)
  QORVEX_SHOWN(QString, Skew, SkewText)
  QORVEX_SHOWN(QString, Quartile1st, Quartile1stText)
  QORVEX_SHOWN(QString, Quartile3rd, Quartile3rdText)
  /// @}

 public:
  /// An empty sample.
  explicit TQorDescStatsHolder(QWidget* parent = nullptr);
  ~TQorDescStatsHolder() override;

  /// The component, with the values of the results.
  [[nodiscard]] TQorDescStats* Stats() const noexcept { return stats_; }

  /// @{
  /// What can be set of the component. A line that is no number raises no error here, since forms
  /// could not catch it: Qt's log gets its message, a designer shows it, and the results stay.
  [[nodiscard]] int DecimalPlaces() const noexcept { return stats_->DecimalPlaces(); }
  void setDecimalPlaces(int places) { stats_->setDecimalPlaces(places); }
  void resetDecimalPlaces() { stats_->resetDecimalPlaces(); }
  [[nodiscard]] QStringList Items() const { return stats_->Items(); }
  void setItems(const QStringList& items);
  void resetItems() { setItems({}); }
  [[nodiscard]] bool Population() const noexcept { return stats_->Population(); }
  void setPopulation(bool population) { stats_->setPopulation(population); }
  void resetPopulation() { stats_->resetPopulation(); }
  /// @}

 Q_SIGNALS:
  /// The results have been computed anew.
  void StatsUpdated();

 private:
  /// @cond internal
#define QORVEX_SHOWN_TEXT(Name)              \
  [[nodiscard]] QString Name##Text() const { \
    return stats_->Name##Text();             \
  }
  QORVEX_SHOWN_TEXT(Maximum)
  QORVEX_SHOWN_TEXT(Mean)
  QORVEX_SHOWN_TEXT(Median)
  QORVEX_SHOWN_TEXT(Minimum)
  QORVEX_SHOWN_TEXT(Mode)
  QORVEX_SHOWN_TEXT(StdDev)
  QORVEX_SHOWN_TEXT(Sum)
  QORVEX_SHOWN_TEXT(SumSq)
  QORVEX_SHOWN_TEXT(Variance)
  QORVEX_SHOWN_TEXT(Kurtosis)
  QORVEX_SHOWN_TEXT(Skew)
  QORVEX_SHOWN_TEXT(Quartile1st)
  QORVEX_SHOWN_TEXT(Quartile3rd)
#undef QORVEX_SHOWN_TEXT
  /// @endcond
  [[nodiscard]] bool ModeExists() const noexcept {
    return stats_->ModeExists();
  }
  [[nodiscard]] uint NoOfValues() const noexcept {
    return stats_->NoOfValues();
  }
  [[nodiscard]] QString Version() const {
    return stats_->Version();
  }

  template <class T>
  void ignore(const T&) noexcept {}
  void ignoreReset() noexcept {}

  TQorDescStats* stats_;
};

}  // QORVEX_WIDGET_UNIT(QorvexControls)

#undef QORVEX_SHOWN
