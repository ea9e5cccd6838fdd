#include "qorvex/stats/inference/detail/kolmogorov.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "qorvex/base/elementary/functions.h"
#include "qorvex/base/special/binomial.h"
#include "qorvex/stats/inference/detail/p_values.h"

namespace qorvex::inference {

namespace {

// Units of 2^-128, so from 0 to just below 1.
__extension__ typedef unsigned __int128 Fraction;

constexpr Fraction kAlmostOne = ~Fraction{0};
constexpr Fraction kInverseE = Fraction{0x5e2d58d8b3bcdf1a} << 64 | 0xbadec7829054f90d;

constexpr std::uint64_t High(Fraction x) {
  return static_cast<std::uint64_t>(x >> 64);
}
constexpr std::uint64_t Low(Fraction x) {
  return static_cast<std::uint64_t>(x);
}

// a * b, too small by at most 3 units.
constexpr Fraction Times(Fraction a, Fraction b) {
  return Fraction{High(a)} * High(b) + (Fraction{High(a)} * Low(b) >> 64) +
         (Fraction{Low(a)} * High(b) >> 64);
}

ExtendedPair ToPair(Fraction x) {
  return special::OrderedSum(static_cast<Extended>(High(x)) * 0x1p-64L,
                             static_cast<Extended>(Low(x)) * 0x1p-128L);
}

Fraction Power(Fraction x, std::size_t exponent) {
  Fraction power = kAlmostOne;
  for (; exponent > 0; --exponent) power = Times(power, x);
  return power;
}

// The matrix H of Marsaglia, Tsang and Wang, divided by e. Its element in row i and column j is
// 1 / (e s!) for s = i - j + 1 >= 0, smaller in the first column and in the last row. So divided,
// the elements of its powers are probabilities of a Poisson process, and what fixed-point numbers
// round off stays below 1e-28 in the end.
class DurbinMatrix {
 public:
  // For k - h = n d with k whole and 0 < h <= 1, exactly: d has 64 bits and n has 10.
  DurbinMatrix(std::size_t n, Extended d) {
    int exponent = 0;
    const Extended mantissa = std::frexp(d, &exponent);
    const Fraction product = Fraction{static_cast<std::uint64_t>(mantissa * 0x1p64L)} * n;
    const int point = 64 - exponent;
    const Fraction beyond = product << (128 - point);
    const Fraction h = beyond == 0 ? kAlmostOne : -beyond;
    centre_ = static_cast<std::size_t>(product >> point);
    Fraction weight = kInverseE;
    for (std::size_t s = 0; s < kTerms; ++s) {
      if (s > 0) weight /= s;
      inner_[s] = weight;
      edge_[s] = weight - Times(weight, Power(h, s));
    }
    if (Size() < kTerms) corner_ = Corner(inner_[Size()], h);
  }

  // P(D < d), the central element of H^n times n! / n^n.
  [[nodiscard]] ExtendedPair Probability(std::size_t n) const {
    std::vector<Fraction> row(Size());
    row[centre_] = kAlmostOne;
    ExtendedPair scale = 1;
    for (std::size_t step = 1; step <= n; ++step) {
      row = Advanced(row);
      scale = scale * ToPair(kInverseE) * static_cast<Extended>(n) /
              ExtendedPair(static_cast<Extended>(step));
    }
    return ToPair(row[centre_]) / scale;
  }

 private:
  // 1 / (e s!) is less than a unit from here on.
  static constexpr std::size_t kTerms = 34;

  [[nodiscard]] std::size_t Size() const { return 2 * centre_ + 1; }

  // weight * (1 - 2 h^m + max(2h - 1, 0)^m)
  [[nodiscard]] Fraction Corner(Fraction weight, Fraction h) const {
    constexpr Fraction half = Fraction{1} << 127;
    const Fraction excess = h >= half ? h + h : 0;  // the 1 overflows
    const Fraction least = Power(h, Size());
    const Fraction most = half + Power(excess, Size()) / 2;
    return most > least ? 2 * Times(weight, most - least) : 0;
  }

