// Looks for arguments whose results lie closest to an extended number or to the midpoint of two,
// where rounding is hardest, and prints the hundred closest as rows of a table.
//
//   hard_cases FUNCTION near COUNT               random arguments of all regions, and values of the
//                                                inverse function at midpoints
//   hard_cases FUNCTION search X SECONDS [Y]     all arguments from X upwards, as far as the time
//   allows;
//                                                what was covered is printed to standard error

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "base/linear_search.h"

namespace qorvex::benchmarks {

namespace {

using testing::Arguments;
using testing::ElementaryFunction;
using testing::Engine;

// A function that hardly changes near some argument takes values near any midpoint there: at the
// nearest argument to the inverse function of the midpoint.
struct Inverse {
  const char* name;
  int (*inverse)(mpfr_ptr, mpfr_srcptr, mpfr_rnd_t);
  Extended limit;  ///< of the function, near which the midpoints lie
};

constexpr Extended kHalfPi = 1.57079632679489661923132169163975144L;
constexpr Inverse kInverses[] = {{"Exp", mpfr_log, 1},         {"Exp2", mpfr_log2, 1},
                                 {"Expm1", mpfr_log1p, -1},    {"Sin", mpfr_asin, 1},
                                 {"Cos", mpfr_acos, 1},        {"ArcCos", mpfr_cos, kHalfPi},
                                 {"ArcTan", mpfr_tan, kHalfPi}};

// The limit plus or minus an odd number of half units.
Extended ArgumentAtMidpoint(const Inverse& inverse, Engine& engine) {
  mpfr_t value, argument;
  mpfr_init2(value, 192);
  mpfr_init2(argument, 64);
  mpfr_set_ld(value, inverse.limit, MPFR_RNDN);
  const auto odd = static_cast<long>(engine() >> (20 + engine() % 44) | 1);
  mpfr_t offset;
  mpfr_init2(offset, 192);
  const bool above = inverse.limit == 1 && engine() % 2 == 0;
  mpfr_set_si_2exp(offset, above ? odd : -odd, mpfr_get_exp(value) - (above ? 65 : 66), MPFR_RNDN);
  if (inverse.limit < 0) mpfr_neg(offset, offset, MPFR_RNDN);
  mpfr_add(value, value, offset, MPFR_RNDN);
  inverse.inverse(argument, value, MPFR_RNDN);
  const Extended x = mpfr_get_ld(argument, MPFR_RNDN);
  mpfr_clears(value, argument, offset, nullptr);
  return x;
}

void TryNear(const ElementaryFunction& function, std::uint64_t count, HardCaseList& list) {
  Engine engine(1);
  for (const testing::ArgumentRegion& region : function.regions)
    for (std::uint64_t i = 0; i < count; ++i) list.Add(region.draw(engine));
  for (const Inverse& inverse : kInverses) {
    if (inverse.name != std::string_view(function.name)) continue;
    for (std::uint64_t i = 0; i < count; ++i) list.Add({ArgumentAtMidpoint(inverse, engine)});
  }
}

int Run(const ElementaryFunction& function, int argc, char** argv) {
  const std::string_view mode = argv[2];
  // Arguments so small that the function is a line give many that are closer than all others.
  HardCaseList list(function, 100, mode == "near" ? 2 : 100);
  if (mode == "near") {
    TryNear(function, std::strtoull(argv[3], nullptr, 10), list);
  } else if (mode == "search" && argc > 4) {
    const Arguments start{std::strtold(argv[3], nullptr),
                          argc > 5 ? std::strtold(argv[5], nullptr) : 0};
    const SearchExtent extent = SearchFrom(function, start, std::atof(argv[4]), list);
    std::fprintf(stderr, "%s: 2^%.2f arguments from %La to %La", function.name,
                 std::log2(extent.arguments), start.x, extent.next);
    if (!list.IsEmpty()) std::fprintf(stderr, ", closest 2^%.2Lf", list.Closest());
    std::fprintf(stderr, "\n");
  } else {
    return EXIT_FAILURE;
  }
  std::fputs(list.Rows().c_str(), stdout);
  return EXIT_SUCCESS;
}

}  // namespace

}  // namespace qorvex::benchmarks

int main(int argc, char** argv) {
  for (const auto& function : qorvex::testing::ElementaryFunctions()) {
    if (argc > 3 && std::string_view(argv[1]) == function.name)
      return qorvex::benchmarks::Run(function, argc, argv);
  }
  std::fprintf(stderr, "usage: hard_cases FUNCTION near COUNT | FUNCTION search X SECONDS [Y]\n");
  return EXIT_FAILURE;
}
