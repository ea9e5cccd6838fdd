#include "apps/qorvex-gallery/model/random_sample.h"

#include <QSaveFile>
#include <algorithm>
#include <chrono>
#include <cmath>
#include <stdexcept>
#include <string>

#include "apps/qorvex-gallery/model/variate_theory.h"
#include "apps/qorvex-gallery/plot/histogram.h"
#include "qorvex/base/checked_math.h"
#include "qorvex/base/errors.h"
#include "qorvex/base/random.h"
#include "qorvex/base/text.h"
#include "qorvex/stats/dispersion.h"

namespace qorvex::gallery {

namespace {

// Returns false if it was stopped.
bool DrawValues(const SampleOrder& order, TQorFloatVector& values, const Proceed& proceed) {
  apps::VariateArguments arguments;
  for (const Extended parameter : order.parameters) arguments.Append({parameter});
  const apps::Draw draw = order.variate->methods.front().prepare(arguments);
  TQorFloatVector figure = TQorFloatVector::WithLength(1);
  SetRandSeed(order.seed);
  // By the clock, because some variates take nanoseconds and others milliseconds.
  using Clock = std::chrono::steady_clock;
  Clock::time_point next = Clock::now();
  for (std::size_t i = 0; i < order.size; ++i) {
    if (const Clock::time_point now = Clock::now(); now >= next) {
      if (!proceed(i, order.size)) return false;
      next = now + std::chrono::milliseconds(20);
    }
    draw(figure, ClassicRandom);
    values[i] = CheckedFinite(figure[0]);
  }
  return true;
}

std::vector<QPointF> BarsOfCounts(const TQorFloatVector& values, Extended least,
                                  Extended greatest) {
  std::vector<std::size_t> counts(static_cast<std::size_t>(greatest - least) + 1);
  for (const Extended value : values) ++counts[static_cast<std::size_t>(value - least)];
  const auto left = static_cast<double>(least) - 0.5;
  const auto total = static_cast<double>(values.size());
  std::vector<QPointF> bars = {{left, 0}};
  for (const std::size_t count : counts) {
    bars.emplace_back(left + static_cast<double>(bars.size()), static_cast<double>(count) / total);
  }
  return bars;
}

std::vector<QPointF> BarsOfClasses(const Histogram& histogram, Extended share) {
  if (histogram.counts.empty()) return {};
  std::vector<QPointF> bars = {{static_cast<double>(histogram.edges.front()), 0}};
  for (std::size_t i = 0; i < histogram.counts.size(); ++i) {
    bars.emplace_back(static_cast<double>(histogram.edges[i + 1]),
                      static_cast<double>(histogram.Density(i) * share));
  }
  return bars;
}

std::vector<QPointF> BarsOfValues(const TQorFloatVector& values, std::size_t classes,
                                  Extended share) {
  return BarsOfClasses(classes == 0 ? HistogramOf(values) : HistogramOf(values, classes), share);
}

void MakeBars(RandomSample& sample) {
  // With more counts, bars for single counts would be too narrow.
  constexpr Extended kMostCounts = 300;
  const auto [least, greatest] = std::minmax_element(sample.values.begin(), sample.values.end());
  const Extended width = *greatest - *least;
  const bool is_count = TheoryOf(*sample.order.variate, sample.order.parameters).is_count;
  if (sample.classes == 0 && is_count && width <= kMostCounts) {
    sample.bars = BarsOfCounts(sample.values, *least, *greatest);
    return;
  }
  std::vector<Extended> middle(sample.values.begin(), sample.values.end());
  const auto cut = static_cast<std::ptrdiff_t>(middle.size() / 200);
  const auto first = middle.begin() + cut;
  const auto last = middle.end() - 1 - cut;
  std::nth_element(middle.begin(), first, middle.end());
  std::nth_element(first, last, middle.end());
  sample.is_cropped = width > 4 * (*last - *first) && cut > 0;
  if (!sample.is_cropped) {
    sample.bars = BarsOfValues(sample.values, sample.classes, 1);
    return;
  }
  const TQorFloatVector inner(std::vector<Extended>(first, last + 1));
  const Extended share =
      static_cast<Extended>(inner.size()) / static_cast<Extended>(sample.values.size());
  sample.bars = BarsOfValues(inner, sample.classes, share);
}

}  // namespace

RandomSample DrawSample(const SampleOrder& order, const Proceed& proceed) {
  RandomSample sample;
  sample.order = order;
  TQorFloatVector values = TQorFloatVector::WithLength(order.size);
  try {
    if (!DrawValues(order, values, proceed)) return sample;
  } catch (const EMathError& error) {
    const std::string limits = order.variate->methods.front().limits;
    throw std::runtime_error(error.what() + (limits.empty() ? "" : ": " + limits));
  }
  sample.values = std::move(values);
  SampleVarianceAndMean(sample.values, sample.variance, sample.mean);
  MakeBars(sample);
  return sample;
}

RandomSample WithClasses(RandomSample sample, std::size_t classes) {
  sample.classes = classes;
  MakeBars(sample);
  return sample;
}

void SaveValues(const TQorFloatVector& values, const QString& path, const Proceed& proceed) {
  QSaveFile file(path);
  const auto check = [&file](bool success) {
    if (!success) throw std::runtime_error(file.errorString().toStdString());
  };
  check(file.open(QIODevice::WriteOnly));
  std::string block;
  for (std::size_t i = 0; i < values.size(); ++i) {
    block += Float2Str(values[i]) + '\n';
    if (block.size() < std::size_t{1} << 16) continue;
    if (!proceed(i, values.size())) return;
    check(file.write(block.data(), static_cast<qint64>(block.size())) >= 0);
    block.clear();
  }
  check(file.write(block.data(), static_cast<qint64>(block.size())) >= 0);
  check(file.commit());
}

}  // namespace qorvex::gallery