  // The row times the matrix.
  [[nodiscard]] std::vector<Fraction> Advanced(const std::vector<Fraction>& row) const {
    const std::size_t last = Size() - 1;
    std::vector<Fraction> product(Size());
    for (std::size_t i = 0; i < std::min(last, kTerms - 1); ++i)
      product[0] += Times(row[i], edge_[i + 1]);
    product[0] += Times(row[last], corner_);
    for (std::size_t j = 1; j <= last; ++j) {
      const std::size_t terms = std::min(last - j + 1, kTerms);
      for (std::size_t s = 0; s < terms; ++s) product[j] += Times(row[j - 1 + s], inner_[s]);
      if (terms < kTerms) product[j] += Times(row[last], edge_[terms]);
    }
    return product;
  }

  std::size_t centre_;
  std::array<Fraction, kTerms> inner_;
  std::array<Fraction, kTerms> edge_;
  Fraction corner_ = 0;
};

// P(D+ >= d): the sum of C(n, j) (d + j/n)^(j - 1) (1 - d - j/n)^(n - j) d, for rest = n (1 - d).
Scaled BirnbaumTingeyTail(std::size_t n, ExtendedPair rest, Extended d) {
  const auto size = static_cast<std::uint32_t>(n);
  Scaled sum = 0;
  for (std::uint32_t j = 0; j < size; ++j) {
    const ExtendedPair q = (rest - ExtendedPair(j)) / ExtendedPair(size);
    if (q.hi <= 0) break;
    const ExtendedPair p = ExtendedPair(1) - q;
    sum = sum + special::BinomialProbability(size, j, p, q) * Scaled(d / p.hi);
  }
  return sum;
}

}  // namespace

Tails KolmogorovTails(std::size_t n, ExtendedPair rest, Alternative alternative) {
  const auto size = static_cast<Extended>(n);
  const Extended d = ((ExtendedPair(size) - rest) / ExtendedPair(size)).hi;
  const bool is_two_sided = alternative == Alternative::kTwoSided;
  // D+ and D- never both reach such a d, or in less than 1e-20 of the cases where one does.
  const bool is_far = d > 0.5L || size * d * d > 8;
  if (is_two_sided && !is_far) {
    const ExtendedPair lower = DurbinMatrix(n, d).Probability(n);
    if (lower.hi < 0.5L) return {Tail::kLower, lower.hi};
    return {Tail::kUpper, std::max(0.0L, (ExtendedPair(1) - lower).hi)};
  }
  const Scaled upper = BirnbaumTingeyTail(n, rest, d);
  return {Tail::kUpper, is_two_sided ? upper * 2 : upper};
}

Tails KolmogorovLimit(Extended n, Extended d, Alternative alternative) {
  const ExtendedPair square = special::ExactProduct(d, d) * n;
  const Extended t = square.hi;
  const Scaled leading{1, square * -2.0L};
  if (alternative != Alternative::kTwoSided) return {Tail::kUpper, leading};
  // The two series of a theta function.
  Extended sum = 0;
  if (t > 1) {
    for (int k = 5; k > 0; --k) sum = Exp(-2 * t * static_cast<Extended>(k * k - 1)) - sum;
    return {Tail::kUpper, leading * Scaled(2 * sum)};
  }
  constexpr Extended pi = std::numbers::pi_v<Extended>;
  for (int k = 1; k <= 7; k += 2) sum += Exp(-static_cast<Extended>(k * k) * pi * pi / (8 * t));
  return {Tail::kLower, std::sqrt(2 * pi / t) * sum};
}

Extended SmirnovTail(std::size_t n1, std::size_t n2, std::int64_t bound,
                     const std::vector<bool>& run_ends, Alternative alternative) {
  const auto reaches = [&](std::size_t i, std::size_t j) {
    const auto difference = static_cast<std::int64_t>(i * n2) - static_cast<std::int64_t>(j * n1);
    return (alternative != Alternative::kLess && difference >= bound) ||
           (alternative != Alternative::kGreater && -difference >= bound);
  };
  // For each j the probability that a path through (i, j) has reached the bound by then.
  std::vector<Extended> reached(n2 + 1);
  for (std::size_t i = 0; i <= n1; ++i) {
    Extended left = 0;
    for (std::size_t j = 0; j <= n2; ++j) {
      const std::size_t length = i + j;
      if (length > 0) {
        left = (static_cast<Extended>(i) * reached[j] + static_cast<Extended>(j) * left) /
               static_cast<Extended>(length);
      }
      if (run_ends[length] && reaches(i, j)) left = 1;
      reached[j] = left;
    }
  }
  return reached[n2];
}

}  // namespace qorvex::inference
