#pragma once

/// @file
/// The figures that the commands of `dist` print.

#include <initializer_list>
#include <memory>
#include <vector>

#include "apps/common/distributions.h"
#include "qorvex/base/element_types.h"
#include "qorvex/stats/distributions/figures.h"

namespace qorvex::apps {

/// How figures are computed.
struct DistOptions {
  /// With the classic routines of QorvexStatistics.
  bool classic = false;
  /// Logarithms of probabilities.
  bool log = false;
  /// Quantiles from the upper tail.
  bool upper = false;
};

/// The figures of a distribution at a point. All throw EMathError as the distribution does,
/// EOverflow for a finite figure beyond the range, and CLI::ValidationError if there is no classic
/// routine.
class DistFigures {
 public:
  /// Throws EMathError as the class of the distribution does.
  DistFigures(const Family& family, const std::vector<Extended>& parameters, DistOptions options);

  [[nodiscard]] bool IsClassic() const { return options_.classic; }

  /// @{
  /// Probabilities, or their logarithms. At most and at least differ from less and greater for
  /// counts only; there are no classic routines for them.
  [[nodiscard]] Extended Less(Extended point) const;
  [[nodiscard]] Extended Greater(Extended point) const;
  [[nodiscard]] Extended AtMost(Extended point) const;
  [[nodiscard]] Extended AtLeast(Extended point) const;
  /// @}
  /// The probability between two points in either order, both excluded.
  [[nodiscard]] Extended Between(Extended a, Extended b) const;
  /// The density, or the probability of a count.
  [[nodiscard]] Extended Density(Extended point) const;
  /// The point of a probability.
  [[nodiscard]] Extended Quantile(Extended probability) const;
  /// The densities at that many steps and one point more, by the classic routine.
  [[nodiscard]] DensityTable<Extended> ClassicTable(Extended first, Extended last,
                                                    Extended steps) const;

 private:
  using Routine = ClassicRoutines::Routine;

  [[nodiscard]] Extended Classic(Routine routine, std::initializer_list<Extended> numbers) const;
  [[nodiscard]] Extended ClassicProbability(Routine routine,
                                            std::initializer_list<Extended> numbers) const;
  [[nodiscard]] Extended LowerTail(Extended point) const;
  [[nodiscard]] Extended UpperTail(Extended point) const;
  // Throws EOverflow for NaN, which comes from a figure on the way that is not finite, and for
  // infinity where the figure is finite.
  [[nodiscard]] Extended InRange(Extended figure, Extended point) const;
  // What separates less from at most: 1 for counts.
  [[nodiscard]] Extended Step() const { return family_.is_discrete ? 1 : 0; }

  const Family& family_;
  std::vector<Extended> parameters_;
  DistOptions options_;
  // Null for the classic routines, which have limits of their own.
  std::unique_ptr<const AnyDistribution> distribution_;
};

}  // namespace qorvex::apps
