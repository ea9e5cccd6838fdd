#pragma once

/// @file
/// The elementary functions and their exact values by MPFR.

#include <cstdint>
#include <mpfr.h>
#include <span>
#include <string>
#include <vector>

#include "base/elementary/argument_regions.h"

namespace qorvex::testing {

struct ElementaryFunction {
  const char* name;
  Extended (*ours)(const Arguments&);
  /// MPFR's function. The third argument is y; for the inverse of erfc, which MPFR lacks, it is our
  /// result, from which a step of Newton's method yields the exact value.
  int (*exact)(mpfr_ptr, mpfr_srcptr, mpfr_srcptr, mpfr_rnd_t);
  std::vector<ArgumentRegion> regions;
  /// False where results are not rounded correctly and only their error is limited.
  bool is_nearest = true;
};

[[nodiscard]] std::span<const ElementaryFunction> ElementaryFunctions();

/// Registers of MPFR; one object for each thread.
class Reference {
 public:
  Reference();
  ~Reference();
  Reference(const Reference&) = delete;
  Reference& operator=(const Reference&) = delete;

  /// The extended number nearest to the value of the function, rounded once.
  [[nodiscard]] Extended Nearest(const ElementaryFunction& function, const Arguments& arguments);
  /// How far a result is off the exact value, in units of the last place of the exact value.
  [[nodiscard]] Extended ErrorOf(const ElementaryFunction& function, const Arguments& arguments,
                                 Extended result);
  /// The base-2 logarithm of the exact value's distance to what `half_units` tells, in units of the
  /// last place: to the nearest extended number for 2, to the nearest midpoint of two for 1.
  [[nodiscard]] Extended DistanceExponent(const ElementaryFunction& function,
                                          const Arguments& arguments, bool to_midpoint);

 private:
  void SetArguments(const Arguments& arguments);

  mpfr_t x_, y_, nearest_, exact_, difference_;
};

/// What was found in a region.
struct RegionOutcome {
  std::uint64_t tried = 0;
  std::uint64_t not_nearest = 0;
  Extended largest_error = 0;
  Arguments worst;

  void Add(const RegionOutcome& other);
};

/// Tries a number of arguments. The error is measured where a result is not the nearest number, and
/// everywhere for functions that are not rounded correctly.
[[nodiscard]] RegionOutcome Try(const ElementaryFunction& function, const ArgumentRegion& region,
                                std::uint64_t count, std::uint64_t seed);

/// The same bits, or NaN both.
[[nodiscard]] bool IsSameNumber(Extended a, Extended b);

/// The arguments in hexadecimal notation.
[[nodiscard]] std::string Text(const Arguments& arguments);

}  // namespace qorvex::testing
