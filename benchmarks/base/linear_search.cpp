#include "base/linear_search.h"

#include <chrono>
#include <cmath>

#include "base/rotation.h"

namespace qorvex::benchmarks {

namespace {

using testing::Arguments;
using testing::ElementaryFunction;
__extension__ typedef unsigned __int128 UInt128;

constexpr int kDegree = 4;
constexpr int kPiecesLog2 = 12;
constexpr double kDistance = 0x1p-39;  // in half units

// The polynomial of a block in the odd number m = 2 j + 1 of piece j, modulo 1 in units of 2^-128,
// its derivative by k, and half its second derivative.
struct BlockPolynomial {
  UInt128 value[kDegree + 1];
  UInt128 slope[kDegree];
  double bend[kDegree - 1];
};

class BlockFitter {
 public:
  explicit BlockFitter(const ElementaryFunction& function) : function_(function) {
    for (auto& node : nodes_) mpfr_init2(node, 320);
    mpfr_inits2(320, x_, y_, t_, s_, nullptr);
    mpfr_set_emin(-(1 << 30));
    mpfr_set_emax(1 << 30);
  }
  ~BlockFitter() {
    for (auto& node : nodes_) mpfr_clear(node);
    mpfr_clears(x_, y_, t_, s_, nullptr);
  }
  BlockFitter(const BlockFitter&) = delete;
  BlockFitter& operator=(const BlockFitter&) = delete;

  // For 2^size_log2 arguments from x on. False if the results cross a power of two.
  bool Fit(const Arguments& start, int size_log2, BlockPolynomial& block) {
    mpfr_set_ld(y_, start.y, MPFR_RNDN);
    int exponent = 0;
    std::frexp(start.x, &exponent);
    mpfr_exp_t result_exponent = 0;
    for (int i = 0; i <= kDegree; ++i) {
      mpfr_set_si_2exp(t_, i, exponent - 64 + size_log2 - 2, MPFR_RNDN);
      if (start.x < 0) mpfr_neg(t_, t_, MPFR_RNDN);
      mpfr_set_ld(x_, start.x, MPFR_RNDN);
      mpfr_add(x_, x_, t_, MPFR_RNDN);
      function_.exact(nodes_[i], x_, y_, MPFR_RNDN);
      if (mpfr_regular_p(nodes_[i]) == 0) return false;
      if (i != 0 && mpfr_get_exp(nodes_[i]) != result_exponent) return false;
      result_exponent = mpfr_get_exp(nodes_[i]);
    }
    for (auto& node : nodes_) mpfr_mul_2si(node, node, 65 - result_exponent, MPFR_RNDN);
    ToPowers();
    // s = 4 k / 2^size_log2 becomes m / 2^(pieces - 1).
    const int step = kPiecesLog2 - 1;
    for (int i = 0; i <= kDegree; ++i) block.value[i] = Fraction(nodes_[i], -step * i);
    for (int i = 1; i <= kDegree; ++i) {
      mpfr_mul_si(t_, nodes_[i], i, MPFR_RNDN);
      block.slope[i - 1] = Fraction(t_, 2 - size_log2 - step * (i - 1));
    }
    for (int i = 2; i <= kDegree; ++i) {
      block.bend[i - 2] = std::ldexp(mpfr_get_d(nodes_[i], MPFR_RNDN) * i * (i - 1) / 2,
                                     2 * (2 - size_log2) - step * (i - 2));
    }
    return true;
  }

 private:
  // Values at 0 .. 4 to coefficients: Newton's differences, then powers.
  void ToPowers() {
    for (int order = 1; order <= kDegree; ++order)
      for (int i = kDegree; i >= order; --i)
        mpfr_sub(nodes_[i], nodes_[i], nodes_[i - 1], MPFR_RNDN);
    // The coefficients of s (s - 1) ... (s - i + 1), times 24 / i!.
    constexpr int kFalling[kDegree + 1][kDegree + 1] = {
        {24}, {0, 24}, {0, -12, 12}, {0, 8, -12, 4}, {0, -6, 11, -6, 1}};
    for (int power = 0; power <= kDegree; ++power) {
      mpfr_set_zero(s_, 1);
      for (int i = power; i <= kDegree; ++i) {
        mpfr_mul_si(t_, nodes_[i], kFalling[i][power], MPFR_RNDN);
        mpfr_add(s_, s_, t_, MPFR_RNDN);
      }
      mpfr_div_ui(nodes_[power], s_, 24, MPFR_RNDN);
    }
  }

