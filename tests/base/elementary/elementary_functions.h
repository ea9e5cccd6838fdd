#pragma once

/// @file
/// The elementary functions and their exact values by MPFR.

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/elementary/argument_regions.h"
#include "base/elementary/mpfr_number.h"
#include "qorvex/base/vector_view.h"

namespace qorvex::testing {

/// What was found in a region.
struct RegionOutcome {
  std::uint64_t tried = 0;
  std::uint64_t not_nearest = 0;
  Extended largest_error = 0;
  Arguments worst;

  void Add(const RegionOutcome& other);
};

struct ElementaryFunction {
  const char* name;
  Extended (*ours)(const Arguments&);
  /// MPFR's function. The third argument is y; for the inverse of erfc, which MPFR lacks, it is our
  /// result, from which a step of Newton's method yields the exact value.
  int (*exact)(mpfr_ptr, mpfr_srcptr, mpfr_srcptr, mpfr_rnd_t);
  std::vector<ArgumentRegion> regions;
  /// The function over a range, with the same y for all elements. Null if there is none.
  void (*over)(VectorView<Extended> x, Extended y, std::span<Extended> results) = nullptr;
  /// False where results are not rounded correctly and only their error is limited.
  bool is_nearest = true;

  /// The results in a region are as near as promised.
  [[nodiscard]] bool IsKept(const ArgumentRegion& region, const RegionOutcome& outcome) const {
    return is_nearest ? outcome.not_nearest == 0 : outcome.largest_error <= region.allowed;
  }
};

[[nodiscard]] std::span<const ElementaryFunction> ElementaryFunctions();
/// Throws std::out_of_range for an unknown name.
[[nodiscard]] const ElementaryFunction& FunctionNamed(std::string_view name);

/// Registers of MPFR; one object for each thread.
class Reference {
 public:
  /// The extended number nearest to the value of the function, rounded once.
  [[nodiscard]] Extended Nearest(const ElementaryFunction& function, const Arguments& arguments);
  /// How far a result is off the exact value, in units of the last place of the exact value.
  [[nodiscard]] Extended ErrorOf(const ElementaryFunction& function, const Arguments& arguments,
                                 Extended result);
  /// The base-2 logarithm of the exact value's distance to the nearest extended number, or to the
  /// nearest midpoint of two, in units of the last place.
  [[nodiscard]] Extended DistanceExponent(const ElementaryFunction& function,
                                          const Arguments& arguments, bool to_midpoint);

 private:
  void SetArguments(const Arguments& arguments);

  // For errors and distances; arguments near 2^-16445 need no more, as only the leading bits of a
  // difference matter.
  static constexpr mpfr_prec_t kExactPrecision = 320;

  MpfrNumber x_{64}, y_{64}, nearest_{64}, exact_{kExactPrecision}, difference_{kExactPrecision};
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
