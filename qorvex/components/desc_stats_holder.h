#pragma once

/// @file
/// TQorDescStatsHolder, descriptive statistics on a form.

#include <QString>
#include <QStringList>

#include "qorvex/base/export.h"
#include "qorvex/base_controls/unit.h"
#include "qorvex/components/QorvexDescStats.h"
#include "qorvex/components/component_holder.h"

QORVEX_WIDGET_UNIT(QorvexControls) {

/// Puts a TQorDescStats on a form.
class QORVEX_EXPORT TQorDescStatsHolder : public ComponentHolder {
  Q_OBJECT
  /// @{
  /// Published: see the property of TQorDescStats of the same name.
  QORVEX_DESC_STATS_PROPERTIES(QORVEX_PUBLISHED, QORVEX_DESC_STATS_FIGURE, QORVEX_DESC_STATS_SHOWN)
  /// @}

 public:
  /// An empty sample.
  explicit TQorDescStatsHolder(QWidget* parent = nullptr);
  ~TQorDescStatsHolder() override;

  /// The component, which also has the results as numbers.
  [[nodiscard]] TQorDescStats* Stats() const noexcept { return stats_; }

  /// @{
  /// The settings of the component. A line of Items that is not a number raises no error here,
  /// because a form could not catch it: the message goes to Qt's log and is shown on the form while
  /// it is being designed, and the results stay unchanged.
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
  /// The results have been recomputed.
  void StatsUpdated();

 private:
  /// @cond internal
#define QORVEX_FORWARD(Type, Name) \
  Type Name() const {              \
    return stats_->Name();         \
  }
#define QORVEX_FORWARD_TEXT(Name, member) QORVEX_FORWARD(QString, Name##Text)
  QORVEX_DESC_STATS_PROPERTIES(QORVEX_DESC_STATS_SKIP, QORVEX_FORWARD_TEXT, QORVEX_FORWARD)
#undef QORVEX_FORWARD
#undef QORVEX_FORWARD_TEXT
  /// @endcond

  template <class T>
  void ignore(const T&) noexcept {}
  void ignoreReset() noexcept {}

  TQorDescStats* stats_;
};

}  // QORVEX_WIDGET_UNIT(QorvexControls)