  // x 2^k modulo 1 in units of 2^-128.
  UInt128 Fraction(mpfr_srcptr x, int k) {
    mpfr_mul_2si(s_, x, k, MPFR_RNDN);
    mpfr_t whole;
    mpfr_init2(whole, 320);
    mpfr_floor(whole, s_);
    mpfr_sub(s_, s_, whole, MPFR_RNDN);
    mpfr_clear(whole);
    mpfr_mul_2ui(s_, s_, 64, MPFR_RNDN);
    const UInt128 high = mpfr_get_uj(s_, MPFR_RNDZ);
    mpfr_frac(s_, s_, MPFR_RNDN);
    mpfr_mul_2ui(s_, s_, 64, MPFR_RNDN);
    return high << 64 | mpfr_get_uj(s_, MPFR_RNDZ);
  }

  const ElementaryFunction& function_;
  mpfr_t nodes_[kDegree + 1];
  mpfr_t x_, y_, t_, s_;
};

template <std::size_t kSize>
UInt128 ValueAt(const UInt128 (&coefficients)[kSize], std::uint64_t m) {
  UInt128 sum = 0;
  for (std::size_t i = kSize; i-- > 0;) sum = sum * m + coefficients[i];
  return sum;
}

// A fraction of 2^64 as a number between -1/2 and 1/2.
double Centred(std::uint64_t fraction) {
  return static_cast<double>(static_cast<std::int64_t>(fraction)) * 0x1p-64;
}

// Calls visit(k) for the hits of a piece, k counted from its first argument.
template <class Visit>
void VisitPiece(const BlockPolynomial& block, std::uint64_t piece, int size_log2, Visit visit) {
  const std::uint64_t m = 2 * piece + 1;
  const std::int64_t half = std::int64_t{1} << (size_log2 - 1);
  const auto centre = static_cast<std::uint64_t>(ValueAt(block.value, m) >> 64);
  // VisitHits asks for a step that is not 0, and the window has room for the change.
  const auto slope = std::clamp<std::uint64_t>(
      static_cast<std::uint64_t>(ValueAt(block.slope, m) >> 64), 4, ~std::uint64_t{4});
  const auto real_m = static_cast<double>(m);
  const double bend = block.bend[0] + real_m * (block.bend[1] + real_m * block.bend[2]);
  const double most = bend * static_cast<double>(half) * static_cast<double>(half);
  const auto lower = static_cast<std::int64_t>((-std::fmax(most, 0) - kDistance) * 0x1p64);
  const auto upper = static_cast<std::int64_t>((-std::fmin(most, 0) + kDistance) * 0x1p64);
  const std::uint64_t first = centre - slope * static_cast<std::uint64_t>(half);
  VisitHits(first - static_cast<std::uint64_t>(lower), slope,
            static_cast<std::uint64_t>(upper - lower), 2 * half, [&](std::int64_t k) {
              const auto from_centre = static_cast<double>(k - half);
              const double value = Centred(first + slope * static_cast<std::uint64_t>(k)) +
                                   bend * from_centre * from_centre;
              if (std::fabs(value) < kDistance) visit(k);
            });
}

// Pieces so long that one or two hits are to be expected in each. The limit keeps the terms of
// third degree in a piece below 2^-50, and those of fifth degree in a block below 2^-60.
int PieceSizeLog2(const BlockPolynomial& block) {
  const double bend = std::fabs(block.bend[0] + 0x1p12 * block.bend[1]);
  const int longest = static_cast<int>(std::floor((3 - std::log2(bend + 0x1p-100)) / 3));
  return std::clamp(longest, 12, 26);
}

}  // namespace

SearchExtent SearchFrom(const ElementaryFunction& function, Arguments start, double seconds,
                        HardCaseList& list) {
  using Clock = std::chrono::steady_clock;
  const auto end = Clock::now() + std::chrono::duration<double>(seconds);
  SearchExtent extent{start.x};
  int piece_log2 = 22;
  while (Clock::now() < end) {
    int exponent = 0;
    std::frexp(start.x, &exponent);
    const Extended unit = std::ldexp(start.x < 0 ? -1.0L : 1.0L, exponent - 64);
    const int block_log2 = piece_log2 + kPiecesLog2;
    const Extended next = start.x + std::ldexp(unit, block_log2);
    BlockPolynomial block;
    BlockFitter fitter(function);
    const bool in_binade = std::fabs(next) <= std::ldexp(1.0L, exponent);
    if (in_binade && fitter.Fit(start, block_log2, block)) {
      const int best = PieceSizeLog2(block);
      if (best != piece_log2) {
        piece_log2 = best;
        continue;
      }
      for (std::uint64_t piece = 0; piece < std::uint64_t{1} << kPiecesLog2; ++piece) {
        VisitPiece(block, piece, piece_log2, [&](std::int64_t k) {
          const auto position = static_cast<std::int64_t>(piece << piece_log2) + k;
          list.Add({start.x + static_cast<Extended>(position) * unit, start.y});
        });
      }
      extent.arguments += std::ldexp(1.0, block_log2);
    }
    start.x = in_binade ? next : std::ldexp(start.x < 0 ? -1.0L : 1.0L, exponent);
    extent.next = start.x;
  }
  return extent;
}

}  // namespace qorvex::benchmarks
