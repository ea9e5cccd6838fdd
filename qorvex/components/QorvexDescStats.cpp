#include "qorvex/components/QorvexDescStats.h"

#include <algorithm>
#include <limits>
#include <string>
#include <utility>

#include "qorvex/base/rounding.h"
#include "qorvex/base/text.h"
#include "qorvex/base/version.h"

namespace qorvex::inline QorvexDescStats {

namespace {

template <class Int>
TQorVector<Int> Rounded(const TQorFloatVector& values) {
  auto rounded = TQorVector<Int>::ForOverwrite(values.size());
  std::ranges::transform(values, rounded.begin(), RoundToInteger<Int>);
  return rounded;
}

}  // namespace

TQorDescStats::TQorDescStats(QObject* owner) : QObject(owner) {}
TQorDescStats::~TQorDescStats() = default;

void TQorDescStats::setDecimalPlaces(int places) noexcept {
  decimal_places_ = std::clamp(places, 0, 255);
}

void TQorDescStats::setItems(const QStringList& items) {
  items_ = items;
  ConvertItems();
}

void TQorDescStats::setPopulation(bool population) {
  if (population == Population()) return;
  stats_.SetPopulation(population);
  NotifyUnlessUpdating();
}

void TQorDescStats::setValues(TQorFloatVector values) {
  stats_.SetValues(std::move(values));
  NotifyUnlessUpdating();
}

TQorLIntVector TQorDescStats::LIntValues() const {
  return Rounded<std::int32_t>(Values());
}
TQorLWordVector TQorDescStats::LWordValues() const {
  return Rounded<std::uint32_t>(Values());
}
TQorInt64Vector TQorDescStats::Int64Values() const {
  return Rounded<std::int64_t>(Values());
}

void TQorDescStats::setLIntValues(const TQorLIntVector& values) {
  setValues(TQorFloatVector(values));
}
void TQorDescStats::setLWordValues(const TQorLWordVector& values) {
  setValues(TQorFloatVector(values));
}
void TQorDescStats::setInt64Values(const TQorInt64Vector& values) {
  setValues(TQorFloatVector(values));
}

std::uint32_t TQorDescStats::NoOfValues() const noexcept {
  constexpr std::size_t limit = std::numeric_limits<std::uint32_t>::max();
  return static_cast<std::uint32_t>(std::min(stats_.NoOfValues(), limit));
}

QString TQorDescStats::Text(Extended value) {
  return QString::fromStdString(Float2Str(value));
}

QString TQorDescStats::Version() const {
  return QString::fromLatin1(QORVEX_VERSION);
}

void TQorDescStats::AddValue(Extended value) {
  constexpr int decimals = 20;
  stats_.AddValue(value);
  items_.append(QString::fromStdString(StripTChStr(Float2EStr(value, decimals), '0')));
  NotifyUnlessUpdating();
}

void TQorDescStats::DeleteValue(std::int32_t index) {
  DeleteAt(index);
}

void TQorDescStats::DeleteLast() {
  DeleteAt(static_cast<std::int64_t>(stats_.NoOfValues()) - 1);
}

void TQorDescStats::DeleteAt(std::int64_t index) {
  if (!stats_.DeleteValue(index)) return;
  if (index < items_.size()) items_.removeAt(index);
  NotifyUnlessUpdating();
}

void TQorDescStats::Clear() {
  items_.clear();
  stats_.Clear();
  NotifyUnlessUpdating();
}

void TQorDescStats::EndUpdate() {
  stats_.EndUpdate();
  NotifyUnlessUpdating();
}

void TQorDescStats::ConvertItems() {
  auto values = TQorFloatVector::ForOverwrite(static_cast<std::size_t>(items_.size()));
  std::ranges::transform(std::as_const(items_), values.begin(),
                         [](const QString& line) { return Str2Float(line.toStdString()); });
  setValues(std::move(values));
}

QStringList TQorDescStats::DescStats() {
  if (stats_.Updating()) EndUpdate();
  QStringList lines;
  for (const std::string& line : stats_.Report(decimal_places_)) {
    lines.append(QString::fromStdString(line));
  }
  return lines;
}

void TQorDescStats::NotifyUnlessUpdating() {
  if (!stats_.Updating()) Q_EMIT StatsUpdated();
}

}  // namespace qorvex::inline QorvexDescStats
